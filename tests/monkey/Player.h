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

    /// `stage` outlives it.
    Player(Stage& stage, Cast cast);

    /// Plays these steps of the seed's round, and returns when all have been played.
    void run(quint64 seed, std::vector<int> steps);
    /// Before this step the program will write a field that nobody may write: a fault that has to
    /// be found.
    void plantFault(int step) { m_plantedStep = step; }
    /// How often something could be said about what an editor shows.
    int comparisons() const { return m_editorOracle.comparisons(); }
    /// Ends the process.
    [[noreturn]] static void fail(const QString& what);

protected:
    bool event(QEvent* event) override;

private:
    void aboutToBlock();
    void turn();
    void play(int step, bool inDialog);
    bool answerFileDialog(StepRandom& random);
    void leaveDialogs();
    bool isSettled();
    bool isFollowed();
    bool check();
    void end();

    Stage& m_stage;
    const Cast m_cast;
    quint64 m_seed = 0;
    std::vector<int> m_steps;
    int m_plantedStep = -1; // none
    EditorOracle m_editorOracle;
    UndoOracle m_undoOracle;
    std::size_t m_next = 0;
    int m_knownBeginnings = 0; // of the stage, when the undo oracle began
    bool m_isPosted = false; // an event of the next turn is under way
    int m_busyLevel = 0; // of the loop that a turn has been made in
    int m_leaving = 0; // turns that were spent on closing dialogs
    QElapsedTimer m_waiting; // for the sensors' queue; valid while it isn't empty
    QElapsedTimer m_behind; // valid while a panel doesn't show what the scene holds
};
