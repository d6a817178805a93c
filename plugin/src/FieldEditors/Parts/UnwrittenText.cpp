// SPDX-License-Identifier: BSD-3-Clause
#include "UnwrittenText.h"

#include "CrvFieldEditors.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

UnwrittenText::UnwrittenText(
    QLineEdit* line, const CrvFieldEditors* editor, std::function<void()> showField)
    : QObject(line)
    , m_line(line)
    , m_editor(editor)
    , m_showField(std::move(showField))
{
    m_line->installEventFilter(this);
}

bool UnwrittenText::eventFilter(QObject*, QEvent* event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if ((!isPress && event->type() != QEvent::ShortcutOverride)
        || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel) || !m_line->isModified()
        || !m_editor->isAttached())
        return false;
    event->accept();
    if (!isPress)
        return true; // so that no shortcut of the host takes the key
    m_showField();
    // In a popup the key goes on to close it.
    return m_line->window()->windowType() != Qt::Popup;
}

void dropUnwrittenTexts(const std::vector<QLineEdit*>& lines, const CrvFieldEditors* editor,
    const std::function<QString(std::size_t)>& fieldText)
{
    for (std::size_t i = 0; i < lines.size(); ++i) {
        QLineEdit* const line = lines[i];
        new UnwrittenText(line, editor, [line, fieldText, i] {
            line->setText(fieldText(i));
            line->setCursorPosition(0);
        });
    }
}
