// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "CrvFieldRecord.h"

#include <vector>

/// The edit of rows of an array that an editor has written without a command. Its cost is that of
/// the rows, whatever the length of the array. The array's node must be kept by somebody else.
class CrvRowsCommand : public CrvCommand {
public:
    /// Of the rows that were written as text, which is how editors write, and hold something else
    /// now. Null if there are none.
    static std::unique_ptr<CrvRowsCommand> make(const CrvFieldRecord& record);

    void execute() override { }
    void undo() override;
    void redo() override;
    /// Takes over a later edit of the same rows. False, and nothing happens, if it is of others.
    bool absorb(CrvRowsCommand& later);

private:
    struct Place {
        int start;
        std::shared_ptr<const KnRows> before;
        std::unique_ptr<KnRows> after;
    };

    explicit CrvRowsCommand(KnMField& array)
        : m_array(array)
    {
    }

    KnMField& m_array;
    std::vector<Place> m_places; // none of them twice
};
