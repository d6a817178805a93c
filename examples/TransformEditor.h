// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvEditor.h"
#include "KnFieldSensor.h"

#include <QFrame>

class KnTransform;
class QLabel;

/// A node editor for transforms: says how far the node is moved, and moves it back.
class TransformEditor : public CrvEditor {
    Q_OBJECT
public:
    TransformEditor();

    void load() override;
    void activate() override;
    void deactivate() override;

private:
    static void translationChanged(void* data, KnSensor* sensor);
    KnTransform* transform() const;
    void refresh();
    void moveBack();

    QFrame m_frame; // what the dock shows; has no parent but the dock
    QLabel* m_distance = nullptr; // child of the frame
    KnFieldSensor m_sensor;
};
