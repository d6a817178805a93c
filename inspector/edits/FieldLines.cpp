// SPDX-License-Identifier: BSD-3-Clause
#include "FieldLines.h"

#include "FieldTyping.h"
#include "KnFieldContainer.h"
#include "KnMField.h"
#include "KnReadErrorCapture.h"
#include "SceneText.h"

#include <QStringList>

#include <algorithm>
#include <memory>

namespace {

FieldLine readLine(QStringView line)
{
    const auto* const blank = std::find_if(
        line.begin(), line.end(), [](QChar character) { return character.isSpace(); });
    const qsizetype length = blank - line.begin();
    return { line.first(length), line.sliced(length).trimmed() };
}

/// Whether the cells of a line are rows of their own rather than the components of one row.
bool hasRowInCell(const KnField& array, const QString& line)
{
    if (!line.contains(u'\t'))
        return false;
    const std::unique_ptr<KnTypedObject> fresh(array.getObjectType().createInstance());
    auto& scratch = static_cast<KnMField&>(*fresh);
    const KnReadErrorCapture capture;
    scratch.setNum(1);
    return !scratch.set1(0, toKbString(line));
}

} // namespace

QString fieldLines(const std::vector<KnField*>& fields)
{
    QStringList lines;
    KbString value;
    for (const KnField* field : fields) {
        field->get(value);
        lines += fieldName(*field) + QLatin1Char(' ') + toQString(value);
    }
    return lines.join(QLatin1Char('\n'));
}

std::vector<FieldLine> readFieldLines(const QString& text)
{
    std::vector<FieldLine> lines;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        if (!line.trimmed().isEmpty())
            lines.push_back(readLine(line.trimmed()));
    }
    return lines;
}

bool areFieldLines(const std::vector<FieldLine>& lines, KnFieldContainer& node)
{
    return !lines.empty()
        && std::all_of(lines.begin(), lines.end(), [&node](const FieldLine& line) {
               return !line.value.isEmpty() && fieldNamed(node, line.name);
           });
}

std::vector<KnField*> fieldsOf(KnFieldContainer& node)
{
    std::vector<KnField*> fields;
    const KnFieldData* const data = node.getContainerFieldData();
    fields.reserve(static_cast<std::size_t>(data->getNum()));
    for (int i = 0; i < data->getNum(); ++i)
        fields.push_back(data->getField(&node, i));
    return fields;
}

KnField* fieldNamed(KnFieldContainer& node, QStringView name)
{
    const KnFieldData* const data = node.getContainerFieldData();
    const KbString wanted = toKbString(name.toString());
    for (int i = 0; i < data->getNum(); ++i) {
        if (data->getName(i).getString() == wanted)
            return data->getField(&node, i);
    }
    return nullptr;
}

KbString arrayText(const KnField& array, const QString& text)
{
    if (text.trimmed().startsWith(u'['))
        return toKbString(text);
    QStringList lines = text.split(u'\n');
    while (!lines.isEmpty() && lines.constLast().trimmed().isEmpty())
        lines.removeLast();
    const bool texts = isTextArray(array);
    const bool cells = texts || (!lines.isEmpty() && hasRowInCell(array, lines.constFirst()));
    std::string result = "[ ";
    const char* separator = "";
    const auto append = [&](const QString& row) {
        const bool quote = texts && !row.trimmed().startsWith(u'"');
        result += separator + (quote ? quoted(row) : toKbString(row)).toUtf8();
        separator = ", ";
    };
    for (QString& line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (!cells) {
            append(line);
            continue;
        }
        for (const QString& cell : line.split(u'\t'))
            append(cell);
    }
    return KbString(result + " ]");
}
