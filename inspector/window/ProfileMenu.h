// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMenu>

class QActionGroup;

/// The profiles of the plug-in manager, of which one is active.
class ProfileMenu : public QMenu {
    Q_OBJECT
public:
    explicit ProfileMenu(QWidget* parent);

private:
    void listProfiles();
    void checkActiveProfile();
    void activate(QAction* action);

    QActionGroup* m_group; // child; the actions stand in the order of the profiles
};
