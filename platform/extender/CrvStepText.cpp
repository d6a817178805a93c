// SPDX-License-Identifier: BSD-3-Clause
#include "CrvStepText.h"

#include "CrvChangeRecorder.h"
#include "CrvStrings.h"
#include "KnFieldContainer.h"
#include "KnMField.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

constexpr qsizetype maxValueLength = 32;

QString tr(const char* text) { return QCoreApplication::translate("CrvUndoSteps", text); }

QString cutValue(const KbString& text)
{
    const std::string& utf8 = text.toUtf8();
    // No more than can be shown, however long it is.
    const auto size = std::min<qsizetype>(static_cast<qsizetype>(utf8.size()), 4 * maxValueLength);
    QString line = QString::fromUtf8(utf8.data(), size).simplified();
    if (line.size() <= maxValueLength)
        return line;
    const bool splitsPair = line.at(maxValueLength - 1).isHighSurrogate();
    line.truncate(splitsPair ? maxValueLength - 1 : maxValueLength);
    return line + QChar(0x2026);
}

QString fromTo(const KbString& before, const KbString& after)
{
    return QStringLiteral("%1 %2 %3").arg(cutValue(before), QChar(0x2192), cutValue(after));
}

QString nodeName(const KnFieldContainer& node)
{
    return toQString(node.getName().isEmpty() ? node.getObjectType().getName() : node.getName());
}

/// "Node.field"; empty for a field that stands alone.
QString fieldPlace(const KnField& field)
{
    const KnFieldContainer* const node = field.getContainer();
    if (!node)
        return QString();
    const KnFieldData* const data = node->getContainerFieldData();
    return nodeName(*node) + QLatin1Char('.')
        + toQString(data->getName(data->getIndex(node, &field)));
}

// Rows are counted from 1, as the editors do.
QString countedRows(int count, int start, const char* one, const char* many)
{
    return count == 1 ? tr(one).arg(start + 1) : tr(many).arg(count).arg(start + 1);
}

QString splicesText(const std::vector<CrvFieldRecord::Splice>& splices, int now)
{
    int start = splices.front().start;
    int inserted = 0;
    int removed = 0;
    for (const CrvFieldRecord::Splice& splice : splices) {
        start = std::min(start, splice.start);
        inserted += splice.inserted;
        removed += splice.removed;
    }
    if (removed == 0)
        return countedRows(inserted, start, "1 row added at %1", "%1 rows added at %2");
    if (inserted == 0)
        return countedRows(removed, start, "1 row deleted at %1", "%1 rows deleted at %2");
    return now == 1 ? tr("set to 1 row") : tr("set to %1 rows").arg(now);
}

QString rowsText(const CrvFieldRecord& record)
{
    KnMField& array = *record.array();
    std::vector<const CrvFieldRecord::Rows*> changed;
    int count = 0;
    for (const CrvFieldRecord::Rows& rows : record.rows) {
        if (array.holdsRows(rows.start, *rows.before))
            continue;
        changed.push_back(&rows);
        count += rows.before->getNum();
    }
    if (changed.size() == 2 && count == 2 && !record.hasUnknownRows) {
        const auto [first, second] = std::minmax(changed[0]->start, changed[1]->start);
        const CrvFieldRecord::Rows& a = *changed[0];
        const CrvFieldRecord::Rows& b = *changed[1];
        if (array.holdsRows(a.start, *b.before) && array.holdsRows(b.start, *a.before))
            return tr("rows %1 and %2 swapped").arg(first + 1).arg(second + 1);
    }
    if (record.hasUnknownRows || count != 1)
        return record.hasUnknownRows || count > 0 ? tr("rows changed") : QString();
    KbString before;
    KbString after;
    changed[0]->before->get1(0, before);
    array.get1(changed[0]->start, after);
    return tr("row %1: %2").arg(changed[0]->start + 1).arg(fromTo(before, after));
}

QString writtenText(const CrvFieldRecord& record)
{
    if (const KnMField* const array = record.array()) {
        return record.splices.empty() ? rowsText(record)
                                      : splicesText(record.splices, array->getNum());
    }
    if (record.isLarge)
        return QString();
    KbString now;
    record.field->get(now);
    return now == record.before ? QString() : fromTo(record.before, now);
}

QString valueText(const CrvFieldRecord& record)
{
    const QString text = writtenText(record);
    return record.isDefault && !text.isEmpty() ? tr("default") : text;
}

QString recordText(const CrvFieldRecord& record)
{
    QStringList what { valueText(record) };
    if (record.field->isIgnored() != record.ignoredBefore)
        what += record.field->isIgnored() ? tr("ignored") : tr("not ignored");
    what.removeAll(QString());
    if (what.isEmpty())
        return fieldPlace(*record.field);
    return fieldPlace(*record.field) + QStringLiteral(": ") + what.join(QStringLiteral(", "));
}

} // namespace

QString stepText(const CrvChanges& changes)
{
    const CrvFieldRecord* only = nullptr;
    int count = 0;
    for (const CrvFieldRecord& record : changes.records) {
        if (!record.isChanged)
            continue;
        only = &record;
        ++count;
    }
    if (count == 0)
        return QString();
    // A line break would split the text in two for the undo stack.
    if (count == 1)
        return recordText(*only).simplified();
    const auto isOfSameNode = [only](const CrvFieldRecord& record) {
        return !record.isChanged || record.node.get() == only->node.get();
    };
    if (std::all_of(changes.records.begin(), changes.records.end(), isOfSameNode))
        return tr("%1: %2 fields").arg(nodeName(*only->node.get())).arg(count).simplified();
    return tr("%1 fields").arg(count);
}

QString editText(const KnField* field)
{
    const QString place = field ? fieldPlace(*field) : QString();
    return place.isEmpty() ? tr("Edit") : tr("Edit %1").arg(place).simplified();
}
