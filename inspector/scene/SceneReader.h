// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvJsonReader.h"
#include "KnNodePtr.h"

#include <utility>
#include <vector>

class KnField;

/// Reads a scene file: JSON with one node at the root, each node with its type, name, fields in the
/// kernel's text form, and children. A bad file is refused as a whole.
class SceneReader : public CrvJsonReader {
    Q_DECLARE_TR_FUNCTIONS(SceneReader)
public:
    /// The root of the new graph, which nothing else refers to. Null for a refused file.
    KnNodePtr readFile(const QString& fileName);
    /// The same for the content of a file; `fileName` only stands in messages.
    KnNodePtr readText(const QByteArray& json, const QString& fileName);
    /// The small scene that the program starts with.
    KnNodePtr readStarter();

    /// Those beside the one that was read last, if the file has several roots.
    std::vector<KnNodePtr> takeFurtherRoots() { return std::exchange(m_furtherRoots, {}); }

    /// Nodes in the graph that was read last.
    int nodeCount() const { return m_nodeCount; }

private:
    bool build(const CrvJsonValue& root) override;
    KnNodePtr takeRoot(bool accepted);
    bool readRoots(const CrvJsonValue& value, const CrvJsonPlace& place);
    KnNodePtr readNode(const CrvJsonValue& value, const CrvJsonPlace& place, int depth);
    bool readFields(KnFieldContainer& node, const CrvJsonValue& value, const CrvJsonPlace& place);
    bool readField(KnField& field, const CrvJsonValue& value, const CrvJsonPlace& place);
    bool readChildren(
        KnFieldContainer& node, const CrvJsonValue& value, const CrvJsonPlace& place, int depth);
    KnNodePtr createNode(const CrvJsonValue& object, const CrvJsonPlace& place);

    KnNodePtr m_root;
    std::vector<KnNodePtr> m_furtherRoots;
    int m_nodeCount = 0;
};
