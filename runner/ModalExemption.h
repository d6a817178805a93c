// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QWidget;
class QWindow;

/// Keeps the inspector's windows usable while a modal window of the program is up, which blocks all
/// other windows of the process. Qt excepts windows that belong to the modal one, so the
/// inspector's belong to it for that time, as far as Qt is concerned. The window system isn't told,
/// since it only asks when a window is shown. The inspector's own dialogs block no window of the
/// program's.
class ModalExemption : public QObject {
    Q_OBJECT
public:
    /// For `mainWindow` and all windows that belong to it by way of their parents.
    explicit ModalExemption(QWidget* mainWindow);
    ~ModalExemption() override;

    /// To be called when a window of the inspector's is blocked, which Qt announces to it by an
    /// event.
    void windowBlocked();
    /// To be called with a window of the inspector's that is about to be shown.
    void windowPolished(QWidget* window);

private:
    struct Lent {
        QPointer<QWindow> window;
        QPointer<QWindow> parent; // which it belongs to otherwise
    };

    void update();
    void lend(QWindow* window, QWindow* blocker);
    void giveBack();
    void follow(QWindow* window);
    std::vector<QWindow*> ownWindows() const;

    QWidget* m_mainWindow;
    std::vector<Lent> m_lent;
    bool m_updating = false;
};
