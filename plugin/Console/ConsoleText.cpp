// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleText.h"

#include <QScrollBar>
#include <QTextBoundaryFinder>
#include <QTextDocument>
#include <QTextEdit>

namespace {

/// Whether the text has a stretch of at least `longWord` without a place to break a line.
bool hasLongWord(const QString& text)
{
    if (text.size() < longWord)
        return false;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        if (end - start >= longWord)
            return true;
        start = end;
    }
    return false;
}

} // namespace

void appendMessage(QTextEdit& view, const QString& text, const QColor& color)
{
    // Wrapping at words looks for the end of the word anew in each line that a long word fills:
    // 300,000 characters without a blank take seconds and ten million never end. Wrapping anywhere
    // takes the same time for each character, a second for ten million, and unlike no wrapping at
    // all it leaves everything within the view's width. The mode is the whole view's and changing
    // it costs a layout of all that it holds, as a change of its width does. So it holds from the
    // first such word until the view is emptied; without one the lines of a log wrap at words.
    if (view.wordWrapMode() != QTextOption::WrapAnywhere && hasLongWord(text))
        view.setWordWrapMode(QTextOption::WrapAnywhere);
    // The view's own append would take a text that looks like mark-up for mark-up, and setting a
    // colour would give it to the text that the user has selected.
    if (!Qt::mightBeRichText(text) && !view.textCursor().hasSelection()) {
        view.setTextColor(color);
        view.append(text);
        return;
    }
    QTextCharFormat format;
    format.setForeground(color);
    QTextCursor cursor(view.document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    if (!view.document()->isEmpty())
        cursor.insertBlock(QTextBlockFormat(), format);
    cursor.insertText(text, format);
    cursor.endEditBlock();
}

void clearMessages(QTextEdit& view)
{
    view.clear();
    view.setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

KeepPlace::KeepPlace(QTextEdit& view)
    : m_view(view)
    , m_anchor(view.textCursor().anchor())
    , m_position(view.textCursor().position())
    , m_atEnd(bar().value() >= bar().maximum())
{
}

KeepPlace::~KeepPlace()
{
    const int value = bar().value();
    QTextCursor cursor = m_view.textCursor();
    if (m_anchor != m_position
        && (cursor.anchor() != m_anchor || cursor.position() != m_position)) {
        cursor.setPosition(m_anchor);
        cursor.setPosition(m_position, QTextCursor::KeepAnchor);
        // This scrolls to the selection; the bar is put back below.
        m_view.setTextCursor(cursor);
    }
    bar().setValue(m_atEnd ? bar().maximum() : value);
}

QScrollBar& KeepPlace::bar() const { return *m_view.verticalScrollBar(); }
