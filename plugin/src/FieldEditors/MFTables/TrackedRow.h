// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldSensor.h"
#include "SeenRows.h"

class KnMField;

/// Follows a row of an array while a person edits it, so that the edit reaches this row or none. It
/// listens to which rows are written, come and go. Only where rows were written as a whole, so that
/// others may have moved to their places, does it go by what they hold.
class TrackedRow : private KnFieldSensor {
public:
    TrackedRow();

    /// Follows this row from now on.
    void look(KnMField& field, int row);
    /// Follows no row any more.
    void forget() { detach(); }

    /// How many values the field had at the last look.
    int count() const { return m_seen.count(); }
    /// Whether the row certainly is where it was at the last look; its value may have been written
    /// in place. With `isSameValue`, the caller knows it to hold the same, or doesn't mind.
    bool isInPlace(bool isSameValue) const;

private:
    void rowsReplaced(int start, int removed, int inserted) override;

    int m_row = -1;
    SeenRows m_seen;
    bool m_hasMoved = false;
    bool m_isWritten = false;
    bool m_areOthersWritten = false;
};
