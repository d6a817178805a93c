// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvCommand.h"
#include "KbString.h"

/// What the commands share that give one place a new value: the place and its two texts. A command
/// is made before the place is written. `execute`, which the host calls afterwards, reads the new
/// text and doesn't write it again. `Place` says what is edited: `get(KbString&)` reads its text
/// and `set(const KbString&)` writes it.
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

    /// `oldValue` is the text from before the edit; it is made null when it is taken. If it is null
    /// or empty, the place's current text is read instead.
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
