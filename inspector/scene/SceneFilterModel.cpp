// SPDX-License-Identifier: BSD-3-Clause
#include "SceneFilterModel.h"

#include <QElapsedTimer>
#include <QTimerEvent>

#include <utility>

namespace {

constexpr int slice = 15; // in milliseconds, that a key or a frame may have to wait

} // namespace

SceneFilterModel::SceneFilterModel(QObject* parent)
    : SceneModel(&m_filter, parent)
    , m_filter(graphChanged, this)
{
}

void SceneFilterModel::setFilterText(const QString& text)
{
    const NodeQuery query(text);
    m_error = query.errorText();
    if (!m_error.isEmpty())
        return;
    m_searching = true;
    m_spent = 0;
    m_again = false;
    m_filter.begin(query, roots());
    work();
}

QVariant SceneFilterModel::data(const QModelIndex& index, int role) const
{
    return role == MatchRole ? QVariant(isMatch(index)) : SceneModel::data(index, role);
}

bool SceneFilterModel::isMatch(const QModelIndex& index) const
{
    KnFieldContainer* const rowNode = node(index);
    return rowNode && isFiltering() && m_filter.isMatch(*rowNode);
}

void SceneFilterModel::graphChanged(void* data, KnSensor*)
{
    static_cast<SceneFilterModel*>(data)->lookAgain();
}

void SceneFilterModel::namesChanged()
{
    if (isFiltering())
        lookAgain();
}

void SceneFilterModel::lookAgain()
{
    m_again = m_filter.isWorking();
    if (!m_timer.isActive())
        m_timer.start(m_pause, this);
}

void SceneFilterModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        SceneModel::timerEvent(event);
        return;
    }
    if (!m_filter.isWorking()) {
        m_spent = 0;
        m_again = false;
        m_filter.begin(m_filter.query(), roots());
    }
    work();
}

void SceneFilterModel::work()
{
    constexpr int pauseFactor = 9;
    QElapsedTimer time;
    time.start();
    if (!m_filter.work(QDeadlineTimer(slice))) {
        m_spent += static_cast<int>(time.elapsed());
        m_timer.start(0, this);
        return;
    }
    m_timer.stop();
    const bool isNew = std::exchange(m_searching, false);
    if (isNew)
        startAnew();
    else
        followAll();
    m_spent += static_cast<int>(time.elapsed());
    m_pause = pauseFactor * m_spent;
    if (std::exchange(m_again, false))
        m_timer.start(m_pause, this);
    if (isNew)
        Q_EMIT filtered();
}
