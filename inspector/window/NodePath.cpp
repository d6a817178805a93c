// SPDX-License-Identifier: BSD-3-Clause
#include "NodePath.h"

#include <QEvent>

namespace {

const QLatin1String separator(" / ");
const QChar ellipsis(0x2026);

} // namespace

NodePath::NodePath(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("nodePath"));
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    // The tab key passes it by; in the tree, the left arrow key leads up as well.
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMargin(2);
    connect(this, &QLabel::linkActivated, this,
        [this](const QString& link) { Q_EMIT chosen(link.toInt()); });
}

void NodePath::setNames(const QStringList& names)
{
    if (names == m_names)
        return;
    m_names = names;
    setToolTip(names.join(separator).toHtmlEscaped());
    showNames();
}

// The line is there also without a path, so that nothing moves.
QSize NodePath::minimumSizeHint() const { return { 0, fontMetrics().height() + 2 * margin() }; }

void NodePath::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    showNames();
}

void NodePath::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        showNames();
}

void NodePath::showNames()
{
    const QFontMetrics metrics = fontMetrics();
    const int room = width() - 2 * margin();
    const auto last = static_cast<int>(m_names.size()) - 1;
    const auto widthOf = [&](const QString& text) { return metrics.horizontalAdvance(text); };
    // The names that are left out stand behind the first.
    int total = 0;
    for (const QString& name : m_names)
        total += widthOf(name) + widthOf(separator);
    total -= widthOf(separator);
    int next = 1;
    if (total > room && last > 1)
        total += widthOf(ellipsis) + widthOf(separator);
    for (; total > room && next < last; ++next)
        total -= widthOf(m_names.at(next)) + widthOf(separator);

    QStringList shown;
    const auto add = [&](int depth, const QString& name) {
        // A link's own colour can't be read on every palette.
        shown += QStringLiteral("<a href=\"%1\" style=\"color:%2\">%3</a>")
                     .arg(depth)
                     .arg(palette().color(QPalette::WindowText).name(), name.toHtmlEscaped());
    };
    for (int depth = 0; depth <= last; ++depth) {
        if (depth == 1 && next > 1)
            shown += ellipsis;
        if (depth > 0 && depth < next)
            continue;
        const bool isTight = total > room;
        add(depth,
            isTight ? metrics.elidedText(m_names.at(depth), Qt::ElideRight,
                room / (last > 0 ? 2 : 1) - widthOf(separator) - widthOf(ellipsis))
                    : m_names.at(depth));
    }
    setText(shown.join(separator));
}
