// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvNodeDetails.h"

/// What an inspector may ask about the nodes of objects.
class ObjectDetails final : public CrvNodeDetails {
public:
    /// Makes it known, once; it stays to the end of the process.
    static void provide();

    bool knows(const KnFieldContainer& node) const override;
    QString nodeNote(const KnFieldContainer& node) const override;
    QString fieldNote(const KnField& field) const override;
    bool isLink(const KnField& field) const override;
    KnNodePtr linkedNode(const KnField& field) const override;
    std::vector<Member> methods(const KnFieldContainer& node) const override;
    QString call(const KnFieldContainer& node, const QString& signature) override;
    std::vector<Member> events(const KnFieldContainer& node) const override;
    bool isWatched(const KnFieldContainer& node, const QString& signature) const override;
    void setWatched(const KnFieldContainer& node, const QString& signature, bool watched) override;
    void endWatches() override;

private:
    ObjectDetails() = default;
    ~ObjectDetails() override = default;
};
