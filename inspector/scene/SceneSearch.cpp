// SPDX-License-Identifier: BSD-3-Clause
#include "SceneSearch.h"

#include "KnGroup.h"
#include "SceneText.h"

namespace {

template <class Predicate>
KnFieldContainer* findFirst(KnFieldContainer* node, const Predicate& matches)
{
    if (!node || matches(*node))
        return node;
    const auto* group = dynamic_cast<const KnGroup*>(node);
    for (int i = 0; group && i < group->getNumChildren(); ++i) {
        if (KnFieldContainer* found = findFirst(group->getChild(i), matches))
            return found;
    }
    return nullptr;
}

KnFieldContainer* findNode(KnFieldContainer* root, const QString& text)
{
    const KbName name(toKbString(text));
    if (name.isEmpty())
        return nullptr;
    if (KnFieldContainer* found
        = findFirst(root, [&](const KnFieldContainer& n) { return n.getName() == name; }))
        return found;
    return findFirst(
        root, [&](const KnFieldContainer& n) { return n.getObjectType().getName() == name; });
}

} // namespace

bool SceneSearch::find(KnFieldContainer* root, const QString& text)
{
    m_field = nullptr;
    m_node = findNode(root, text);
    if (m_node)
        return true;
    // A node's name may contain dots, a field's never does.
    const qsizetype point = text.lastIndexOf(QLatin1Char('.'));
    if (point >= 0)
        m_node = findNode(root, text.left(point));
    if (!m_node) {
        m_error = tr("no node \"%1\" in the scene").arg(point < 0 ? text : text.left(point));
        return false;
    }
    const QString name = text.mid(point + 1);
    m_field = m_node->getField(KbName(toKbString(name)));
    if (!m_field)
        m_error = tr("node \"%1\" has no field \"%2\"").arg(text.left(point), name);
    return m_field != nullptr;
}
