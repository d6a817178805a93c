// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNameSensor.h"

#include <QWidget>

class ElidedLabel;
class QDockWidget;
class QToolButton;

/// The title bar of a dock for editors: it says which field or node is edited there, behind the
/// title of the dock, and has the usual two buttons.
class EditorHeading : public QWidget {
    Q_OBJECT
public:
    /// The dock owns it.
    explicit EditorHeading(QDockWidget* dock);

    /// Gives the dock its own title bar back.
    static void remove(QDockWidget* dock);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QToolButton* addButton(const QString& name, const QString& tip);
    void showObject();
    static void namesChanged(void* data, KnSensor* sensor);

    QDockWidget* const m_dock; // the parent
    ElidedLabel* m_text; // child
    QToolButton* m_floatButton = nullptr; // child
    KnNameSensor m_names { namesChanged, this }; // attached while the dock can be seen
};
