// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "NodeFilter.h"
#include "SceneModel.h"

#include <QBasicTimer>

/// The tree of a scene that shows only the nodes that match what stands in a filter line (see
/// NodeQuery), and those above them. A large scene is looked through in slices, between which the
/// window takes input; until the end the rows stay as they are. A change within a group that is
/// shown arrives as in any tree. Which groups are shown is looked through again after a change of
/// the graph or of a name: soon in a small scene, and in a large one so seldom that it takes a
/// tenth of the time. A value that changes doesn't take away what it has found: nobody wants to
/// lose the node that is being edited.
class SceneFilterModel : public SceneModel {
    Q_OBJECT
public:
    enum Role {
        MatchRole = Qt::UserRole, ///< true for a node that matches itself, not only one below it
    };

    explicit SceneFilterModel(QObject* parent = nullptr);

    /// A text that is wrong or isn't complete yet changes nothing but `errorText`.
    void setFilterText(const QString& text);
    /// Empty if the text can be used.
    const QString& errorText() const { return m_error; }
    /// Whether the rows are filtered; a new text may not have come that far.
    bool isFiltering() const { return !m_filter.query().isEmpty(); }
    /// Whether the row stands there for its own node, and not for one below it.
    bool isMatch(const QModelIndex& index) const;
    bool isSearching() const { return m_searching; }
    NodeFilter& filter() { return m_filter; }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// The rows are those of a new text, and all new.
    void filtered();

protected:
    void timerEvent(QTimerEvent* event) override;
    void namesChanged() override;

private:
    static void graphChanged(void* data, KnSensor* sensor);
    void lookAgain();
    void work();

    NodeFilter m_filter;
    QString m_error;
    QBasicTimer m_timer; // runs while there is something to look through
    bool m_searching = false; // for a new text
    bool m_again = false; // something changed behind what is being looked through
    int m_spent = 0; // in milliseconds, on what is being looked through
    int m_pause = 0; // in milliseconds, before the graph is looked through again
};
