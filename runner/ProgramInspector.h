// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvInspector.h"
#include "ProgramRoots.h"

#include <QObject>

/// The inspector in a program that knows nothing of it. Shows the program's objects, follows
/// windows that come and go, and selects the widget that is clicked with Ctrl and Shift held. It
/// looks at the events of the program's windows for that, and takes none but this click.
class ProgramInspector : public QObject {
    Q_OBJECT
public:
    /// Needs a QApplication. Opens the window.
    ProgramInspector();
    ~ProgramInspector() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void rootDestroyed();
    void updateRootsSoon();
    void updateRoots();
    void select(QObject* object);

    CrvInspector m_inspector;
    OwnWidgets m_own;
    QObjectList m_roots; // what is shown; empty when that has to change
    bool m_updateWaits = false;
};
