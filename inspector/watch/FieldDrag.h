// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>

#include <functional>

class KnField;
class QAbstractItemView;

/// Lets the rows of a view, each of which stands for a field, be dragged as FieldMimeData.
class FieldDrag : public QObject {
    Q_OBJECT
public:
    using FieldOf = std::function<KnField*(const QModelIndex& index)>;

    /// A child of the view. `fieldOf` gives null for a row that can't be dragged.
    FieldDrag(QAbstractItemView* view, FieldOf fieldOf);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void start();

    QAbstractItemView* m_view;
    FieldOf m_fieldOf;
    QPersistentModelIndex m_pressed; // valid while the left button is down on a row
    QPoint m_position; // of the press
};
