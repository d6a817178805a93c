// SPDX-License-Identifier: BSD-3-Clause
#include "FieldPaste.h"

#include "FieldLines.h"
#include "FieldTyping.h"
#include "KnFieldContainer.h"
#include "KnMField.h"
#include "SceneText.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

QString tr(const char* text) { return QCoreApplication::translate("FieldPaste", text); }

// More of them would fill the panel.
constexpr int shownMessages = 4;
// Of what should be a name, in characters.
constexpr qsizetype shownLength = 40;

/// What was left out, and how much was not.
QString report(const FieldStep& step, QStringList messages)
{
    const int count = step.count();
    messages.removeDuplicates();
    if (messages.isEmpty() && step.readOnlyNote().isEmpty())
        return QString();
    const qsizetype more = messages.size() - shownMessages;
    if (more > 0) {
        messages = messages.first(shownMessages);
        messages += tr("and %1 more").arg(more);
    }
    if (!step.readOnlyNote().isEmpty())
        messages += step.readOnlyNote();
    const QString lines = messages.join(QLatin1Char('\n'));
    if (count == 0)
        return lines;
    return (count == 1 ? tr("1 field pasted, but not all:")
                       : tr("%1 fields pasted, but not all:").arg(count))
        + QLatin1Char('\n') + lines;
}

/// A text from anywhere; people write texts without quotes.
bool setLoneValue(FieldStep& step, KnField& field, const QString& text)
{
    if (dynamic_cast<KnMField*>(&field))
        return step.setText(field, arrayText(field, text));
    if (!isText(field))
        return step.setText(field, toKbString(text));
    QString value = text;
    if (value.endsWith(u'\n'))
        value.chop(1);
    const bool inQuotes = value.trimmed().startsWith(u'"');
    return (inQuotes && step.setText(field, toKbString(value)))
        || step.setText(field, quoted(value));
}

/// Whether the lines name the fields that their values are for.
bool areNamed(const std::vector<KnFieldContainer*>& nodes, const std::vector<KnField*>& chosen,
    const std::vector<FieldLine>& lines)
{
    if (nodes.empty() || !areFieldLines(lines, *nodes.front()))
        return false;
    // A sentence may begin with the name of a field.
    if (chosen.size() != 1 || !isText(*chosen.front()))
        return true;
    return lines.front().name == fieldName(*chosen.front()) && lines.front().value.startsWith(u'"');
}

} // namespace

QString pasteOntoFields(const std::vector<KnFieldContainer*>& nodes,
    const std::vector<KnField*>& chosen, const QString& text, bool named)
{
    if (text.trimmed().isEmpty())
        return tr("There is no text to paste");
    const std::vector<FieldLine> lines = readFieldLines(text);
    named = named || areNamed(nodes, chosen, lines);
    if (chosen.empty() || (named && lines.size() > 1))
        return pasteOntoNodes(nodes, text);
    FieldStep step;
    QStringList messages;
    for (KnField* field : chosen) {
        if (!(named ? step.setText(*field, toKbString(lines.front().value.toString()))
                    : setLoneValue(step, *field, text))
            && !field->isReadOnly())
            messages += step.refusal();
    }
    const QString message = report(step, messages);
    step.finish(tr("Paste into %1 fields").arg(step.count()));
    return message;
}

QString pasteOntoNodes(const std::vector<KnFieldContainer*>& nodes, const QString& text)
{
    FieldStep step;
    QStringList messages;
    const std::vector<FieldLine> lines = readFieldLines(text);
    for (KnFieldContainer* node : nodes) {
        for (const FieldLine& line : lines) {
            KnField* const field = fieldNamed(*node, line.name);
            if (!field)
                messages
                    += tr("%1 has no field %2")
                           .arg(typeName(node->getObjectType()),
                               line.name.first(std::min<qsizetype>(line.name.size(), shownLength))
                                   .toString());
            else if (!step.setText(*field, toKbString(line.value.toString()))
                && !field->isReadOnly())
                messages += step.refusal();
        }
    }
    const QString message = report(step, messages);
    step.finish(tr("Paste %1 fields into %2").arg(step.count()).arg(nodesLabel(nodes)));
    return message;
}

QString pasteRows(KnMField& array, int start, FieldStep::Rows how, const QString& text, bool named)
{
    const std::vector<FieldLine> lines = named ? readFieldLines(text) : std::vector<FieldLine>();
    if (lines.size() > 1)
        return tr("The rows of one field can be pasted here, but these are several fields");
    FieldStep step;
    const QString rows = named && !lines.empty() ? lines.front().value.toString() : text;
    step.setRows(array, start, how, arrayText(array, rows));
    step.finish(QString());
    return step.refusal();
}
