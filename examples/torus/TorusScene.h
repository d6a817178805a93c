// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <Qt3DCore/QEntity>

/// A torus in the light of one lamp. Everything has an object name.
class TorusScene : public Qt3DCore::QEntity {
    Q_OBJECT
public:
    TorusScene();

private:
    void addTorus();
    void addLamp();
};
