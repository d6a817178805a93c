// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvChangeRecorder.h"
#include "CrvUndoStep.h"

#include <QObject>

#include <memory>

class CrvSensorPump;
class QUndoStack;

/// Makes steps of the undo stack out of commands. Each command is executed once and at once, in the
/// order in which they come; what becomes a step is up to the host:
/// - `EachCommand`, the default: each command is a step.
/// - `Gestures`: what a person does in one go is a step. The host tells where a gesture begins and
///   ends, and brackets the input that it is made of. What is written meanwhile is recorded, so
///   that commands that have changed nothing make no step, and rows that were written without a
///   command make one. A command that comes outside of any input is the program's, and a step.
class CrvUndoSteps : public QObject {
    Q_OBJECT
public:
    enum class Grouping { EachCommand, Gestures };

    /// A child of `parent`. The pump outlives it.
    CrvUndoSteps(CrvSensorPump& pump, QObject* parent);
    ~CrvUndoSteps() override;

    QUndoStack* stack() const { return m_stack; }
    /// How many commands were executed so far, whatever has become of them.
    int executedCommands() const { return m_executedCommands; }

    void setGrouping(Grouping grouping);
    Grouping grouping() const { return m_grouping; }

    /// A person begins something new. Ends the gesture before it. Ignored while each command is a
    /// step, as are the following.
    void beginGesture();
    /// If the fields hold what they held when it began, its step is taken off the stack.
    void endGesture();
    /// An input of a person is about to be handled. Settles the one before it.
    void beginInput();
    /// The input has been handled: rows that it wrote without a command become a part of the
    /// gesture's step.
    void endInput();

    /// Commands that are executed until the end of the group are one step, which bears this text.
    /// Groups nest; the outermost one is the step.
    void beginGroup(const QString& text);
    void endGroup();

    /// For CrvServices: takes over a command that was made while `node` was selected and an editor
    /// showed `field`; both may be null.
    void execute(std::unique_ptr<CrvCommand> command, KnFieldContainer* node, KnField* field);
    /// For CrvServices: which field an editor shows, and which node is selected. The former ones
    /// are still alive.
    void setShown(KnFieldContainer* node, KnField* field);

Q_SIGNALS:
    /// Steps were undone or redone, the last of which has written this field, as far as is known.
    void stepMoved(KnField* field);

private:
    friend class CrvUndoStep;

    void record();
    void settle();
    bool isInput() const { return m_recorder.isRecording() && !m_group; }
    bool mayGrow() const;
    CrvChanges run(CrvCommand& command);
    void addPart(CrvUndoStep::Part part, CrvChanges changes);
    void push(std::unique_ptr<CrvUndoStep> step);
    void indexChanged();
    /// A step was undone or redone, or grows.
    void announce(const CrvUndoStep::Part& part);
    void forget(const CrvUndoStep& step);

    QUndoStack* m_stack; // child
    CrvSensorPump& m_pump;
    Grouping m_grouping = Grouping::EachCommand;
    int m_executedCommands = 0;
    int m_gesture = 0; // none
    int m_lastGesture = 0;
    CrvUndoStep* m_open = nullptr; // the stack's, of the gesture; takes in what follows
    bool m_isPushing = false;
    std::unique_ptr<CrvUndoStep> m_group; // grows while there are groups
    int m_groupDepth = 0;
    bool m_groupIsInput = false; // the group began while an input was handled
    CrvChangeRecorder m_recorder;
    KnFieldContainer* m_node = nullptr; // selected
    KnField* m_field = nullptr; // shown by an editor
    KnNodePtr m_movedNode; // has m_movedField
    KnField* m_movedField = nullptr; // of the step that was undone or redone last
};
