// SPDX-License-Identifier: BSD-3-Clause
#include "SceneText.h"

#include "CrvNodeDetails.h"
#include "KnFieldContainer.h"
#include "KnMField.h"
#include "KnSFImage.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

const QChar ellipsis(0x2026);

// Converts no more of a long text than is shown.
QString cutText(const KbString& text, int maxLength)
{
    const std::string& utf8 = text.toUtf8();
    const auto size = static_cast<qsizetype>(utf8.size());
    QString line = QString::fromUtf8(utf8.data(), std::min<qsizetype>(size, 4 * maxLength));
    if (line.size() <= maxLength)
        return line;
    // Half of a surrogate pair would be drawn as a box.
    const bool splitsPair = line.at(maxLength - 1).isHighSurrogate();
    line.truncate(splitsPair ? maxLength - 1 : maxLength);
    return line + ellipsis;
}

QString arraySummary(const KnMField& field, int maxLength)
{
    const int num = field.getNum();
    if (num == 0)
        return QCoreApplication::translate("SceneText", "no values");
    QString line;
    int row = 0;
    for (KbString value; row < num && line.size() < maxLength; ++row) {
        if (row > 0)
            line += QStringLiteral(", ");
        field.get1(row, value);
        line += cutText(value, maxLength);
    }
    if (line.size() > maxLength) {
        line.truncate(maxLength);
        line += ellipsis;
    } else if (row < num) {
        line += QStringLiteral(", ") + ellipsis;
    }
    const QString count = num == 1 ? QCoreApplication::translate("SceneText", "1 value")
                                   : QCoreApplication::translate("SceneText", "%1 values").arg(num);
    return QStringLiteral("%1:  %2").arg(count, line);
}

/// The bounds of a field's numbers; empty if there are none.
QString rangeText(const KnFieldInfo& info)
{
    const QString minimum = QString::number(info.minimum);
    const QString maximum = QString::number(info.maximum);
    if (std::isfinite(info.minimum) && std::isfinite(info.maximum))
        return QCoreApplication::translate("SceneText", "%1 to %2").arg(minimum, maximum);
    if (std::isfinite(info.minimum))
        return QCoreApplication::translate("SceneText", "at least %1").arg(minimum);
    if (std::isfinite(info.maximum))
        return QCoreApplication::translate("SceneText", "at most %1").arg(maximum);
    return QString();
}

QString imageSummary(const KnSFImage& image)
{
    KbVec2s size;
    int components = 0;
    image.getValue(size, components);
    if (size[0] == 0 || size[1] == 0)
        return QCoreApplication::translate("SceneText", "no pixels");
    return QCoreApplication::translate("SceneText", "%1 %2 %3 pixels of %4 bytes")
        .arg(size[0])
        .arg(QChar(0x00D7))
        .arg(size[1])
        .arg(components);
}

} // namespace

QString typeName(const KnType& type) { return toQString(type.getName().getString()); }

QString toolTipText(const QString& text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

QString nodeLabel(const KnFieldContainer& node)
{
    return node.getName().isEmpty() ? typeName(node.getObjectType())
                                    : toQString(node.getName().getString());
}

QString fieldName(const KnField& field)
{
    const KnFieldContainer* node = field.getContainer();
    if (!node)
        return QString();
    const KnFieldData* data = node->getContainerFieldData();
    const int index = data->getIndex(node, &field);
    return index < 0 ? QString() : toQString(data->getName(index).getString());
}

QString fieldMeaning(const KnFieldInfo& info)
{
    QStringList numbers { QString::fromUtf8(info.unit), rangeText(info) };
    numbers.removeAll(QString());
    const QString sentence = QString::fromUtf8(info.sentence);
    return numbers.isEmpty()
        ? sentence
        : QStringLiteral("%1 (%2)").arg(sentence, numbers.join(QStringLiteral(", "))).trimmed();
}

QString fieldNote(const KnField& field)
{
    QStringList lines;
    if (const KnFieldContainer* const node = field.getContainer()) {
        const KnFieldData* const fields = node->getContainerFieldData();
        lines += fieldMeaning(fields->getInfo(fields->getIndex(node, &field)));
    }
    if (const CrvNodeDetails* const details = CrvNodeDetails::of(field))
        lines += details->fieldNote(field).split(u'\n');
    if (field.isReadOnly())
        lines += QCoreApplication::translate("SceneText", "read-only");
    lines.removeAll(QString());
    lines.removeDuplicates();
    return lines.join(u'\n');
}

QString nodeNote(const KnFieldContainer& node)
{
    const CrvNodeDetails* const details = CrvNodeDetails::of(node);
    const QString note = details ? details->nodeNote(node) : QString();
    return note.isEmpty() ? nodeLabel(node) : nodeLabel(node) + u'\n' + note;
}

QString fieldSummary(const KnField& field, int maxLength)
{
    if (const auto* array = dynamic_cast<const KnMField*>(&field))
        return arraySummary(*array, maxLength);
    if (const auto* image = dynamic_cast<const KnSFImage*>(&field))
        return imageSummary(*image);
    KbString text;
    field.get(text);
    return cutText(text, maxLength);
}
