// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <QString>

#include <vector>

class KnField;
class KnFieldContainer;

/// What a library knows of nodes that it has made, beyond names and fields: it registers an object
/// of a subclass by making it, and whoever shows nodes asks that. All functions are for the thread
/// of the user interface. A node may stand for something that is dead by now; the answers are
/// empty then.
class CrvNodeDetails {
public:
    CrvNodeDetails(const CrvNodeDetails&) = delete;
    CrvNodeDetails& operator=(const CrvNodeDetails&) = delete;

    /// Null if nobody knows more of the node, or if the field stands alone.
    static CrvNodeDetails* of(const KnFieldContainer& node);
    static CrvNodeDetails* of(const KnField& field);
    /// Nothing is watched any more; for a host that closes.
    static void endAllWatches();

    /// Whether the node is one of the library's.
    virtual bool knows(const KnFieldContainer& node) const = 0;

    /// What a person should know of a node or a field, line by line; empty for nothing.
    virtual QString nodeNote(const KnFieldContainer& node) const = 0;
    virtual QString fieldNote(const KnField& field) const = 0;

    /// Whether the field names another node, and which. The graph has made all that stands above
    /// that node by then, so that it can be found from the roots; null if it is gone.
    virtual bool isLink(const KnField& field) const = 0;
    virtual KnNodePtr linkedNode(const KnField& field) const = 0;

    /// Something that can be called or watched, and the class that declares it.
    struct Member {
        QString owner;
        QString signature;
    };
    /// What can be called without parameters; the node's own class comes first.
    virtual std::vector<Member> methods(const KnFieldContainer& node) const = 0;
    /// Calls one of these. The result is a sentence for the person: what it gave, or why it wasn't
    /// called. Whatever the node stands for may be dead afterwards.
    virtual QString call(const KnFieldContainer& node, const QString& signature) = 0;

    /// What the node tells, and can be printed on the standard output stream when it does.
    virtual std::vector<Member> events(const KnFieldContainer& node) const = 0;
    virtual bool isWatched(const KnFieldContainer& node, const QString& signature) const = 0;
    virtual void setWatched(const KnFieldContainer& node, const QString& signature, bool watched)
        = 0;
    virtual void endWatches() = 0;

protected:
    CrvNodeDetails();
    virtual ~CrvNodeDetails();
};
