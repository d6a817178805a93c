// SPDX-License-Identifier: BSD-3-Clause
#include "WfSlider.h"

#include "AccessibleNames.h"
#include "CrvFieldEditors.h"
#include "PanelParts.h"
#include "SliderMath.h"
#include "UnwrittenText.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSlider>

#include <utility>

namespace {

struct LayoutGaps {
    int margin; // pixels, on all four sides
    int spacing; // pixels
};

constexpr LayoutGaps fieldGaps { 2, 4 };
constexpr LayoutGaps cellGaps { 0, 3 };

} // namespace

WfSlider::OwnerHold::OwnerHold(WfSlider& slider)
    : m_slider(slider)
    , m_before(std::exchange(slider.m_ownerHeld, true))
{
}

WfSlider::OwnerHold::~OwnerHold() { m_slider.m_ownerHeld = m_before; }

WfSlider::WfSlider(int inTable, CrvFieldEditors* owner, QWidget* parent, int row, int column)
    : QFrame(parent)
    , m_inTable(inTable)
    , m_owner(owner)
    , m_row(row)
    , m_column(column)
{
    setObjectName(QStringLiteral("WfSliderFrame"));

    const LayoutGaps& gaps = m_inTable == InEditor ? fieldGaps : cellGaps;
    m_layout = new QHBoxLayout(this);
    setMargins(m_layout, gaps.margin);
    m_layout->setSpacing(gaps.spacing);
    m_layout->setObjectName(QStringLiteral("corvaneslider"));

    m_lineEdit = new QLineEdit(this);
    m_lineEdit->setObjectName(QStringLiteral("m_lineEdit"));
    m_slider = new QSlider(this);
    m_slider->setObjectName(QStringLiteral("m_slider"));
    m_slider->setTracking(true);
    m_slider->setOrientation(Qt::Horizontal);
    m_notifyCheckBox = new QCheckBox(this);
    m_notifyCheckBox->setObjectName(QStringLiteral("m_notifyCheckBox"));

    setInputLabel(m_slider, QStringLiteral("slider"));
    setInputLabel(m_notifyCheckBox, QStringLiteral("follows the slider"));

    m_layout->addWidget(m_notifyCheckBox);
    m_layout->addWidget(m_slider);
    m_layout->addWidget(m_lineEdit);

    connect(m_slider, &QSlider::sliderPressed, this, &WfSlider::beginCallback);
    connect(m_slider, &QSlider::valueChanged, this, &WfSlider::valueChangeSlot);
    connect(m_slider, &QSlider::sliderReleased, this, &WfSlider::finishCallback);
    m_notifyCheckBox->setChecked(m_notifyOnMove);
    connect(m_lineEdit, &QLineEdit::returnPressed, this, &WfSlider::changeValueFromEdit);
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &WfSlider::changeValueFromEdit);
    connect(m_notifyCheckBox, &QCheckBox::toggled, this, &WfSlider::eventNotify);
    // A cell has its own way to cancel an edit.
    if (m_inTable == InEditor)
        new UnwrittenText(m_lineEdit, m_owner, [this] { m_owner->updateFromField(); });
}

WfSlider::~WfSlider()
{
    // Children are deleted after this class is gone, and the line would still report its last text.
    delete m_lineEdit;
    delete m_notifyCheckBox;
    delete m_slider;
}

void WfSlider::setValue(QString) { }
void WfSlider::updateEdit() { }
void WfSlider::updateValueFromEdit() { }
void WfSlider::updateValueFromSlider(int) { }
void WfSlider::saveOldValue() { }

bool WfSlider::isModified() const { return m_lineEdit->isModified(); }

void WfSlider::changeValueFromEdit()
{
    if (!m_lineEdit->isModified())
        return;
    updateValueFromEdit();
    syncPosition();
    notifyOwner();
}

void WfSlider::eventNotify(bool state) { m_notifyOnMove = state; }

void WfSlider::beginCallback() { saveOldValue(); }

void WfSlider::finishCallback()
{
    updateValueFromSlider(m_slider->value());
    notifyOwner();
}

void WfSlider::valueChangeSlot(int newValue)
{
    if (!m_sliderConnected)
        return;
    updateValueFromSlider(newValue);
    updateEdit();
    if (m_notifyOnMove)
        notifyOwner();
}

void WfSlider::setText(const QString& text)
{
    m_lineEdit->setText(text);
    m_lineEdit->setCursorPosition(0);
}

QString WfSlider::getText() const { return SliderMath::withPrefix(m_lineEdit->text(), m_base); }

void WfSlider::syncPosition()
{
    m_sliderConnected = false;
    m_slider->setValue(m_sliderValue);
    m_sliderConnected = true;
}

void WfSlider::takeText(const QString& text)
{
    setText(text);
    updateValueFromEdit();
    syncPosition();
    m_hasValue = true;
}

void WfSlider::notifyOwner()
{
    if (m_ownerHeld || !m_hasValue)
        return;
    if (m_inTable == InEditor) {
        m_owner->applyChanges();
        return;
    }
    // The table must not refresh while one of its own cells writes.
    m_owner->setFieldUpdateEnabled(false);
    m_owner->setFieldValue(m_row, m_column, getText());
    m_owner->setFieldUpdateEnabled(true);
}
