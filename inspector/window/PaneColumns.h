// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QVariantList>

#include <vector>

class QTreeView;

/// Shares the width of a list among its columns. One column takes what the others leave; where
/// that would be less than can be read, the others give way one after the other: they shrink, and
/// then they go. A width that a person gives a column is kept for when there is room.
class PaneColumns : public QObject {
    Q_OBJECT
public:
    /// How a column gives way. Widths are in pixels.
    struct Sharing {
        int wished;
        int smallest; ///< a column that would be smaller is left out
        bool stays; ///< it isn't left out, but remains at its smallest
    };

    /// A child of the view, whose columns have the widths that are wished for. The stretched column
    /// wants room for so many characters. `others` are all other columns, those first that give way
    /// first; if they are several, the last of them stays.
    PaneColumns(QTreeView* view, int characters, std::vector<int> others);

    /// The widths that are wished for, to be kept from one start to the next.
    QVariantList widths() const;
    /// Ignored if these are no widths of such columns.
    void setWidths(const QVariantList& widths);

    /// The width of each column, 0 for one that is left out, so that `room` has `stretched` left,
    /// as far as that can be. Those first that give way first.
    static std::vector<int> share(int room, int stretched, const std::vector<Sharing>& columns);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit(int room);
    void noteWidth(int column, int width);

    QTreeView* const m_view; // the parent
    const int m_characters;
    const std::vector<int> m_columns; // those first that give way first
    std::vector<Sharing> m_sharing; // of the same columns
    bool m_fitting = false;
};
