// SPDX-License-Identifier: BSD-3-Clause
#include "PaneColumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace {

// In characters: what is still worth being shown of a column, and of the one that stays.
constexpr int smallestColumn = 8;
constexpr int smallestLast = 13;

constexpr int maxWidth = 10000; // in pixels

} // namespace

PaneColumns::PaneColumns(QTreeView* view, int characters, std::vector<int> others)
    : QObject(view)
    , m_view(view)
    , m_characters(characters)
    , m_columns(std::move(others))
{
    setObjectName(QStringLiteral("columns"));
    const int character = m_view->fontMetrics().averageCharWidth();
    for (const int column : m_columns) {
        const int width = m_view->header()->sectionSize(column);
        const bool stays = m_columns.size() > 1 && column == m_columns.back();
        const int smallest = (stays ? smallestLast : smallestColumn) * character;
        m_sharing.push_back({ width, std::min(width, smallest), stays });
    }
    m_view->viewport()->installEventFilter(this);
    connect(m_view->header(), &QHeaderView::sectionResized, this,
        [this](int column, int, int width) { noteWidth(column, width); });
}

QVariantList PaneColumns::widths() const
{
    QVariantList widths;
    for (const Sharing& column : m_sharing)
        widths.append(column.wished);
    return widths;
}

void PaneColumns::setWidths(const QVariantList& widths)
{
    const bool fits = widths.size() == static_cast<qsizetype>(m_sharing.size())
        && std::all_of(widths.begin(), widths.end(),
            [](const QVariant& width) { return width.toInt() > 0 && width.toInt() <= maxWidth; });
    if (!fits)
        return;
    for (std::size_t i = 0; i < m_sharing.size(); ++i)
        m_sharing[i].wished = widths.at(static_cast<qsizetype>(i)).toInt();
    fit(m_view->viewport()->width());
}

std::vector<int> PaneColumns::share(int room, int stretched, const std::vector<Sharing>& columns)
{
    int missing = stretched - room;
    for (const Sharing& column : columns)
        missing += column.wished;
    std::vector<int> widths;
    for (const Sharing& column : columns) {
        int width = column.wished - std::max(missing, 0);
        if (width < column.smallest)
            width = column.stays ? std::min(column.smallest, column.wished) : 0;
        missing -= column.wished - width;
        widths.push_back(width);
    }
    return widths;
}

bool PaneColumns::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        fit(static_cast<QResizeEvent*>(event)->size().width());
    return QObject::eventFilter(watched, event);
}

void PaneColumns::fit(int room)
{
    const QScopedValueRollback fitting(m_fitting, true);
    QHeaderView& header = *m_view->header();
    const int character = m_view->fontMetrics().averageCharWidth();
    const std::vector<int> widths = share(room, m_characters * character, m_sharing);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        header.setSectionHidden(m_columns[i], widths[i] == 0);
        if (widths[i] > 0)
            header.resizeSection(m_columns[i], widths[i]);
    }
}

void PaneColumns::noteWidth(int column, int width)
{
    const auto found = std::find(m_columns.begin(), m_columns.end(), column);
    if (!m_fitting && width > 0 && found != m_columns.end())
        m_sharing[static_cast<std::size_t>(found - m_columns.begin())].wished = width;
}
