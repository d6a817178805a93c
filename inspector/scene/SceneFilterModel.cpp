// SPDX-License-Identifier: BSD-3-Clause
#include "SceneFilterModel.h"

#include <QElapsedTimer>
#include <QTimerEvent>

SceneFilterModel::SceneFilterModel(QObject* parent)
    : SceneModel(&m_filter, parent)
    , m_filter(graphChanged, this)
{
}

void SceneFilterModel::setFilterText(const QString& text)
{
    m_filter.setText(text);
    lookThrough();
}

void SceneFilterModel::graphChanged(void* data, KnSensor*)
{
    auto* const model = static_cast<SceneFilterModel*>(data);
    if (!model->m_timer.isActive())
        model->m_timer.start(model->m_pause, model);
}

void SceneFilterModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId())
        lookThrough();
    else
        SceneModel::timerEvent(event);
}

void SceneFilterModel::lookThrough()
{
    constexpr int pauseFactor = 9;
    m_timer.stop();
    QElapsedTimer time;
    time.start();
    m_filter.begin();
    followAll();
    m_filter.end();
    m_pause = pauseFactor * static_cast<int>(time.elapsed());
}
