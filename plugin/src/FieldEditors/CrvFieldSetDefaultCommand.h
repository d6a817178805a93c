// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "KbString.h"

class KnField;

/// A reset of a field to its default value, held as text.
class CrvFieldSetDefaultCommand : public CrvCommand {
public:
    /// Reads both texts now; `defaultField` isn't needed afterwards. The field is not owned.
    CrvFieldSetDefaultCommand(KnField* field, KnField* defaultField);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    KnField* m_field; // not owned
    KbString m_defaultValue;
    KbString m_oldValue;
};
