// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>
#include <QString>

class KnField;
class KnFieldContainer;

/// Finds what a person names on the command line.
class SceneSearch {
    Q_DECLARE_TR_FUNCTIONS(SceneSearch)
public:
    /// `text` is NODE or NODE.FIELD. NODE is a node's name or, if no node has that name, a type,
    /// which stands for the first node of that type. False if there is none, and `errorText` says
    /// what is missing.
    bool find(KnFieldContainer* root, const QString& text);

    /// Set by a successful `find`; not owned.
    KnFieldContainer* node() const { return m_node; }
    /// Null if only a node was named.
    KnField* field() const { return m_field; }
    const QString& errorText() const { return m_error; }

private:
    KnFieldContainer* m_node = nullptr;
    KnField* m_field = nullptr;
    QString m_error;
};
