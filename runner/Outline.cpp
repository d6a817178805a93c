// SPDX-License-Identifier: BSD-3-Clause
#include "Outline.h"

#include "CrvObjects.h"

#include <QChildEvent>
#include <QPainter>

#include <utility>

namespace {

constexpr int lineWidth = 2; // pixels, with one more of the contrary colour inside

/// What can be seen of a widget, as its window sees it.
QRect visibleRect(const QWidget* widget)
{
    QRect rect(widget->mapTo(widget->window(), QPoint()), widget->size());
    for (const QWidget* above = widget; !above->isWindow();) {
        above = above->parentWidget();
        rect &= QRect(above->mapTo(above->window(), QPoint()), above->size());
    }
    return rect;
}

} // namespace

class Outline::Line : public QWidget {
public:
    Line()
    {
        setObjectName(QStringLiteral("corvaneOutline"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        crvHideObject(this);
    }

    /// In the coordinates of the parent; `whole` may reach beyond what is seen.
    void place(const QRect& seen, const QRect& whole)
    {
        m_frame = whole.translated(-seen.topLeft());
        setGeometry(seen);
        // All within the line belongs to what lies below.
        const int inset = lineWidth + 1;
        setMask(QRegion(rect()) - m_frame.adjusted(inset, inset, -inset, -inset));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QPalette& colours = palette();
        QRect frame = m_frame;
        for (int i = 0; i <= lineWidth; ++i) {
            // Unlike what styles mark the focus and a selection with.
            painter.setPen(colours.color(i < lineWidth ? QPalette::LinkVisited : QPalette::Base));
            painter.drawRect(frame.adjusted(0, 0, -1, -1));
            frame.adjust(1, 1, -1, -1);
        }
    }

private:
    QRect m_frame;
};

Outline::Outline() = default;

Outline::~Outline() { surround(nullptr); }

void Outline::surround(QObject* object)
{
    m_widget = object && object->isWidgetType() ? static_cast<QWidget*>(object) : nullptr;
    update();
}

bool Outline::concerns(const QEvent* event) const
{
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::ChildRemoved:
        return m_own && static_cast<const QChildEvent*>(event)->child() == m_own;
    default:
        return false;
    }
}

bool Outline::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ParentChange:
    case QEvent::ChildAdded: // which covers the line
    case QEvent::ZOrderChange:
        updateSoon();
        break;
    default:
        break;
    }
    return false;
}

/// Several things happen to several widgets when one of them moves.
void Outline::updateSoon()
{
    if (m_updateWaits)
        return;
    m_updateWaits = true;
    QMetaObject::invokeMethod(this, &Outline::update, Qt::QueuedConnection);
}

void Outline::update()
{
    m_updateWaits = false;
    follow();
    QWidget* const window = m_widget ? m_widget->window() : nullptr;
    if (!m_line)
        m_own = nullptr; // it has gone with its window
    else if (m_line->parent() != window)
        removeLine();
    const QRect seen = m_widget && m_widget->isVisible() ? visibleRect(m_widget) : QRect();
    if (seen.isEmpty()) {
        if (m_line)
            m_line->hide();
        return;
    }
    if (!m_line)
        makeLine(window);
    m_line->place(seen, QRect(m_widget->mapTo(window, QPoint()), m_widget->size()));
    m_line->raise();
    m_line->show();
}

/// Listens to the widget and to all that it stands in now.
void Outline::follow()
{
    std::vector<QPointer<QWidget>> chain;
    for (QWidget* widget = m_widget; widget; widget = widget->parentWidget()) {
        chain.emplace_back(widget);
        if (widget->isWindow())
            break;
    }
    if (chain == m_followed)
        return;
    for (const QPointer<QWidget>& widget : m_followed) {
        if (widget)
            widget->removeEventFilter(this);
    }
    for (const QPointer<QWidget>& widget : chain)
        widget->installEventFilter(this);
    m_followed = std::move(chain);
}

void Outline::makeLine(QWidget* window)
{
    m_line = new Line;
    m_own = m_line;
    m_line->setParent(window);
}

void Outline::removeLine()
{
    const QWidget* const line = m_line;
    m_line.clear();
    delete line;
    m_own = nullptr; // no event of it reaches the program until it is gone
}
