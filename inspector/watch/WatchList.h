// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WatchClock.h"
#include "WatchRange.h"

#include <QAbstractTableModel>
#include <QPalette>

#include <memory>
#include <optional>
#include <vector>

class KnField;
class WatchedValue;

/// The watched numbers, one row each: its colour and name, what it is, and the least and the most
/// that it was during the time shown. It samples only while it is told to.
class WatchList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { NameColumn, ValueColumn, LowColumn, HighColumn, ColumnCount };

    explicit WatchList(QObject* parent = nullptr);
    ~WatchList() override;

    WatchClock& clock() { return m_clock; }
    const WatchClock& clock() const { return m_clock; }
    const WatchedValue& value(int row) const;
    /// Of what a row held during the time shown.
    const WatchRange& shownRange(int row) const;
    /// When the oldest stored sample was taken.
    double start() const;

    /// Gives the row of a number of a field, a new one if it isn't watched yet; -1 if the field has
    /// no such number.
    int add(KnField& field, int component);
    /// Attaches all sensors, or none. A node that has died while none were counts as gone; one that
    /// has left the host's graph by then can't be told from that.
    void setSampling(bool sampling);
    /// What the texts are about. `ruler` is the time of the values; none for the latest ones.
    void show(double from, double to, std::optional<double> ruler);
    /// The palette that the colours are to be seen on.
    void setPalette(const QPalette& palette);
    QString toCsv() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

private:
    struct Row;

    QString text(const Row& row, int column) const;
    int freeColor() const;
    void follow(const KnField* editedField);
    void setPaused(bool paused);

    WatchClock m_clock; // outlives the rows
    std::vector<Row> m_rows;
    std::optional<double> m_ruler;
    QPalette m_palette;
    bool m_sampling = false;
};
