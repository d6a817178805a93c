// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvExtension.h"

class QComboBox;
class QToolBar;

/// A tool bar at the top of the host's window that lists the host's profiles and shows the active
/// one; choosing another makes that one active. The list is read at `activate` and at no other
/// time: an entry stands for the profile at its position in the host's list.
class CrvProfileSelectorExtension : public CrvExtension {
    Q_OBJECT
public:
    CrvProfileSelectorExtension();
    ~CrvProfileSelectorExtension() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

private Q_SLOTS:
    void s_currentIndexChanged(int index);

private:
    QToolBar* m_toolBar = nullptr; // owned, from load to unload
    QComboBox* m_comboBox = nullptr; // child of the tool bar
};
