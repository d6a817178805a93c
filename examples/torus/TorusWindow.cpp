// SPDX-License-Identifier: BSD-3-Clause
#include "TorusWindow.h"

#include "TorusScene.h"

#include <QVBoxLayout>
#include <Qt3DExtras/QForwardRenderer>
#include <Qt3DExtras/Qt3DWindow>
#include <Qt3DRender/QCamera>

TorusWindow::TorusWindow()
    : m_view(new Qt3DExtras::Qt3DWindow)
    , m_scene(new TorusScene)
{
    setObjectName(QStringLiteral("torusWindow"));
    setWindowTitle(QStringLiteral("Torus"));
    m_view->setObjectName(QStringLiteral("torusView"));
    m_view->defaultFrameGraph()->setClearColor(QColor(40, 44, 52));
    Qt3DRender::QCamera* const camera = m_view->camera();
    camera->setObjectName(QStringLiteral("camera"));
    camera->lens()->setPerspectiveProjection(45, 4.0F / 3, 0.1F, 100);
    camera->setPosition(QVector3D(0, 0, 14));
    camera->setViewCenter(QVector3D(0, 0, 0));
    m_view->setRootEntity(m_scene);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    QWidget* const container = createWindowContainer(m_view, this);
    container->setObjectName(QStringLiteral("torusContainer"));
    layout->addWidget(container);
    resize(640, 480);
}

QObject* TorusWindow::scene() const { return m_scene; }

QObject* TorusWindow::camera() const { return m_view->camera(); }
