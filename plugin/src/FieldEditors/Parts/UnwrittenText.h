// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class CrvFieldEditors;
class QLineEdit;

/// Lets the Esc key drop what a person has typed into a line and what isn't written yet. On a line
/// that nobody has typed into the key goes where it would have gone.
class UnwrittenText : public QObject {
    Q_OBJECT
public:
    /// The line is the parent. `showField` makes the line show the value again of the field that
    /// `editor` shows, which outlives the line.
    UnwrittenText(QLineEdit* line, const CrvFieldEditors* editor, std::function<void()> showField);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_line; // the parent
    const CrvFieldEditors* m_editor; // not owned
    std::function<void()> m_showField;
};

/// The same for lines of which each shows one component of a value; `fieldText` gives what the line
/// of that number shows of the field.
void dropUnwrittenTexts(const std::vector<QLineEdit*>& lines, const CrvFieldEditors* editor,
    const std::function<QString(std::size_t)>& fieldText);
