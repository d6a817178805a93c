// SPDX-License-Identifier: BSD-3-Clause
#include "CrvEditor.h"

CrvEditor::CrvEditor() = default;

CrvEditor::~CrvEditor() = default;

KnType CrvEditor::getHandledType() const { return m_handledType; }

void CrvEditor::setEditedObject(KnTypedObject* object) { m_editedObject = object; }

KnTypedObject* CrvEditor::getEditedObject() const { return m_editedObject; }

QWidget* CrvEditor::getWidget() const { return m_widget; }
