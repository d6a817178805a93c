// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTest>

#include <array>

/// The data of a test function whose rows hold texts; a row is named after its texts.
inline void addTextRows(std::initializer_list<std::initializer_list<const char*>> rows)
{
    QTest::addColumn<QStringList>("texts");
    for (const auto& row : rows) {
        QStringList texts;
        for (const char* text : row)
            texts << QString::fromUtf8(text);
        QTest::newRow(qPrintable(texts.join(u", "))) << texts;
    }
}

/// The texts of the current row, empty ones behind its end.
template <std::size_t Count>
std::array<QString, Count> textRow()
{
    QFETCH(const QStringList, texts);
    std::array<QString, Count> row;
    for (std::size_t i = 0; i < Count; ++i)
        row[i] = texts.value(static_cast<qsizetype>(i));
    return row;
}
