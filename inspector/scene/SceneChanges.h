// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldSensor.h"

#include <QObject>

#include <memory>
#include <unordered_map>
#include <vector>

class KnFieldContainer;
class QUndoStack;

/// Says whether the scene differs from what was last read or saved. The undo stack alone doesn't
/// know, since some edits write a field without a command; so the fields of every node that was
/// ever selected are watched, for as long as node and scene live, and compared with what was saved.
/// A field that is too large to be compared at each change counts as changed after the first write
/// that came without a command.
class SceneChanges : public QObject {
    Q_OBJECT
public:
    explicit SceneChanges(QUndoStack* stack, QObject* parent = nullptr);
    ~SceneChanges() override;

    /// Watches the node's fields from now on, without keeping the node alive. A node that dies is
    /// forgotten, and no longer differs.
    void watch(KnFieldContainer* node);
    /// Takes what the fields hold now for what was saved, and marks the undo stack as clean.
    void markSaved();
    /// Before the scene goes away.
    void forgetNodes();

    bool isModified() const { return m_modified; }

Q_SIGNALS:
    void modifiedChanged(bool modified);

private:
    class Watch;

    void stackMoved();
    void fieldTouched(Watch& watch);
    void forget(const KnFieldContainer* node);
    static void endBatch(void* data, KnSensor* sensor);
    static void nodesForgotten(void* data, KnSensor* sensor);
    void update();

    QUndoStack* m_stack; // the host's
    // The nodes are alive, since a node that dies takes its watches along.
    std::unordered_map<const KnFieldContainer*, std::vector<std::unique_ptr<Watch>>> m_watches;
    int m_differing = 0; // watches that differ
    bool m_commandInBatch = false; // what is touched now may be a command's doing
    KnSensor m_batchEnd; // runs after the sensors of the fields that a command has touched
    KnSensor m_forgotten; // runs once dead nodes are gone for good
    bool m_modified = false;
};
