// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldEditors.h"

#include "AccessibleNames.h"
#include "CrvNodeDetails.h"
#include "FieldActions.h"
#include "KnField.h"
#include "KnFieldSensor.h"

#include <QFrame>

CrvFieldEditors::CrvFieldEditors()
    : m_frame(new QFrame)
{
    m_author = "Orbel";
    m_description = "Field Editor for Corvane.";
    m_version = "1.0.0";
    m_widget = m_frame;
}

CrvFieldEditors::~CrvFieldEditors()
{
    delete m_fieldSensor;
    delete m_frame;
}

void CrvFieldEditors::identify(
    const KnType& handledType, const char* extensionName, const char* name, const char* className)
{
    m_handledType = handledType;
    m_name = extensionName;
    if (!name)
        setObjectName(QLatin1String(className));
}

void CrvFieldEditors::activate()
{
    CrvEditor::activate();
    auto* const field = dynamic_cast<KnField*>(getEditedObject());
    if (!field)
        return;
    attachField(field);
    updateFromField();
    limitInputs();
    show();
}

void CrvFieldEditors::limitInputs()
{
    const KnField& field = *m_fieldSensor->getAttachedField();
    m_offInputs.turnOn();
    m_isReadOnly = field.isReadOnly();
    if (m_isReadOnly) {
        m_offInputs.turnOffAll(m_frame);
        return;
    }
    if (!hasDefault(field))
        m_offInputs.turnOff(m_frame->findChild<QWidget*>(QStringLiteral("m_defaultButton")));
    // What stands behind the node of a library knows nothing of ignored fields.
    if (CrvNodeDetails::of(field))
        m_offInputs.turnOff(m_frame->findChild<QWidget*>(QStringLiteral("m_ignoreButton")));
}

void CrvFieldEditors::deactivate()
{
    CrvEditor::deactivate();
    if (m_fieldSensor) {
        // Hiding commits what is being typed, which is meant for the field that was shown.
        m_leftField = m_fieldSensor->getAttachedField();
        m_fieldSensor->detach();
    }
    hide();
    m_leftField = nullptr;
}

void CrvFieldEditors::hide()
{
    CrvEditor::hide();
    m_frame->hide();
}

void CrvFieldEditors::show()
{
    CrvEditor::show();
    m_frame->show();
}

void CrvFieldEditors::load()
{
    hide();
    m_fieldSensor = new KnFieldSensor(&CrvFieldEditors::fieldChanged, this);
}

void CrvFieldEditors::unload()
{
    delete m_fieldSensor;
    m_fieldSensor = nullptr;
}

void CrvFieldEditors::attachField(KnField* field)
{
    m_fieldSensor->attach(field);
    nameInputs(m_frame, field);
}

bool CrvFieldEditors::shows(const KnField* field) const
{
    return field
        && (field == m_leftField || (isAttached() && field == m_fieldSensor->getAttachedField()));
}

bool CrvFieldEditors::mayWrite(const KnField* field) const
{
    return shows(field) && !field->isReadOnly();
}

bool CrvFieldEditors::isAttached() const
{
    return m_fieldSensor && m_fieldSensor->getAttachedField();
}

void CrvFieldEditors::fieldChanged(void* data, KnSensor*)
{
    auto* const editor = static_cast<CrvFieldEditors*>(data);
    editor->updateFromField();
    const KnField* const field = editor->m_fieldSensor->getAttachedField();
    if (field && field->isReadOnly() != editor->m_isReadOnly)
        editor->limitInputs();
}
