// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "NodePlaces.h"

#include <QCoreApplication>
#include <QString>

class KnField;
class KnFieldContainer;

/// Finds nodes and fields by what a person or a script calls them. The form of an address is told
/// at NodeAddress, and which nodes go by it at NodePlaces. Behind a node's address, a point and the
/// name of a field, whose case matters only where it decides. The graph must stay as it is
/// meanwhile.
class SceneSearch {
    Q_DECLARE_TR_FUNCTIONS(SceneSearch)
public:
    explicit SceneSearch(const NodePlaces::Nodes& roots);

    /// `text` is NODE or NODE.FIELD; a node's name may contain points itself, and a node that goes
    /// by the whole text comes first. False if there is none, or more than one, and `errorText`
    /// says which there are.
    bool find(const QString& text);
    /// The same for NODE.FIELD alone.
    bool findField(const QString& text);

    const NodePlaces& places() const { return m_places; }
    /// Set by a successful search; not owned.
    KnFieldContainer* node() const { return m_node; }
    /// Null if only a node was named.
    KnField* field() const { return m_field; }
    const QString& errorText() const { return m_error; }

private:
    enum class Outcome { Found, Missing, Ambiguous };

    Outcome findNode(QStringView text);
    bool findField(const QString& text, qsizetype point);
    bool chooseField(const QString& nodeText, const QString& name);
    QString ambiguity(QStringView text, const NodePlaces::Nodes& nodes) const;

    NodePlaces m_places;
    KnFieldContainer* m_node = nullptr;
    KnField* m_field = nullptr;
    QString m_error;
};
