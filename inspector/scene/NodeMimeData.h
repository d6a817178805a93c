// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMimeData>
#include <QModelIndexList>
#include <QPersistentModelIndex>

/// Rows of the scene's tree that are being dragged. They live in this process and nowhere else.
class NodeMimeData : public QMimeData {
    Q_OBJECT
public:
    explicit NodeMimeData(const QModelIndexList& indexes)
    {
        for (const QModelIndex& index : indexes) {
            if (index.column() == 0)
                m_rows.append(QPersistentModelIndex(index));
        }
    }

    static QString format() { return QStringLiteral("application/x-corvane-nodes"); }

    const QList<QPersistentModelIndex>& rows() const { return m_rows; }
    QStringList formats() const override { return { format() }; }
    bool hasFormat(const QString& name) const override { return name == format(); }

    /// Those that are still there; none if something else is dragged, or rows of another model.
    static QModelIndexList rowsOf(const QMimeData* data, const QAbstractItemModel* model)
    {
        QModelIndexList rows;
        if (const auto* const own = qobject_cast<const NodeMimeData*>(data)) {
            for (const QPersistentModelIndex& row : own->m_rows) {
                if (row.isValid() && row.model() == model)
                    rows.append(row);
            }
        }
        return rows;
    }

private:
    QList<QPersistentModelIndex> m_rows;
};
