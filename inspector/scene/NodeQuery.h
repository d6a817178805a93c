// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldCondition.h"
#include "KnType.h"

#include <QCoreApplication>

#include <vector>

class KnFieldContainer;
class KnFieldData;

/// What a person asks for in the filter line. A node must fit all terms, which stand between
/// blanks; upper and lower case are the same:
///
///     lamp              its name or its type contains this
///     "desk lamp"       the same with a blank, or with signs that would mean something
///     name:lamp         its name contains this
///     type:Light        its type contains this
///     class:Light       its type, or one that it derives from, contains this
///     field:color       it has a field whose name contains this
///     transparency>0    it has such a field with a number, a component or a text that fits;
///                       also <, <=, >=, = and !=
class NodeQuery {
    Q_DECLARE_TR_FUNCTIONS(NodeQuery)
public:
    /// Lets everything through.
    NodeQuery() = default;
    explicit NodeQuery(const QString& text);

    bool isEmpty() const { return m_terms.empty(); }
    /// A few words on what is missing or wrong; empty if the query can be used.
    const QString& errorText() const { return m_error; }

    /// Takes about as long as looking at the name. It remembers what it found out about types.
    bool matches(KnFieldContainer& node) const;

private:
    enum class Subject { NameOrType, Name, Type, Class, Field, Value };
    struct Term {
        Subject subject;
        TextPattern text; // of a value the name of its field
        FieldCondition condition; // of a value
    };
    /// What all nodes of a type have in common.
    struct TypeVerdict {
        KnType type;
        const KnFieldData* fields;
        int fieldCount; // a node's own table may grow, or another one take its place
        bool possible = true; // all terms that ask for type or fields can be met
        std::vector<bool> met; // by term: whatever the node is like
        std::vector<int> fieldIndices; // by term; -1 without a value
    };

    void addTerm(const QString& word, qsizetype plainLength);
    void addComparison(const QString& word, qsizetype place);
    const TypeVerdict& verdictOn(const KnFieldContainer& node) const;
    TypeVerdict judge(const KnFieldContainer& node) const;

    std::vector<Term> m_terms;
    QString m_error;
    mutable std::vector<TypeVerdict> m_verdicts;
};
