// SPDX-License-Identifier: BSD-3-Clause
#include "CellInput.h"

#include "WfSlider.h"

#include <QLineEdit>
#include <QSlider>

namespace {

bool isDragged(const WfSlider* slider)
{
    const auto* const scale = slider->findChild<QSlider*>();
    return scale && scale->isSliderDown();
}

} // namespace

QLineEdit* lineOf(QWidget* editor)
{
    const auto* const slider = qobject_cast<WfSlider*>(editor);
    return slider ? slider->m_lineEdit : qobject_cast<QLineEdit*>(editor);
}

bool isBusy(QWidget* editor)
{
    const auto* const slider = qobject_cast<WfSlider*>(editor);
    const QLineEdit* const line = lineOf(editor);
    return (slider && isDragged(slider)) || (line && line->isModified());
}

void writeTyped(WfSlider* slider)
{
    if (!slider->m_lineEdit->hasAcceptableInput())
        return;
    slider->changeValueFromEdit();
    slider->m_lineEdit->setModified(false);
}

void silence(const WfSlider* slider)
{
    for (QWidget* part : slider->findChildren<QWidget*>())
        part->blockSignals(true);
}

void finish(WfSlider* slider)
{
    writeTyped(slider);
    if (isDragged(slider))
        slider->findChild<QSlider*>()->setSliderDown(false);
    silence(slider);
}
