// SPDX-License-Identifier: BSD-3-Clause
#include "WatchCsv.h"

#include "WatchedValue.h"

#include <limits>

namespace {

constexpr int timeDecimals = 6;
constexpr double never = std::numeric_limits<double>::infinity();

QString quoted(QString text)
{
    const auto isSpecial
        = [](QChar c) { return c == u',' || c == u'"' || c == u'\n' || c == u'\r'; };
    if (std::none_of(text.cbegin(), text.cend(), isSpecial))
        return text;
    text.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/// Walks along the samples of one value.
struct Column {
    const WatchedValue* value;
    std::size_t next = 0;

    double nextTime()
    {
        const WatchSeries& series = value->series();
        for (; next < series.size(); ++next) {
            if (series[next].kind != WatchSample::Kind::Gap)
                return series[next].time;
        }
        return never;
    }
};

} // namespace

QString watchCsv(const std::vector<const WatchedValue*>& values)
{
    QString csv = QStringLiteral("time");
    std::vector<Column> columns;
    for (const WatchedValue* value : values) {
        csv += QLatin1Char(',') + quoted(value->name());
        columns.push_back({ value });
    }
    csv += QLatin1Char('\n');
    for (;;) {
        double time = never;
        for (Column& column : columns)
            time = std::min(time, column.nextTime());
        if (time == never)
            return csv;
        csv += QString::number(time, 'f', timeDecimals);
        for (Column& column : columns) {
            csv += QLatin1Char(',');
            if (column.nextTime() == time)
                csv += column.value->decimalText(column.value->series()[column.next++].value);
        }
        csv += QLatin1Char('\n');
    }
}
