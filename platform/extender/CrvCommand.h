// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// One undoable edit. The host owns it from CrvServices::executeCommand on.
class CrvCommand {
public:
    CrvCommand() = default;
    CrvCommand(const CrvCommand&) = delete;
    CrvCommand& operator=(const CrvCommand&) = delete;

    /// Called once by the host when it takes the command over.
    virtual void execute() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual ~CrvCommand();
};
