// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

#include <vector>

class KnFieldContainer;

/// The nodes that were selected one after the other, to go back and forward. It keeps none alive:
/// one that has left the scene is skipped.
class SelectionHistory : public QObject {
    Q_OBJECT
public:
    explicit SelectionHistory(QObject* parent);

    void goBack() { go(-1); }
    void goForward() { go(1); }

private:
    void note(KnFieldContainer* node);
    void go(int direction);

    std::vector<const KnFieldContainer*> m_nodes; // only compared with what the graph has
    int m_place = -1; // of the node that was selected last
};
