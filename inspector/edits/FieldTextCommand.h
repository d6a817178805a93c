// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "KbString.h"
#include "KnNodePtr.h"

class KnField;

/// A new value of a field of any type, held as text. It keeps the field's node alive.
class FieldTextCommand : public CrvCommand {
public:
    /// Reads the present text as the old one. The field belongs to a node or outlives the command.
    explicit FieldTextCommand(KnField& field);

    /// Writes the new value; to be called once, before the command is executed. A refused text
    /// changes nothing and gives false, after a KnReadError.
    bool write(const KbString& text);
    /// The same with the field's own default.
    bool writeOwnDefault();
    /// Whether the field holds something else now.
    bool hasChanged() const { return !(m_oldText == m_newText); }

    /// The field is written by then.
    void execute() override { }
    void undo() override;
    void redo() override;

private:
    bool keepNewText(bool isTaken);

    KnNodePtr m_node;
    KnField& m_field;
    KbString m_oldText;
    KbString m_newText;
};
