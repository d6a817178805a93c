// SPDX-License-Identifier: BSD-3-Clause
#include "FieldLineEdit.h"

#include <QLabel>
#include <QToolTip>

#include <algorithm>

FieldLineEdit::FieldLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("fieldLine"));
    setAutoFillBackground(true);
    // A row is hardly higher than its text.
    setFrame(false);
    connect(this, &QLineEdit::textEdited, this, &FieldLineEdit::dropReason);
}

FieldLineEdit::~FieldLineEdit() { delete m_reason; }

void FieldLineEdit::refuse(const QString& reason)
{
    dropReason();
    m_reason = new QLabel(reason, parentWidget());
    m_reason->setObjectName(QStringLiteral("refusal"));
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setWordWrap(true);
    m_reason->setMargin(fontMetrics().averageCharWidth());
    m_reason->setFrameShape(QFrame::Box);
    m_reason->setAutoFillBackground(true);
    m_reason->setPalette(QToolTip::palette());
    m_reason->setForegroundRole(QPalette::ToolTipText);
    m_reason->setBackgroundRole(QPalette::ToolTipBase);
    placeReason();
    m_reason->show();
}

QString FieldLineEdit::reason() const { return m_reason ? m_reason->text() : QString(); }

// Deleted later: while a window hides, the toolkit goes through the children that stand beside each
// other, and this may be one of the next.
void FieldLineEdit::dropReason()
{
    if (!m_reason)
        return;
    m_reason->hide();
    m_reason->deleteLater();
    m_reason.clear();
}

// Below the line, or above it where there is no room.
void FieldLineEdit::placeReason()
{
    if (!m_reason)
        return;
    const QRect room = parentWidget()->rect();
    const int width = std::min(room.width(), fontMetrics().averageCharWidth() * 60);
    const int height = m_reason->heightForWidth(width);
    const int x = std::clamp(geometry().left(), 0, room.width() - width);
    const bool fitsBelow = geometry().bottom() + height < room.bottom();
    m_reason->setGeometry(
        x, fitsBelow ? geometry().bottom() + 1 : geometry().top() - height, width, height);
    m_reason->raise();
}

void FieldLineEdit::moveEvent(QMoveEvent* event)
{
    QLineEdit::moveEvent(event);
    placeReason();
}

void FieldLineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    placeReason();
}

void FieldLineEdit::hideEvent(QHideEvent* event)
{
    // Not at once: Qt may be walking over the children of the parent.
    if (m_reason)
        m_reason->deleteLater();
    m_reason.clear();
    QLineEdit::hideEvent(event);
}
