// SPDX-License-Identifier: BSD-3-Clause
#include "ElidedLabel.h"

#include "SceneText.h"

#include <QEvent>

#include <algorithm>

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent)
    : QLabel(parent)
    , m_mode(mode)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ElidedLabel::setWholeText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    elide();
}

QSize ElidedLabel::minimumSizeHint() const { return { 0, QLabel::minimumSizeHint().height() }; }

QSize ElidedLabel::sizeHint() const
{
    return { fontMetrics().horizontalAdvance(m_text), QLabel::sizeHint().height() };
}

void ElidedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        elide();
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::elide()
{
    const QString shown
        = fontMetrics().elidedText(m_text, m_mode, contentsRect().width() - std::max(indent(), 0));
    if (shown == text())
        return;
    setText(shown);
    setToolTip(shown == m_text ? QString() : toolTipText(m_text));
}
