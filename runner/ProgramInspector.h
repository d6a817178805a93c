// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvInspector.h"
#include "LooseObjects.h"
#include "ModalExemption.h"
#include "Outline.h"
#include "OwnObjects.h"

#include <QBasicTimer>
#include <QObject>
#include <QObjectList>

#include <memory>

class ProgramSession;

/// The inspector in a program that knows nothing of it. Shows the program's objects, follows
/// windows that come and go, and selects the widget that is clicked with Ctrl and Shift held, which
/// also brings back a window that was closed. It looks at the events of the program's windows for
/// that, and takes none but this click.
class ProgramInspector : public QObject {
    Q_OBJECT
public:
    /// Needs a QApplication. Opens the window, and selects what the command line asks for unless
    /// that is left to an answer.
    explicit ProgramInspector(const ProgramSession& session);
    ~ProgramInspector() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void lookAtLoose(ObjectRegister::Look look);
    bool isOpen() const { return m_exemption != nullptr; }
    void windowOpened();
    void windowClosed();
    void rootDestroyed();
    void updateRootsSoon();
    void updateRoots();
    void select(QObject* object);

    LooseObjects* const m_loose; // m_looseNode owns it
    const KnNodePtr m_looseNode;
    CrvInspector m_inspector;
    OwnObjects m_own;
    Outline m_outline;
    std::unique_ptr<ModalExemption> m_exemption; // null while the window is closed
    QObjectList m_roots; // what is shown; empty when that has to change
    QBasicTimer m_news; // runs while objects have come that nobody has looked at
    bool m_updateWaits = false;
};
