// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTextCursor>

class QColor;
class QScrollBar;
class QTextEdit;

// How messages go into the console's view, which the callers own. All of this runs on the view's
// thread, the one of the user interface.

/// A word of this length, in UTF-16 code units, makes the view wrap anywhere. A message that may
/// hold one is laid out by itself.
constexpr qsizetype longWord = 4000;

/// Adds the text as it stands, in that colour, as a paragraph of its own behind all others. Neither
/// mark-up nor a selection changes what is shown.
void appendMessage(QTextEdit& view, const QString& text, const QColor& color);

/// Empties the view, which wraps at words again.
void clearMessages(QTextEdit& view);

/// While it lives, text is added at the end of the view; then the view is again as the user left
/// it: scrolled to the end if it was there, and with its old selection, which would grow if it
/// reached to the end. The view outlives this object.
class KeepPlace {
public:
    explicit KeepPlace(QTextEdit& view);
    ~KeepPlace();
    Q_DISABLE_COPY_MOVE(KeepPlace)

private:
    QScrollBar& bar() const;

    QTextEdit& m_view;
    const int m_anchor; // of the selection, in characters from the start
    const int m_position;
    const bool m_atEnd;
};
