// SPDX-License-Identifier: BSD-3-Clause
#include "PauseAction.h"

#include "CrvServices.h"

PauseAction::PauseAction(QObject* parent)
    : QAction(tr("&Pause"), parent)
{
    setObjectName(QStringLiteral("pauseAction"));
    setCheckable(true);
    setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
    setToolTip(tr("Hold what is shown while the program runs on (%1)")
                   .arg(shortcut().toString(QKeySequence::NativeText)));
    CrvServices* const services = CrvServices::getInstance();
    setChecked(services->isPaused());
    connect(this, &QAction::toggled, services, &CrvServices::setPaused);
    connect(services, &CrvServices::pausedChanged, this, &QAction::setChecked);
}
