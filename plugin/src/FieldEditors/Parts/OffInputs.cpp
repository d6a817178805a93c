// SPDX-License-Identifier: BSD-3-Clause
#include "OffInputs.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QVariant>

#include <utility>

namespace {

constexpr const char* looksOnlyProperty = "corvaneLooksOnly";

/// Whether the widget belongs to another one that is turned off as a whole, or isn't an input.
bool isInnerPart(const QWidget* widget, const QWidget* panel)
{
    for (const QWidget* above = widget->parentWidget(); above && above != panel;
         above = above->parentWidget()) {
        if (qobject_cast<const QAbstractSpinBox*>(above) || qobject_cast<const QComboBox*>(above)
            || qobject_cast<const QAbstractItemView*>(above))
            return true;
    }
    return false;
}

bool isInput(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget)
        || (qobject_cast<const QAbstractSlider*>(widget)
            && !qobject_cast<const QScrollBar*>(widget));
}

} // namespace

void setLooksOnly(QWidget* input) { input->setProperty(looksOnlyProperty, true); }

void OffInputs::turnOffAll(QWidget* panel)
{
    for (QWidget* const widget : panel->findChildren<QWidget*>()) {
        if (widget->property(looksOnlyProperty).toBool() || isInnerPart(widget, panel))
            continue;
        if (auto* const line = qobject_cast<QLineEdit*>(widget)) {
            protect(line);
        } else if (auto* const box = qobject_cast<QAbstractSpinBox*>(widget)) {
            box->setReadOnly(true);
            m_boxes.emplace_back(box);
        } else if (isInput(widget)) {
            turnOff(widget);
        }
    }
}

void OffInputs::turnOff(QWidget* input)
{
    if (!input || input->testAttribute(Qt::WA_ForceDisabled))
        return;
    input->setEnabled(false);
    m_others.emplace_back(input);
}

// It stands on the colour of its surroundings, since no style shows that it is read-only.
void OffInputs::protect(QLineEdit* line)
{
    if (line->isReadOnly())
        return;
    line->setReadOnly(true);
    m_lines.push_back({ line, line->palette(), line->testAttribute(Qt::WA_SetPalette) });
    QPalette palette = line->palette();
    palette.setBrush(QPalette::Base, palette.window());
    line->setPalette(palette);
}

void OffInputs::turnOn()
{
    for (const Line& each : std::exchange(m_lines, {})) {
        if (!each.line)
            continue;
        each.line->setReadOnly(false);
        each.line->setPalette(each.hadPalette ? each.palette : QPalette());
    }
    for (const QPointer<QAbstractSpinBox>& box : std::exchange(m_boxes, {})) {
        if (box)
            box->setReadOnly(false);
    }
    for (const QPointer<QWidget>& input : std::exchange(m_others, {})) {
        if (input)
            input->setEnabled(true);
    }
}
