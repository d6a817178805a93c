// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPushButton>

class QPixmap;

/// The two buttons that every panel has, whatever the type of its field.
struct FieldButtons {
    QPushButton* defaultButton; ///< resets the field to its default
    QPushButton* ignoreButton; ///< checked while the field's ignore flag is set
};

/// Makes both as children of `panel`, named "m_defaultButton" and "m_ignoreButton", without tool
/// tips yet.
FieldButtons makeFieldButtons(
    QWidget* panel, const QPixmap& defaultIcon, const QPixmap& ignoreIcon);

/// Connects them to the editor's slots. The ignore button is listened to at its release, since a
/// refresh toggles it, too. A release beside the button doesn't toggle it: setFieldIgnored() then
/// changes nothing.
template <class Editor>
void connectFieldButtons(const FieldButtons& buttons, Editor* editor, void (Editor::*setDefault)(),
    void (Editor::*ignoreReleased)())
{
    QObject::connect(buttons.defaultButton, &QPushButton::clicked, editor, setDefault);
    QObject::connect(buttons.ignoreButton, &QPushButton::released, editor, ignoreReleased);
}

/// Gives both their tool tips, and no text.
void setFieldButtonTexts(const FieldButtons& buttons);
