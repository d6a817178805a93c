// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "KbString.h"
#include "KnNodePtr.h"

#include <vector>

class KnMField;

/// Rows of an array that others take the place of, held as texts. What it costs depends on these
/// rows alone. It keeps the field's node alive.
class FieldRowsCommand : public CrvCommand {
public:
    /// Reads the rows from `start` to `start + removed - 1`, which exist; `rows` come in their
    /// place. The field takes each of these texts, belongs to a node or outlives the command.
    FieldRowsCommand(KnMField& field, int start, int removed, std::vector<KbString> rows);

    /// To be called once, before the command is executed.
    void write();

    /// The field is written by then.
    void execute() override { }
    void undo() override;
    void redo() override;

private:
    void replace(const std::vector<KbString>& former, const std::vector<KbString>& rows);

    KnNodePtr m_node;
    KnMField& m_field;
    int m_start;
    std::vector<KbString> m_oldRows;
    std::vector<KbString> m_newRows;
};
