// SPDX-License-Identifier: BSD-3-Clause
#include "NodeHold.h"

#include "KnNodePtr.h"

#include <QObject>

namespace {

/// Lets go of a node when it is deleted.
class LateRelease final : public QObject {
public:
    explicit LateRelease(KnFieldContainer* node)
        : m_node(node)
    {
    }

private:
    const KnNodePtr m_node;
};

} // namespace

NodeHold::NodeHold(KnFieldContainer* node)
    : m_node(node && node->getReferenceCount() > 0 ? node : nullptr)
{
    if (m_node)
        m_node->ref();
}

NodeHold::~NodeHold()
{
    if (!m_node)
        return;
    // A loop that runs inside of this one doesn't delete it.
    if (m_node->getReferenceCount() == 1)
        // NOLINTNEXTLINE(bugprone-unhandled-exception-at-new): without memory the program ends
        (new LateRelease(m_node))->deleteLater();
    m_node->unref();
}
