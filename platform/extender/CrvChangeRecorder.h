// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvFieldRecord.h"
#include "KnFieldRecorder.h"

#include <vector>

/// What was written from one moment to another.
struct CrvChanges {
    /// Whether certainly nothing has changed: there were writes, and all of them are known.
    bool areIdle() const;
    /// Null if the field wasn't written.
    const CrvFieldRecord* find(const KnField* field) const;
    /// What was written to others is no longer known.
    void keepOnly(const KnField* field);
    /// Adds what came later.
    void append(CrvChanges later);

    std::vector<CrvFieldRecord> records;
    bool hasOthers = false; // something was written that wasn't recorded
};

/// Records the writes that a person's edit is made of. Arrays are never copied: rows are kept as
/// they are replaced, and only a few at a time.
class CrvChangeRecorder : private KnFieldRecorder {
public:
    /// Records the fields of this node, of others only that they were written. Null for all nodes.
    void start(const KnFieldContainer* node);
    using KnFieldRecorder::isRecording;
    using KnFieldRecorder::stop;
    /// Hands over what was written since the start or the last time.
    CrvChanges take();

private:
    void aboutToWrite(KnField& field) override;
    bool keepsRows(const KnMField& field, int num, Writing writing) const override;
    void rowsReplaced(KnMField& field, int start, int removed, int inserted,
        std::unique_ptr<KnRows> former, Writing writing) override;
    void childrenChanged() override { m_changes.hasOthers = true; }
    CrvFieldRecord* recordOf(const KnField& field);

    const KnFieldContainer* m_node = nullptr; // only compared with others
    CrvChanges m_changes;
};
