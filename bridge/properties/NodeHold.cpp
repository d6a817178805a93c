// SPDX-License-Identifier: BSD-3-Clause
#include "NodeHold.h"

#include <QObject>

#include <utility>

namespace {

/// Lets go of a node when it is deleted.
class LateRelease final : public QObject {
public:
    explicit LateRelease(KnNodePtr node)
        : m_node(std::move(node))
    {
    }

private:
    const KnNodePtr m_node;
};

} // namespace

NodeHold::NodeHold(KnFieldContainer* node)
    : m_node(KnNodePtr::ofHeld(node))
{
}

NodeHold::~NodeHold()
{
    // A loop that runs inside of this one doesn't delete it.
    if (m_node && m_node->getReferenceCount() == 1)
        // NOLINTNEXTLINE(bugprone-unhandled-exception-at-new): without memory the program ends
        (new LateRelease(m_node))->deleteLater();
}
