// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvEditor.h"
#include "FieldRange.h"
#include "OffInputs.h"

#include <QString>

class KnField;
class KnFieldSensor;
class KnSensor;
class QFrame;

/// Base of every widget that edits one field. It owns the frame that the dock shows and the sensor
/// that watches the field, and turns the host's life cycle into three steps: attach to the field,
/// fill the widgets from it, show. One object serves all fields of its type, one at a time.
class CrvFieldEditors : public CrvEditor {
    Q_OBJECT
public:
    CrvFieldEditors();
    /// Deletes the frame. A dock that shows it must give it back first.
    ~CrvFieldEditors() override;

    /// With a field as edited object: attaches, refreshes and shows, in this order. Without one it
    /// only does the base's part.
    void activate() override;
    void deactivate() override;
    void hide() override;
    /// A subclass calls this one first, before it builds its widgets in the frame.
    void load() override;
    void show() override;
    void unload() override;

    /// Attaches the sensor. A subclass stores the field, then calls this one. Here it also makes
    /// what it derives from the field (ranges, entries), in time for the first refresh.
    virtual void attachField(KnField* field);
    /// Fills the widgets from the field. It never writes the field.
    virtual void updateFromField() = 0;
    /// Lets an editor of an array refuse refreshes while a slider inside its table writes a cell.
    virtual void setFieldUpdateEnabled(bool enabled) = 0;
    /// Exchanges two rows of an array, with no command.
    virtual void swapFieldValues(int row1, int row2) = 0;
    /// Writes one cell of an array.
    virtual void setFieldValue(int row, int column, QString text) = 0;
    /// Writes one row of an array of colours through a command; `color` points to a KbVec4f.
    virtual void setFieldColor(int row, const void* color) = 0;
    /// Writes what the widgets show into the field and hands a command to the host.
    virtual void applyChanges() = 0;

    /// Whether the editor shows this field, so that a person's edit may be written to it: from
    /// attachment to the end of deactivation, unless the field is destroyed earlier. What a line,
    /// popup or dialog still reports after that must not reach the field, which may be gone.
    bool shows(const KnField* field) const;

    /// Whether a person's edit may be written to this field: it is shown, and not read-only. What
    /// the inputs show while it is read-only is only to be read.
    bool mayWrite(const KnField* field) const;

    /// Whether a field is attached that still exists.
    bool isAttached() const;

    /// The parent of all of the editor's widgets.
    QFrame* getFrame() const { return m_frame; }

protected:
    /// For the constructors of concrete editors: the type that the editor handles, the
    /// extension's name, and the object name, which is `className` when `name` is null.
    void identify(const KnType& handledType, const char* extensionName, const char* name,
        const char* className);

    FieldRange m_fieldRange; // what a numeric editor chose for its present field

private:
    static void fieldChanged(void* data, KnSensor* sensor);

    /// Turns off what the attached field doesn't allow, and the rest on again.
    void limitInputs();

    KnFieldSensor* m_fieldSensor = nullptr; // owned, from load to unload
    const KnField* m_leftField = nullptr; // not owned; set only while deactivate() hides the frame
    QFrame* m_frame; // owned; has no parent but the dock that shows it
    OffInputs m_offInputs; // those in the frame
    bool m_isReadOnly = false; // as the inputs were last limited
};
