// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <QStringList>

#include <memory>
#include <vector>

class CrvCommand;
class KnField;
class KnFieldContainer;
class KnMField;

/// What a person does to one or several fields in one go, and takes back in one go.
class FieldStep {
public:
    FieldStep();
    ~FieldStep();
    Q_DISABLE_COPY_MOVE(FieldStep)

    /// Writes the field at once. A refused text changes nothing of it and gives false; `refusal`
    /// says why. A text of what the field holds anyway is no change.
    bool setText(KnField& field, const KbString& text);
    enum class Rows { Insert, Overwrite };
    /// Writes the values of a text like that of a whole array into an array, from row `start` on:
    /// before the rows that stand there, or over them and beyond the end. Refuses as above. The
    /// work grows with the new rows, not with the array.
    bool setRows(KnMField& field, int start, Rows how, const KbString& text);

    /// The same with the field's own default.
    bool reset(KnField& field);

    /// The kernel's message on the last text that was refused.
    const QString& refusal() const { return m_refusal; }
    /// Names the fields that were left as they are because they are read-only; empty for none.
    QString readOnlyNote() const;
    /// How many fields have changed.
    int count() const { return static_cast<int>(m_commands.size()); }

    /// Hands the changes to the services as one step of the undo stack; none make no step. The step
    /// bears this text, or says from what to what if it is of one field only.
    void finish(const QString& text);

private:
    template <class Write>
    bool write(KnField& field, Write write);
    bool mayWrite(const KnField& field);
    void add(std::unique_ptr<CrvCommand> command, const KnField& field, const QString& before);

    std::vector<std::unique_ptr<CrvCommand>> m_commands;
    QString m_change; // what happened to the last field
    QString m_refusal;
    QStringList m_readOnly; // names
};

/// How a step names what it is about: "Desk lamp", or "3 nodes".
QString nodesLabel(const std::vector<KnFieldContainer*>& nodes);
