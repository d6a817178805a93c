// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMenu>

/// The File menu of a window on somebody else's scene, which can be copied into a file, but not
/// exchanged for another one.
class GuestFileMenu : public QMenu {
    Q_OBJECT
public:
    explicit GuestFileMenu(QWidget* parent);

private:
    void saveCopy();
};
