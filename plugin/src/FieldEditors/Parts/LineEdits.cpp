// SPDX-License-Identifier: BSD-3-Clause
#include "LineEdits.h"

#include <QBoxLayout>
#include <QLineEdit>

#include <algorithm>
#include <limits>

QLineEdit* makeLineEdit(QWidget* parent, QBoxLayout* layout)
{
    auto* const line = new QLineEdit(parent);
    line->setObjectName(QStringLiteral("lineEdit"));
    line->setAlignment(Qt::AlignLeft);
    line->setMaxLength(std::numeric_limits<int>::max());
    layout->addWidget(line, 1);
    return line;
}

void refreshLine(QLineEdit* line, const QString& text)
{
    const bool isSelected = line->hasSelectedText() && line->selectedText() == line->text();
    line->setText(text);
    if (isSelected)
        line->setSelection(static_cast<int>(text.size()), -static_cast<int>(text.size()));
}

bool isAnyModified(const std::vector<QLineEdit*>& lines)
{
    return std::any_of(
        lines.begin(), lines.end(), [](const QLineEdit* line) { return line->isModified(); });
}

void resetCursors(const std::vector<QLineEdit*>& lines)
{
    for (QLineEdit* line : lines) {
        // Moving a cursor that is already there would only clear the selection.
        if (line->cursorPosition() != 0)
            line->setCursorPosition(0);
    }
}
