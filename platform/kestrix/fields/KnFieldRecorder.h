// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnRows.h"

#include <memory>

class KnField;
class KnMField;

/// Learns what fields hold before they are written, for whoever must be able to give that back. One
/// object records at a time; while none does, a write costs a comparison more. All functions that a
/// subclass overrides are called from inside a write, on the thread that may write; no field may be
/// written there, and no sensor may come or go.
class KnFieldRecorder {
public:
    /// How the rows of an array are written.
    enum class Writing {
        Text, ///< one row, as text
        Values, ///< everything else
    };

    KnFieldRecorder() = default;
    KnFieldRecorder(const KnFieldRecorder&) = delete;
    KnFieldRecorder& operator=(const KnFieldRecorder&) = delete;
    virtual ~KnFieldRecorder();

    /// Records from now on, in the place of whoever did.
    void start();
    void stop();
    bool isRecording() const { return activeRecorder == this; }

    /// Who records the writes of this thread; null if nobody does.
    static KnFieldRecorder* current() { return activeRecorder ? currentOfThread() : nullptr; }

    /// Keeps writes from being recorded: what sensors write is the program's doing.
    class Pause {
    public:
        Pause() { ++pauseCount; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;
        ~Pause() { --pauseCount; }
    };

    /// The value of a field or its ignore flag is about to be written, perhaps with an equal one,
    /// or a text is about to be read that may yet be refused. Called for arrays, too.
    virtual void aboutToWrite(KnField& field) = 0;
    /// Whether `rowsReplaced` wants so many rows that are about to be written.
    virtual bool keepsRows(const KnMField& field, int num, Writing writing) const = 0;
    /// An array has replaced rows from `start` on by `inserted` others. `former` is null if they
    /// weren't wanted; `removed` is how many there were.
    virtual void rowsReplaced(KnMField& field, int start, int removed, int inserted,
        std::unique_ptr<KnRows> former, Writing writing)
        = 0;
    /// A group has got, lost or moved a child.
    virtual void childrenChanged() = 0;

private:
    static KnFieldRecorder* currentOfThread();

    static KnFieldRecorder* activeRecorder; // not owned
    static int pauseCount; // of the thread that may write
};
