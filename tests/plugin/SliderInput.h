// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>

/// The mouse on the handle of a scale, as a person drags it.
class SliderInput {
public:
    explicit SliderInput(QSlider* slider)
        : m_slider(slider)
    {
    }

    void press()
    {
        QStyleOptionSlider option;
        option.initFrom(m_slider);
        option.minimum = m_slider->minimum();
        option.maximum = m_slider->maximum();
        option.sliderPosition = m_slider->sliderPosition();
        m_at = m_slider->style()
                   ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, m_slider)
                   .center();
        QTest::mousePress(m_slider, Qt::LeftButton, {}, m_at);
    }
    /// Moves by so many pixels from where the mouse was pressed or moved to.
    void moveBy(int pixels)
    {
        m_at += QPoint(pixels, 0);
        QTest::mouseMove(m_slider, m_at);
    }
    void release() { QTest::mouseRelease(m_slider, Qt::LeftButton, {}, m_at); }
    void turnWheel()
    {
        const QPointF at = m_slider->rect().center();
        QWheelEvent event(at, m_slider->mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_slider, &event);
    }

private:
    QSlider* m_slider; // not owned
    QPoint m_at; // where the mouse is
};
