// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTest>
#include <QTreeView>

/// Clicks the row that begins with this text, wherever it stands in the tree.
inline void clickRow(QTreeView* tree, const QString& text)
{
    const QModelIndex top = tree->model()->index(0, 0);
    const auto how = Qt::MatchExactly | Qt::MatchRecursive;
    const QModelIndex found = tree->model()->match(top, Qt::DisplayRole, text, 1, how).value(0);
    tree->scrollTo(found);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(found).center());
    QCoreApplication::processEvents();
}
