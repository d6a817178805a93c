// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPalette>
#include <QPointer>

#include <vector>

class QAbstractSpinBox;
class QLineEdit;
class QWidget;

/// The inputs of a panel that are off while a field is shown that a person can't edit, or not in
/// that way. Lines stay readable: their texts can be selected and copied. All come back as they
/// were. Scroll bars, and what was said to look only, are never off.
class OffInputs {
public:
    /// Everything in the panel that edits, also in its popups.
    void turnOffAll(QWidget* panel);
    /// One input; null is ignored.
    void turnOff(QWidget* input);
    void turnOn();

private:
    struct Line {
        QPointer<QLineEdit> line;
        QPalette palette; // its own before
        bool hadPalette;
    };

    void protect(QLineEdit* line);

    std::vector<Line> m_lines;
    std::vector<QPointer<QAbstractSpinBox>> m_boxes;
    std::vector<QPointer<QWidget>> m_others;
};

/// Says that an input changes no field: a way to a row, or a button that opens a popup.
void setLooksOnly(QWidget* input);
