// SPDX-License-Identifier: BSD-3-Clause
#include "StatusLine.h"

#include "CrvServices.h"
#include "ElidedLabel.h"

#include <QApplication>

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent)
    , m_label(new ElidedLabel(Qt::ElideRight, this))
{
    setObjectName(QStringLiteral("statusLine"));
    setSizeGripEnabled(false);
    m_label->setObjectName(QStringLiteral("statusHint"));
    m_label->setContentsMargins(fontMetrics().averageCharWidth(), 0, 0, 0);
    addWidget(m_label, 1);
    connect(qApp, &QApplication::focusChanged, this, &StatusLine::showHint);
    connect(
        CrvServices::getInstance(), &CrvServices::selectedNodeChanged, this, &StatusLine::showHint);
    showHint();
}

void StatusLine::setHint(QWidget* pane, const QString& hint)
{
    if (!m_hints.contains(pane))
        connect(pane, &QObject::destroyed, this, [this, pane] { m_hints.remove(pane); });
    m_hints.insert(pane, hint);
    showHint();
}

void StatusLine::showHint()
{
    const QWidget* focus = QApplication::focusWidget();
    // A popup, and another window in front, leave the hint as it is.
    if (m_label->wholeText().isEmpty())
        focus = window()->focusWidget();
    else if (!focus || focus->window() != window())
        return;
    QString hint;
    for (; focus && hint.isEmpty(); focus = focus->parentWidget())
        hint = m_hints.value(focus);
    if (hint.isEmpty() && !CrvServices::getInstance()->getSelectedNode())
        hint = tr("Choose a node in the scene to see its fields");
    m_label->setWholeText(
        hint.isEmpty() ? tr("F6 goes to the next pane, F1 lists all keys") : hint);
}
