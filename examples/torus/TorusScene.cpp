// SPDX-License-Identifier: BSD-3-Clause
#include "TorusScene.h"

#include <Qt3DCore/QTransform>
#include <Qt3DExtras/QPhongMaterial>
#include <Qt3DExtras/QTorusMesh>
#include <Qt3DRender/QPointLight>

namespace {

/// A part of an entity, with a name.
template <class Component>
Component* add(Qt3DCore::QEntity* entity, const char* name)
{
    auto* const component = new Component(entity);
    component->setObjectName(QLatin1String(name));
    entity->addComponent(component);
    return component;
}

} // namespace

TorusScene::TorusScene()
{
    setObjectName(QStringLiteral("scene"));
    addTorus();
    addLamp();
}

void TorusScene::addTorus()
{
    auto* const torus = new Qt3DCore::QEntity(this);
    torus->setObjectName(QStringLiteral("torus"));
    auto* const mesh = add<Qt3DExtras::QTorusMesh>(torus, "torusMesh");
    mesh->setRadius(3);
    mesh->setMinorRadius(1);
    mesh->setRings(60);
    mesh->setSlices(24);
    auto* const material = add<Qt3DExtras::QPhongMaterial>(torus, "torusMaterial");
    material->setDiffuse(QColor(200, 120, 30));
    material->setAmbient(QColor(60, 40, 20));
    auto* const transform = add<Qt3DCore::QTransform>(torus, "torusTransform");
    transform->setRotationX(40);
}

void TorusScene::addLamp()
{
    auto* const lamp = new Qt3DCore::QEntity(this);
    lamp->setObjectName(QStringLiteral("lamp"));
    add<Qt3DRender::QPointLight>(lamp, "lampLight")->setIntensity(1);
    add<Qt3DCore::QTransform>(lamp, "lampTransform")->setTranslation(QVector3D(8, 10, 12));
}
