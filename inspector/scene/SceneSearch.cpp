// SPDX-License-Identifier: BSD-3-Clause
#include "SceneSearch.h"

#include "KnFieldContainer.h"
#include "NearNames.h"
#include "SceneText.h"

#include <algorithm>

namespace {

constexpr std::size_t maxCandidates = 10;

QString suggestion(const QString& text, const QStringList& names)
{
    QStringList quoted;
    for (const QString& name : nearNames(text, names))
        quoted += QStringLiteral("\"%1\"").arg(NodeAddress::escaped(name));
    return quoted.isEmpty()
        ? QString()
        : SceneSearch::tr("; did you mean %1?").arg(quoted.join(SceneSearch::tr(" or ")));
}

/// Why a step of an address leads nowhere.
QString missingStep(const NodeAddress& address, const NodePlaces::Result& result)
{
    const NodeAddress::Step& step = address.steps[result.failedStep];
    if (result.labelled > 0) {
        return SceneSearch::tr("no node \"%1\": the last one is \"%2\"")
            .arg(NodeAddress::stepText(step),
                NodeAddress::stepText({ step.label, static_cast<int>(result.labelled) - 1 }));
    }
    QStringList labels;
    for (const KnFieldContainer* const node : result.considered)
        labels << nodeLabel(*node) << typeName(node->getObjectType());
    const QString name = NodeAddress::escaped(step.label);
    const QString place = result.failedStep == 0
        ? address.fromRoot ? SceneSearch::tr("no root \"%1\"").arg(name)
                           : SceneSearch::tr("no node \"%1\" in the scene").arg(name)
        : SceneSearch::tr("no node \"%1\" in \"%2\"")
              .arg(name, NodeAddress::stepText(address.steps[result.failedStep - 1]));
    return place + suggestion(step.label, labels);
}

} // namespace

SceneSearch::SceneSearch(const NodePlaces::Nodes& roots)
    : m_places(roots)
{
}

bool SceneSearch::find(const QString& text)
{
    const Outcome outcome = findNode(text);
    const qsizetype point = NodeAddress::lastIndexOf(text, u'.');
    if (outcome != Outcome::Missing || point < 0)
        return outcome == Outcome::Found;
    return findField(text, point);
}

bool SceneSearch::findField(const QString& text)
{
    const qsizetype point = NodeAddress::lastIndexOf(text, u'.');
    if (point >= 0)
        return findField(text, point);
    m_error = tr("\"%1\" names no field: NODE.FIELD expected").arg(text);
    return false;
}

bool SceneSearch::findField(const QString& text, qsizetype point)
{
    return findNode(QStringView(text).left(point)) == Outcome::Found
        && chooseField(text.left(point), text.mid(point + 1));
}

SceneSearch::Outcome SceneSearch::findNode(QStringView text)
{
    m_node = nullptr;
    m_field = nullptr;
    const std::optional<NodeAddress> address = NodeAddress::parse(text, &m_error);
    if (!address)
        return Outcome::Missing;
    const NodePlaces::Result result = m_places.find(*address);
    if (result.nodes.size() > 1) {
        m_error = ambiguity(text, result.nodes);
        return Outcome::Ambiguous;
    }
    if (result.nodes.empty()) {
        m_error = missingStep(*address, result);
        return Outcome::Missing;
    }
    m_node = result.nodes.front();
    return Outcome::Found;
}

bool SceneSearch::chooseField(const QString& nodeText, const QString& name)
{
    m_field = m_node->getField(KbName(toKbString(name)));
    if (m_field)
        return true;
    const KnFieldData* const data = m_node->getContainerFieldData();
    QStringList names;
    std::vector<int> fits;
    for (int i = 0; i < data->getNum(); ++i) {
        names += toQString(data->getName(i));
        if (names.constLast().compare(name, Qt::CaseInsensitive) == 0)
            fits.push_back(i);
    }
    if (fits.size() == 1)
        m_field = data->getField(m_node, fits.front());
    else
        m_error
            = tr("node \"%1\" has no field \"%2\"").arg(nodeText, name) + suggestion(name, names);
    return m_field != nullptr;
}

QString SceneSearch::ambiguity(QStringView text, const NodePlaces::Nodes& nodes) const
{
    QString error = tr("\"%1\" may be any of %2 nodes:").arg(text, QString::number(nodes.size()));
    const std::size_t shown = std::min(nodes.size(), maxCandidates);
    for (std::size_t i = 0; i < shown; ++i)
        error += QStringLiteral("\n  ") + m_places.path(nodes[i]);
    if (shown < nodes.size())
        error += QStringLiteral("\n  ") + tr("and %1 more").arg(nodes.size() - shown);
    return error;
}
