// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFieldWidget.h"

#include "FieldActions.h"
#include "FieldButtons.h"
#include "KnField.h"
#include "PanelParts.h"
#include "Pixmaps.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

WfSlider* makeSlider(int kind, CrvFieldEditors* owner, QWidget* parent)
{
    constexpr int row = 0;
    constexpr int column = 1;
    constexpr int place = WfSlider::InEditor;
    switch (kind) {
    case WfSFieldWidget::FloatSlider:
        return new WfRealSlider(place, owner, parent, true, row, column);
    case WfSFieldWidget::DoubleSlider:
        return new WfRealSlider(place, owner, parent, false, row, column);
    case WfSFieldWidget::Int32Slider:
        return new WfIntSlider(WfIntSlider::Int32, place, owner, parent, row, column);
    case WfSFieldWidget::UInt32Slider:
        return new WfUIntSlider(WfUIntSlider::UInt32, place, owner, parent, row, column);
    case WfSFieldWidget::Int16Slider:
        return new WfIntSlider(WfIntSlider::Int16, place, owner, parent, row, column);
    case WfSFieldWidget::UInt16Slider:
        return new WfUIntSlider(WfUIntSlider::UInt16, place, owner, parent, row, column);
    default:
        return nullptr;
    }
}

} // namespace

WfSFieldWidget::WfSFieldWidget(const char* name)
    : m_defaultPixmap(defaultPixmap())
    , m_ignorePixmap(ignorePixmap())
{
    setObjectName(QLatin1String(name));
}

WfSFieldWidget::WfSFieldWidget(int sliderKind, const char* name)
    : WfSFieldWidget(name ? name : "WfSFieldWidget")
{
    m_editionFrame = makeSlider(sliderKind, this, getFrame());
}

void WfSFieldWidget::setLabel(const QString& text)
{
    if (!m_label)
        m_label = new QLabel(getFrame());
    if (m_label->text().isEmpty())
        m_label->setText(tr("<p align=\"center\">") + text + tr("</p>"));
}

void WfSFieldWidget::load()
{
    CrvFieldEditors::load();

    QFrame* const frame = getFrame();
    drawBox(frame, "frameLineWidth");

    m_fieldLayout = new QHBoxLayout(frame);
    shapeLayout(m_fieldLayout, "SFieldLayoutMargin", "SFieldLayoutSpacing", "SFieldLayout");
    // In a tall dock the row stands below the title, where the eye is.
    m_fieldLayout->setAlignment(Qt::AlignTop);

    styleTitleLabel(m_label);
    m_fieldLayout->addWidget(m_label, 0);

    m_labelSpacer = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    m_fieldLayout->addItem(m_labelSpacer);

    m_editionAreaLayout = new QHBoxLayout;
    shapeLayout(m_editionAreaLayout, "SFEditionAreaLayMargin", "SFEditionAreaLaySpacing",
        "SFieldEditionAreaLayout");

    if (m_editionFrame) {
        m_editLayout = static_cast<QBoxLayout*>(m_editionFrame->layout());
    } else {
        m_editionFrame = new QFrame(frame);
        m_editionFrame->setObjectName(QStringLiteral("m_editionFrame"));
        drawBox(m_editionFrame, "frameLineWidth");
        m_editLayout = new QHBoxLayout(m_editionFrame);
        shapeLayout(
            m_editLayout, "SFieldEditLayoutMargin", "SFieldEditLayoutSpacing", "editLayout");
    }
    m_editionAreaLayout->addWidget(m_editionFrame, 0);

    m_editionSpacer = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    m_editionAreaLayout->addItem(m_editionSpacer);

    m_buttonLayout = new QHBoxLayout;
    shapeLayout(m_buttonLayout, "SFButtonLayoutMargin", "SFButtonLayoutSpacing", "SFieldLayout");

    const FieldButtons buttons = makeFieldButtons(frame, m_defaultPixmap, m_ignorePixmap);
    m_defaultButton = buttons.defaultButton;
    m_ignoreButton = buttons.ignoreButton;
    m_buttonLayout->addWidget(m_defaultButton, 0);
    m_buttonLayout->addWidget(m_ignoreButton, 0);

    m_editionAreaLayout->addLayout(m_buttonLayout, 0);
    m_editionAreaLayout->setSizeConstraint(QLayout::SetMinimumSize);
    m_fieldLayout->addLayout(m_editionAreaLayout, 0);

    languageChange();

    connectFieldButtons(buttons, this, &WfSFieldWidget::setDefaultFieldValue,
        &WfSFieldWidget::ignoreButtonStateChanged);
}

void WfSFieldWidget::attachField(KnField* field)
{
    m_field = field;
    CrvFieldEditors::attachField(field);
}

void WfSFieldWidget::updateFromField()
{
    m_ignoreButton->setChecked(m_field && m_field->isIgnored() != 0);
}

void WfSFieldWidget::setFieldUpdateEnabled(bool) { }

void WfSFieldWidget::swapFieldValues(int, int) { }

void WfSFieldWidget::setFieldValue(int, int, QString) { }

void WfSFieldWidget::setFieldColor(int, const void*) { }

bool WfSFieldWidget::edited() { return false; }

void WfSFieldWidget::languageChange() { setFieldButtonTexts({ m_defaultButton, m_ignoreButton }); }

void WfSFieldWidget::setCommandValue() { applyChanges(); }

void WfSFieldWidget::setFocusLeaveEvent()
{
    if (edited())
        applyChanges();
}

void WfSFieldWidget::ignoreButtonStateChanged()
{
    setFieldIgnored(*this, m_field, m_ignoreButton->isChecked());
}

void WfSFieldWidget::setDefaultFieldValue() { setFieldToDefault(*this, m_field); }

void WfSFieldWidget::applyChanges() { }

void WfSFieldWidget::spreadRow()
{
    m_labelSpacer->changeSize(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_editionSpacer->changeSize(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum);
}
