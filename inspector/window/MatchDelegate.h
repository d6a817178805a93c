// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStyledItemDelegate>

class SceneFilterModel;

/// Draws the rows of a filtered tree that don't match themselves paler than the matches below them.
class MatchDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// `filter` outlives it.
    MatchDelegate(const SceneFilterModel* filter, QObject* parent);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    const SceneFilterModel* const m_filter;
};
