// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class CrvCommand;
class KnField;
class KnFieldContainer;
class QUndoStack;

/// The host's selection and its undo stack. There is one object, made at first use, also
/// before the application object, and destroyed with the application object. It also runs the
/// kernel's sensors from the event loop.
class CrvServices : public QObject {
    Q_OBJECT
public:
    static CrvServices* getInstance();

    /// Selects a node, of which no field is selected then; null for none. The selection holds a
    /// reference on the node. The field is given up first, and then the node changes; what is
    /// selected already is not announced again.
    void selectNode(KnFieldContainer* node);
    /// Selects a field, and its node first; null for none, which leaves the node selected. A field
    /// that stands alone must be given up before it is destroyed.
    void selectField(KnField* field);
    KnFieldContainer* getSelectedNode() const;
    KnField* getSelectedField() const;
    /// Emits both signals again with what is selected.
    void announceSelection();

    /// Takes ownership, calls `execute` once and keeps the command for undo and redo, under the
    /// name of the selected field: "Edit Material.transparency". Null is ignored.
    virtual void executeCommand(CrvCommand* command);
    /// Owned by this object. It must be emptied before a node whose fields it may name goes away:
    /// commands hold plain pointers.
    QUndoStack* getUndoStack() const;

Q_SIGNALS:
    void selectedNodeChanged(KnFieldContainer* node);
    void selectedFieldChanged(KnField* field);

protected:
    CrvServices();
    ~CrvServices() override;

private:
    void announceField(KnField* field);

    KnFieldContainer* m_node = nullptr; // a reference is held
    KnField* m_field = nullptr; // lives in m_node, or stands alone
    // What an editor may still show, and commit, while a new selection is being announced.
    KnField* m_shownField = nullptr;
    QUndoStack* m_undoStack; // child
};
