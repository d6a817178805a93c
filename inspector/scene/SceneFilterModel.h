// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QSortFilterProxyModel>

/// Shows only the nodes whose name or type contains the filter text, upper or lower case, and their
/// ancestors.
class SceneFilterModel : public QSortFilterProxyModel {
    Q_OBJECT
public:
    explicit SceneFilterModel(QObject* parent = nullptr);

    void setFilterText(const QString& text);
    bool isFiltering() const { return !m_text.isEmpty(); }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    QString m_text;
};
