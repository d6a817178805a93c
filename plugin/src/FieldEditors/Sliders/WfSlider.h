// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QFrame>
#include <QString>

class CrvFieldEditors;
class QCheckBox;
class QHBoxLayout;
class QLineEdit;
class QSlider;

/// Edits one number by a check box, a scale and a line, side by side. It serves as the whole input
/// area of a numeric editor and as the editor of one cell of a table. It doesn't know the field: it
/// holds value and range itself and tells its owner of a change, and the owner writes the field.
/// The subclasses add the arithmetic of their number type. The value is what counts; position and
/// text follow from it.
class WfSlider : public QFrame {
    Q_OBJECT
public:
    /// Where a slider stands, the constructors' `inTable`.
    enum Place : int { InEditor = 0, InTable = 1 };

    ~WfSlider() override;

    /// Takes a value in the field's text form, without telling the owner.
    virtual void setValue(QString text);

    /// Whether the line holds text that a person typed and no refresh has replaced.
    bool isModified() const;

    /// While it lives, the slider doesn't call its owner. An owner that attaches a field sets a new
    /// range, and if that moves the scale, it is not a person's edit.
    class OwnerHold {
    public:
        explicit OwnerHold(WfSlider& slider);
        ~OwnerHold();
        Q_DISABLE_COPY_MOVE(OwnerHold)

    private:
        WfSlider& m_slider; // outlives this object
        bool m_before;
    };

    QLineEdit* m_lineEdit; // child
    /// The value's text from when the scale was pressed, or null. The command that takes it makes
    /// it null.
    KbString m_oldValue;

public Q_SLOTS:
    void changeValueFromEdit();

protected Q_SLOTS:
    void eventNotify(bool state);
    void beginCallback();
    void finishCallback();
    void valueChangeSlot(int newValue);

protected:
    /// `inTable` is a Place. In an editor the slider reports a change by the owner's
    /// applyChanges(), in a table by its setFieldValue() for the cell (`row`, `column`). `owner`
    /// isn't owned and outlives the slider.
    WfSlider(int inTable, CrvFieldEditors* owner, QWidget* parent, int row, int column);

    /// Writes the value into the line.
    virtual void updateEdit();
    /// Reads the line into value, position and range.
    virtual void updateValueFromEdit();
    /// Takes the value from a position of the scale.
    virtual void updateValueFromSlider(int position);
    /// Stores the value's text in m_oldValue.
    virtual void saveOldValue();

    /// Shows a text from its start. The line then counts as unmodified.
    void setText(const QString& text);
    /// The line's text, with the prefix of the base.
    QString getText() const;
    /// Moves the scale to the value's position without reporting a change.
    void syncPosition();
    /// Shows `text` and takes it as the value; the owner isn't told.
    void takeText(const QString& text);

    QHBoxLayout* m_layout; // of this frame
    int m_sliderValue = 0; // the position that belongs to the value
    QSlider* m_slider; // child
    QCheckBox* m_notifyCheckBox; // child; checked: a move of the scale reaches the owner at once
    bool m_notifyOnMove = true; // mirrors the check box
    bool m_sliderConnected = true; // false only while the slider itself moves the scale
    int m_inTable;
    int m_base = 10; // of the text: 10, 8 or 16; a real slider stays at 10
    CrvFieldEditors* m_owner; // not owned
    int m_row;
    int m_column;

private:
    void notifyOwner();

    // Before a first value is set, the scale stands where the range has put it, which nobody needs
    // to be told.
    bool m_hasValue = false;
    bool m_ownerHeld = false;
};
