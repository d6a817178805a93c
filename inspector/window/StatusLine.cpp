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
    // The program may select while its own window is in front.
    connect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, this,
        [this] { showHintOf(window()->focusWidget()); });
    showHintOf(window()->focusWidget());
}

void StatusLine::setHint(QWidget* pane, const QString& hint)
{
    if (!m_hints.contains(pane))
        connect(pane, &QObject::destroyed, this, [this, pane] { m_hints.remove(pane); });
    m_hints.insert(pane, hint);
    showHintOf(window()->focusWidget());
}

void StatusLine::showHint()
{
    const QWidget* const focus = QApplication::focusWidget();
    // A popup, and another window in front, leave the hint as it is.
    if (focus && focus->window() == window())
        showHintOf(focus);
}

void StatusLine::showHintOf(const QWidget* focus)
{
    QString hint;
    for (; focus && hint.isEmpty(); focus = focus->parentWidget())
        hint = m_hints.value(focus);
    if (hint.isEmpty() && !CrvServices::getInstance()->getSelectedNode())
        hint = tr("Choose a node in the scene to see its fields");
    m_label->setWholeText(
        hint.isEmpty() ? tr("F6 goes to the next pane, F1 lists all keys") : hint);
}
