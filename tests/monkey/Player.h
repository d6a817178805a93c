// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "EditorOracle.h"
#include "Stage.h"
#include "UndoOracle.h"

#include <QElapsedTimer>
#include <QObject>

#include <vector>

/// Plays steps, one whenever the program has handled the one before, from whatever loop it is in
/// then: a dialog's, a menu's, a drag's. In between it looks whether all is as it should be; the
/// first thing that isn't ends the process with a line on the standard output stream.
class Player : public QObject {
    Q_OBJECT
public:
    /// Who takes part in a round.
    enum class Cast {
        PersonAlone, ///< what the scene holds follows from undo steps
        PersonAndScene, ///< the program writes fields and changes the graph, too
    };
    /// Exit status of a process that has found something by itself.
    static constexpr int foundStatus = 3;

    Player(quint64 seed, std::vector<int> steps);

    /// Returns when all steps have been played.
    void run();
    /// Ends the process.
    [[noreturn]] static void fail(const QString& what);

    static Cast castOf(quint64 seed) { return seed % 2 ? Cast::PersonAlone : Cast::PersonAndScene; }

protected:
    bool event(QEvent* event) override;

private:
    void aboutToBlock();
    void turn();
    void play(int step, bool inDialog);
    bool answerFileDialog(StepRandom& random);
    void leaveDialogs();
    bool isSettled();
    void check();
    void end();

    const quint64 m_seed;
    const std::vector<int> m_steps;
    Stage m_stage;
    EditorOracle m_editorOracle;
    UndoOracle m_undoOracle;
    std::size_t m_next = 0;
    int m_knownBeginnings = 0; // of the stage, when the undo oracle began
    bool m_isPosted = false; // an event of the next turn is under way
    int m_busyLevel = 0; // of the loop that a turn has been made in
    int m_leaving = 0; // turns that were spent on closing dialogs
    QElapsedTimer m_waiting; // for the sensors' queue; valid while it isn't empty
};
