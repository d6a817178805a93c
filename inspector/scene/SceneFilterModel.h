// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "NodeFilter.h"
#include "SceneModel.h"

#include <QBasicTimer>

/// The tree of a scene that shows only the nodes whose name or type contains the filter text, upper
/// or lower case, and those above them. A change within a group that is shown arrives as in any
/// tree. Which groups are shown is looked through again after a change anywhere: at once in a small
/// scene, and in a large one so seldom that it takes a tenth of the time.
class SceneFilterModel : public SceneModel {
    Q_OBJECT
public:
    explicit SceneFilterModel(QObject* parent = nullptr);

    void setFilterText(const QString& text);
    bool isFiltering() const { return !m_filter.text().isEmpty(); }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    static void graphChanged(void* data, KnSensor* sensor);
    void lookThrough();

    NodeFilter m_filter;
    QBasicTimer m_timer; // runs while the graph has changed
    int m_pause = 0; // in milliseconds, before the graph is looked through again
};
