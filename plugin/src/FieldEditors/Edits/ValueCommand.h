// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "KbString.h"

/// What all commands that give one place a new value share: the place and its two texts. A command
/// is made before the place is written; the host's call of `execute` then reads what was written,
/// and the write isn't repeated. `Place` says what is edited: `get(KbString&)` reads its text and
/// `set(const KbString&)` writes it.
template <class Place>
class ValueCommand : public CrvCommand {
public:
    void execute() override { m_place.get(m_newValue); }
    void undo() override { m_place.set(m_oldValue); }
    void redo() override { m_place.set(m_newValue); }

protected:
    /// Reads the old text now.
    explicit ValueCommand(const Place& place)
        : m_place(place)
    {
        m_place.get(m_oldValue);
    }

    /// `oldValue` is the text from before the edit, which is used up: it is made null. A null or
    /// empty one stands for the present text.
    ValueCommand(const Place& place, KbString& oldValue)
        : m_place(place)
    {
        if (oldValue.isNull() || oldValue.isEmpty()) {
            m_place.get(m_oldValue);
            return;
        }
        m_oldValue = oldValue;
        oldValue.makeNull();
    }

private:
    Place m_place;
    KbString m_oldValue;
    KbString m_newValue;
};
