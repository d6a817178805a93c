// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SceneSearch.h"

#include <QByteArray>
#include <QList>

/// Reads and writes the fields of a graph, as a script asks for it by text. It knows nothing of
/// files, and the graph may be anybody's.
class SceneScript {
    Q_DECLARE_TR_FUNCTIONS(SceneScript)
public:
    struct Step {
        enum class Kind {
            List, ///< a line for each node and each field
            Describe, ///< the same with what is known of each field
            Get, ///< the text of one field
            Set, ///< gives one field a text
        };
        Kind kind = Kind::List;
        QString address; ///< NODE.FIELD; not used by List
        QString text; ///< for Set, in the kernel's form
    };

    /// The graph must keep its nodes meanwhile.
    explicit SceneScript(const NodePlaces::Nodes& roots);

    /// Takes the steps in order, up to the first that is refused. Then it is false, and `errorText`
    /// says why.
    bool run(const QList<Step>& steps);

    /// What was asked for, in UTF-8, lines with their ends. A node is `PATH<TAB>TYPE`, and its
    /// fields follow as `PATH.FIELD<TAB>TYPE<TAB>TEXT`.
    const QByteArray& output() const { return m_output; }
    const QString& errorText() const { return m_error; }

private:
    bool take(const Step& step);
    void list(bool describe);
    bool set(const QString& address, const QString& text);

    SceneSearch m_search;
    QByteArray m_output;
    QString m_error;
};
