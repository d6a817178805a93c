// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvExtension.h"
#include "KnTypedObject.h"

class QWidget;

/// An extension that edits one object, a field or a node, inside a dock. A subclass sets the type
/// that it handles and the widget that the dock shows.
class CrvEditor : public CrvExtension {
    Q_OBJECT
public:
    CrvEditor();
    ~CrvEditor() override;

    /// The editor serves objects of this type and of types derived from it.
    virtual KnType getHandledType() const;
    /// Null when the editor shows nothing. The object is not owned.
    virtual void setEditedObject(KnTypedObject* object);
    virtual KnTypedObject* getEditedObject() const;
    /// Owned by the editor, also while a dock shows it.
    virtual QWidget* getWidget() const;

protected:
    KnType m_handledType;
    KnTypedObject* m_editedObject = nullptr; // not owned
    QWidget* m_widget = nullptr; // owned by the subclass
};
