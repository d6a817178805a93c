// SPDX-License-Identifier: BSD-3-Clause
#include "EditGestures.h"

#include "CrvUndoSteps.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QChildEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimerEvent>
#include <QWidget>

#include <memory>

namespace {

QEvent::Type inputHandled()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

// In these, several keys make one value.
bool collectsKeys(const QObject* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QAbstractSlider*>(widget)
        || qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget);
}

bool endsEntry(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

} // namespace

EditGestures::EditGestures(CrvUndoSteps* steps, QObject* parent)
    : QObject(parent)
    , m_steps(steps)
{
    m_steps->setGrouping(CrvUndoSteps::Grouping::Gestures);
    connect(qApp, &QApplication::focusChanged, this, &EditGestures::focusChanged);
}

EditGestures::~EditGestures() { m_steps->setGrouping(CrvUndoSteps::Grouping::EachCommand); }

// Widgets are watched before anybody else can watch them, so that this filter comes last, and what
// it is told is what the widget is about to handle.
void EditGestures::watch(QObject* pane)
{
    pane->installEventFilter(this);
    for (QWidget* widget : pane->findChildren<QWidget*>())
        widget->installEventFilter(this);
}

void EditGestures::unwatch(QObject* pane)
{
    pane->removeEventFilter(this);
    for (QWidget* widget : pane->findChildren<QWidget*>())
        widget->removeEventFilter(this);
}

bool EditGestures::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
        if (QObject* const child = static_cast<QChildEvent*>(event)->child(); child->isWidgetType())
            watch(child);
        break;
    case QEvent::ChildRemoved:
        if (QObject* const child = static_cast<QChildEvent*>(event)->child(); child->isWidgetType())
            unwatch(child);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        begin(Kind::Mouse, watched);
        break;
    case QEvent::MouseMove:
        if (static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton)
            input();
        break;
    case QEvent::MouseButtonRelease:
        input();
        if (m_kind == Kind::Mouse)
            endAfterwards();
        break;
    case QEvent::Wheel:
        goOn(Kind::Wheel, watched);
        break;
    case QEvent::ShortcutOverride:
        // Perhaps that of undo, which takes back all that was done before.
        input();
        break;
    case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.isAutoRepeat() || collectsKeys(watched))
            goOn(Kind::Keys, watched);
        else
            begin(Kind::Keys, watched);
        if (endsEntry(key))
            endAfterwards();
        break;
    }
    case QEvent::InputMethod:
        goOn(Kind::Keys, watched);
        break;
    case QEvent::FocusAboutToChange:
    case QEvent::FocusOut:
    case QEvent::Hide:
        leave(watched);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

// A cell with a slider ends when the focus has gone, and keeps the events of that to itself.
void EditGestures::focusChanged(QWidget* former)
{
    if (former && m_widget == former)
        leave(former);
}

void EditGestures::begin(Kind kind, QObject* widget)
{
    m_steps->beginGesture();
    ++m_serial;
    m_kind = kind;
    m_widget = widget;
    m_pause.stop();
    input();
}

void EditGestures::goOn(Kind kind, QObject* widget)
{
    if (m_kind == kind && m_widget == widget && m_ending != m_serial)
        input();
    else
        begin(kind, widget);
    m_pause.start(m_pauseTime, this);
}

/// The widget is about to handle something. It may do so with a detour over the event loop, as a
/// line in a cell does with Return.
void EditGestures::input()
{
    m_steps->beginInput();
    ++m_posted;
    auto handled = std::make_unique<QEvent>(inputHandled());
    QCoreApplication::postEvent(this, handled.release()); // the event queue owns it
}

void EditGestures::endAfterwards() { m_ending = m_serial; }

void EditGestures::leave(QObject* widget)
{
    if (m_kind == Kind::None)
        begin(Kind::Leaving, widget);
    else
        input();
    if (m_kind == Kind::Leaving || (m_kind == Kind::Keys && m_widget == widget))
        endAfterwards();
}

void EditGestures::customEvent(QEvent* event)
{
    if (event->type() != inputHandled())
        return;
    if (--m_posted > 0) {
        m_steps->beginInput();
        return;
    }
    m_steps->endInput();
    if (m_ending != m_serial)
        return;
    m_steps->endGesture();
    m_kind = Kind::None;
    m_pause.stop();
}

void EditGestures::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_pause.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_pause.stop();
    m_steps->endGesture();
    m_kind = Kind::None;
}
