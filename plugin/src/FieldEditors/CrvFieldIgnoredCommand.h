// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"

class KnField;

/// A change of a field's ignore flag.
class CrvFieldIgnoredCommand : public CrvCommand {
public:
    /// `ignored` is the flag's state after the edit. The field is not owned.
    CrvFieldIgnoredCommand(KnField* field, bool ignored);

    void execute() override;
    /// Sets the opposite of that state, whatever the flag is by then.
    void undo() override;
    void redo() override;

private:
    KnField* m_field; // not owned
    bool m_ignored;
};
