// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFLineWidget.h"

#include "CrvStrings.h"
#include "FieldEdit.h"
#include "KnSField.h"
#include "LineEdits.h"

#include <QLineEdit>

WfSFLineWidget::WfSFLineWidget(const char* name)
    : WfSFieldWidget(name)
{
    identify(KnSField::getClassTypeId(), "SField", name, "WfSFLineWidget");
}

void WfSFLineWidget::load()
{
    setLabel(QStringLiteral("SField"));
    WfSFieldWidget::load();
    m_lineEdit = makeLineEdit(m_editionFrame, m_editLayout);

    constexpr auto applyLine = qOverload<QString>(&WfSFLineWidget::applyChanges);
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &WfSFLineWidget::setFocusLeaveEvent);
    connect(
        m_lineEdit, &QLineEdit::returnPressed, this, qOverload<>(&WfSFLineWidget::applyChanges));
    connect(m_lineEdit, &QLineEdit::textChanged, this, applyLine);
    connect(
        m_lineEdit, &QLineEdit::cursorPositionChanged, this, &WfSFLineWidget::setCursorPosition);
    connect(m_lineEdit, &QLineEdit::textEdited, this, applyLine);
}

void WfSFLineWidget::updateFromField()
{
    // Every change of the line's text is applied, but a refresh is not a person's edit.
    m_lineEdit->blockSignals(true);
    KbString text;
    m_field->get(text);
    m_lineEdit->setText(toQString(text));
    WfSFieldWidget::updateFromField();
    m_lineEdit->setCursorPosition(m_cursorPosition);
    m_lineEdit->blockSignals(false);
}

bool WfSFLineWidget::edited() { return m_lineEdit->isModified(); }

void WfSFLineWidget::applyChanges(QString)
{
    const int position = m_lineEdit->cursorPosition();
    executeFieldEdit(*this, m_field, [this, position] {
        m_field->set(toKbString(m_lineEdit->text()));
        m_lineEdit->setCursorPosition(position);
    });
}

void WfSFLineWidget::setCursorPosition(int, int newPos) { m_cursorPosition = newPos; }
