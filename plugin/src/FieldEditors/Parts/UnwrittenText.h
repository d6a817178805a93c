// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class CrvFieldEditors;
class QLineEdit;

/// Makes the Esc key discard what a person has typed into a line and not applied yet. If nothing
/// was typed, the key is handled as usual.
class UnwrittenText : public QObject {
    Q_OBJECT
public:
    /// The line is the parent. `showField` makes the line show the field's value again. `editor`,
    /// which shows the field, outlives the line.
    UnwrittenText(QLineEdit* line, const CrvFieldEditors* editor, std::function<void()> showField);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_line; // the parent
    const CrvFieldEditors* m_editor; // not owned
    std::function<void()> m_showField;
};

/// The same for lines that each show one component of a value; `fieldText` gives the field's text
/// for the line with that index.
void dropUnwrittenTexts(const std::vector<QLineEdit*>& lines, const CrvFieldEditors* editor,
    const std::function<QString(std::size_t)>& fieldText);
