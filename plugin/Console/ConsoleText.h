// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTextCursor>

class QColor;
class QScrollBar;
class QTextEdit;

/// From this length on a word makes the view wrap anywhere, and a message is laid out by itself.
constexpr qsizetype longWord = 4000;

/// Adds the text as it stands, in that colour, as a paragraph of its own behind all others. Neither
/// mark-up nor a selection changes what is shown.
void appendMessage(QTextEdit& view, const QString& text, const QColor& color);

/// Empties the view, which wraps at words again.
void clearMessages(QTextEdit& view);

/// Lets a view stay as the user left it while text is added at its end: at the end if it stood
/// there, and with the selection that it had, which would grow if it reached to the end.
class KeepPlace {
public:
    explicit KeepPlace(QTextEdit& view);
    ~KeepPlace();
    Q_DISABLE_COPY_MOVE(KeepPlace)

private:
    QScrollBar& bar() const;

    QTextEdit& m_view;
    const int m_anchor;
    const int m_position;
    const bool m_atEnd;
};
