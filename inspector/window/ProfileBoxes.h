// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QComboBox;
class QToolBar;

/// Has the boxes in tool bars that list the profiles show the active one, wherever it was chosen:
/// an extension fills its box only when it is activated.
class ProfileBoxes : public QObject {
    Q_OBJECT
public:
    explicit ProfileBoxes(QObject* parent);

    void follow(const QToolBar* toolBar);

private:
    void showActiveProfile();

    std::vector<QPointer<QComboBox>> m_boxes; // of extensions
};
