// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvChangeRecorder.h"

#include <QUndoCommand>

#include <memory>
#include <vector>

class CrvCommand;
class CrvUndoSteps;

/// One step of the undo stack: the commands that a gesture or a group was made of, in order, all of
/// them executed already. It keeps their nodes alive.
class CrvUndoStep : public QUndoCommand {
public:
    struct Part {
        std::unique_ptr<CrvCommand> command;
        KnNodePtr node; // that was selected
        KnNodePtr fieldNode; // has the field; null if that stands alone
        KnField* field = nullptr; // that the command most likely wrote; null if not known
    };

    /// Steps of one gesture follow each other as one; 0 for a step that stands alone. `steps`
    /// outlives it.
    CrvUndoStep(CrvUndoSteps& steps, int gesture);
    ~CrvUndoStep() override;

    /// With what the command, and the editor before it, has written.
    void add(Part part, CrvChanges changes);
    /// What it says whatever it does.
    void setFixedText(const QString& text);
    int gesture() const { return m_gesture; }
    bool isEmpty() const { return m_parts.empty(); }
    /// Whether the last that it did was to write cells without a command.
    bool endsWithCell() const;
    /// What is known to have been written.
    const CrvChanges& changes() const { return m_changes; }
    /// Whether the fields certainly hold what they held before.
    bool isIdle() const;

    int id() const override { return 1; }
    /// An empty step of the same gesture only tells the stack that this one has grown, or is
    /// obsolete by now.
    bool mergeWith(const QUndoCommand* later) override;
    void undo() override;
    void redo() override;

private:
    void restoreValues();
    void announce() const;

    CrvUndoSteps& m_steps;
    const int m_gesture;
    bool m_isPushed = false;
    bool m_hasFixedText = false;
    CrvChanges m_changes;
    std::vector<Part> m_parts;
};
