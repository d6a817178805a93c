// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// What the cells of a table hold, by the numbers that WfMFieldTable::setEditorKind takes. A kind
/// fixes the editor that a cell of a one-column table gets, and the validator of any line edit.
enum EditorKind : int {
    PlainTextKind = 0,
    Int16Kind = 1,
    UInt16Kind = 2,
    WholeNumberKind = 3,
    UnsignedNumberKind = 4,
    Int32Kind = 5,
    UInt32Kind = 6,
    FloatKind = 7,
    DoubleKind = 8,
};
