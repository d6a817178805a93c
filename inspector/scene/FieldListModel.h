// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldDefaults.h"
#include "ListedField.h"

#include <QAbstractTableModel>
#include <QBasicTimer>
#include <QElapsedTimer>

#include <memory>
#include <vector>

struct SharedField;

/// The fields of one node, or those that several nodes share, one row each, kept up to date by
/// sensors. What a row shows is read when a view asks for it, cut short, and kept until the field
/// changes. A value that has just changed is lit for a moment.
class FieldListModel : public QAbstractTableModel, private ListedField::Listener {
    Q_OBJECT
public:
    enum Column { NameColumn, TypeColumn, ValueColumn, IgnoredColumn, OtherColumn, ColumnCount };
    enum Role {
        /// How brightly a value is lit: from 1, when it has just changed, down to 0.
        LightRole = Qt::UserRole,
        /// Whether the two nodes that are compared differ here.
        DiffersRole,
        /// Whether a person can't write a value.
        ReadOnlyRole,
        /// Whether a value leads to another node.
        LinkRole,
    };

    explicit FieldListModel(QObject* parent = nullptr);
    ~FieldListModel() override;

    /// The fields that all of these nodes have, by name and type, or, compared, all fields of the
    /// first one of two, beside those of the second. The model holds references on the nodes.
    void setNodes(const std::vector<KnFieldContainer*>& nodes, bool compared = false);
    /// Adds the rows of fields that the nodes have had since; the others stay as they are. False,
    /// and nothing is done, where rows would have to go.
    bool addRows();
    /// The first of the nodes.
    KnFieldContainer* node() const { return m_nodes.empty() ? nullptr : m_nodes.front().get(); }
    std::vector<KnFieldContainer*> nodes() const;
    /// Those that an edit in the list is for: all of them, or the first one of two compared.
    std::vector<KnFieldContainer*> editedNodes() const;
    bool isComparing() const { return m_compared; }

    /// Null for an index that isn't one of this model.
    KnField* field(const QModelIndex& index) const;
    /// The same of all nodes that are edited; empty for an index that isn't one of this model.
    std::vector<KnField*> fields(const QModelIndex& index) const;
    /// -1 for a field of another node.
    int rowOf(const KnField* field) const;
    /// Whether a value differs from its default.
    bool isChanged(int row) const;
    /// Whether a value certainly is the default: there is one, and it doesn't differ.
    bool isDefault(int row) const;
    FieldDefaults& defaults() { return m_defaults; }

    /// Holds the texts as they are, also of fields whose change hasn't been announced yet. What is
    /// announced all the same is shown: a person's edit. At the end everything is read again.
    void setHeld(bool held);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// A person's edit of a value, as a text or as a check mark, in all nodes: one step of the undo
    /// stack. False for a text that is refused; `refusal` says why then.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    const QString& refusal() const { return m_refusal; }

Q_SIGNALS:
    /// A person's edit left out some of the nodes; the text says so.
    void leftOut(const QString& message);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    std::vector<SharedField> currentFields() const;
    void addRow(int place, const SharedField& shared);
    ListedField& row(const QModelIndex& index) const;
    QVariant cell(ListedField& row, int column, int role) const;
    QString text(ListedField& row, int column) const;
    QString toolTip(ListedField& row, int column) const;
    double light(const ListedField& row) const;
    void fieldChanged(ListedField& row) override;
    enum class Written { Certainly, Unknown };
    void refresh(ListedField& row, Written written = Written::Certainly);
    void refreshWaiting();
    void showChange(ListedField& row, Column first);
    void announce(const ListedField& row, Column first);

    std::vector<KnNodePtr> m_nodes; // keep the fields of the rows alive
    std::vector<std::unique_ptr<ListedField>> m_rows;
    FieldDefaults m_defaults;
    QString m_refusal;
    bool m_compared = false;
    bool m_held = false;
    bool m_refreshes = false; // rows wait to be read again
    QElapsedTimer m_clock;
    QBasicTimer m_timer; // runs while a value is lit
};
