// SPDX-License-Identifier: BSD-3-Clause
#include "SceneScript.h"

#include "KnField.h"
#include "KnFieldContainer.h"
#include "KnReadErrorCapture.h"
#include "SceneText.h"

#include <algorithm>

namespace {

void appendText(QByteArray& output, const KnField& field)
{
    KbString text;
    field.get(text);
    output.append(QByteArrayView(text.toUtf8()));
}

} // namespace

SceneScript::SceneScript(const NodePlaces::Nodes& roots)
    : m_search(roots)
{
}

bool SceneScript::run(const QList<Step>& steps)
{
    return std::all_of(steps.begin(), steps.end(), [this](const Step& step) { return take(step); });
}

bool SceneScript::take(const Step& step)
{
    if (step.kind == Step::Kind::List || step.kind == Step::Kind::Describe) {
        list(step.kind == Step::Kind::Describe);
        return true;
    }
    if (!m_search.findField(step.address)) {
        m_error = m_search.errorText();
        return false;
    }
    if (step.kind == Step::Kind::Set)
        return set(step.address, step.text);
    appendText(m_output, *m_search.field());
    m_output.append('\n');
    return true;
}

bool SceneScript::set(const QString& address, const QString& text)
{
    const KnReadErrorCapture capture;
    if (m_search.field()->set(toKbString(text)))
        return true;
    const QString reason = toQString(capture.getText());
    m_error = QStringLiteral("%1: %2").arg(address, reason.isEmpty() ? tr("refused text") : reason);
    return false;
}

void SceneScript::list(bool describe)
{
    for (KnFieldContainer* const node : m_search.places().nodes()) {
        const QByteArray path = m_search.places().path(node).toUtf8();
        m_output += path + '\t' + typeName(node->getObjectType()).toUtf8() + '\n';
        const KnFieldData* const data = node->getContainerFieldData();
        for (int i = 0; i < data->getNum(); ++i) {
            const KnField* const field = data->getField(node, i);
            m_output += path + '.' + toQString(data->getName(i)).toUtf8() + '\t'
                + typeName(field->getObjectType()).toUtf8() + '\t';
            appendText(m_output, *field);
            if (describe)
                m_output += '\t' + fieldNote(*field).replace(u'\n', QStringLiteral(", ")).toUtf8();
            m_output += '\n';
        }
    }
}
