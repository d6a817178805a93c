// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

#include <QObject>

#include <optional>
#include <vector>

class CrvCommand;
class CrvSensorPump;
class CrvUndoSteps;
class KnField;
class KnFieldContainer;
class QUndoStack;

/// The scene graph that the host shows, the selection in it, and the undo stack. There is one
/// object, made at first use, also before the application object, and destroyed with the
/// application object. It also runs the kernel's sensors from the event loop.
///
/// One selection is announced at a time. What a listener selects meanwhile comes after: the last
/// request wins, and until then the getters answer with what is being announced.
class CrvServices : public QObject {
    Q_OBJECT
public:
    static CrvServices* getInstance();

    /// The roots of the graph, for whoever shows more of it than the selection. None is null; this
    /// object holds a reference on each. The selection is the caller's business.
    void setRoots(std::vector<KnNodePtr> roots);
    const std::vector<KnNodePtr>& getRoots() const { return m_roots; }

    /// Selects a node and none of its fields; null for no node. The selection holds a
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

    /// Makes selections wait while it lives; the last one that was asked for is applied at the
    /// end. For whoever takes panes away: they hand the focus on, and who gets it may select.
    class SelectionHold {
    public:
        explicit SelectionHold(CrvServices& services);
        ~SelectionHold();
        Q_DISABLE_COPY_MOVE(SelectionHold)

    private:
        CrvServices& m_services; // outlives this object
    };

    /// Takes ownership, calls `execute` once and keeps the command for undo and redo; what steps
    /// that makes is up to `getUndoSteps()`. Null is ignored.
    virtual void executeCommand(CrvCommand* command);
    /// The same for a command whose field was written already, when setters may have run event
    /// loops and something else may be selected. The step keeps the node of `field` alive.
    void executeCommand(CrvCommand* command, KnField& field);
    /// Commands that are executed while it lives become one step of the undo stack, which bears
    /// this text; the order is kept. One in another one belongs to the outer step. If nothing was
    /// executed, or all of it certainly has changed nothing, there is no step.
    class StepGroup {
    public:
        StepGroup(CrvServices& services, const QString& text);
        ~StepGroup();
        Q_DISABLE_COPY_MOVE(StepGroup)

    private:
        CrvServices& m_services; // outlives this object
    };

    /// Owned by this object. A step keeps the node alive that was selected when it was made, and
    /// that of the selected field; a command that names others must keep them itself.
    QUndoStack* getUndoStack() const;
    /// Makes the steps; owned by this object.
    CrvUndoSteps* getUndoSteps() const;

    /// Lets the kernel's sensors run at most once in this time, however often the program writes;
    /// 0, the default, as soon as the event loop has nothing more urgent. What a command writes is
    /// announced at once in any case.
    void setRefreshInterval(int milliseconds);
    /// Holds what is shown: no sensor runs but those of fields that a command writes.
    void setPaused(bool paused);
    bool isPaused() const;

Q_SIGNALS:
    void selectedNodeChanged(KnFieldContainer* node);
    void selectedFieldChanged(KnField* field);
    void rootsChanged();
    void pausedChanged(bool paused);
    /// A command was executed, undone or redone a moment ago; no sensor has run since. `field` is
    /// what it most likely wrote, null if nothing is known; it is only to be compared with others.
    void fieldEdited(const KnField* field);

protected:
    CrvServices();
    ~CrvServices() override;

private:
    struct Selection {
        KnNodePtr node;
        KnField* field = nullptr; // lives in the node, or stands alone
        bool again = false; // to be announced even if nothing changes
    };

    /// What will be selected when all requests have been applied.
    Selection latestSelection() const;
    void request(Selection selection);
    void applyRequests();
    void apply(const Selection& selection);
    void announceField(KnField* field);

    std::vector<KnNodePtr> m_roots;
    KnNodePtr m_node;
    KnField* m_field = nullptr; // lives in m_node, or stands alone
    std::optional<Selection> m_requested; // waits while another selection is announced
    int m_holds = 0; // nobody is told of a selection while there are any
    // What an editor may still show, and commit, while a new selection is being announced.
    KnField* m_shownField = nullptr;
    CrvSensorPump* m_pump; // child
    CrvUndoSteps* m_undoSteps; // child
};
