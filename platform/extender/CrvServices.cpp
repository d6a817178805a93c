// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"

#include "CrvCommand.h"
#include "CrvSensorPump.h"
#include "KnField.h"
#include "KnFieldContainer.h"

#include <QCoreApplication>
#include <QUndoCommand>
#include <QUndoStack>

#include <memory>
#include <utility>

namespace {

CrvServices* instance = nullptr; // owned, until the application object goes away

/// A command's place on the undo stack. It has no merge identity: two edits stay two steps.
class UndoEntry : public QUndoCommand {
public:
    UndoEntry(std::unique_ptr<CrvCommand> command, const QString& text)
        : QUndoCommand(text)
        , m_command(std::move(command))
    {
    }

    void undo() override { m_command->undo(); }

    void redo() override
    {
        // The stack calls redo for the first time when it takes the entry.
        if (std::exchange(m_executed, true))
            m_command->redo();
        else
            m_command->execute();
    }

private:
    std::unique_ptr<CrvCommand> m_command;
    bool m_executed = false;
};

QString toQString(const KbName& name)
{
    return QString::fromStdU16String(name.getString().toUtf16());
}

/// A command has no description of its own; it comes from the editor of the selected field.
QString undoText(const KnField* field)
{
    const KnFieldContainer* node = field ? field->getContainer() : nullptr;
    if (!node)
        return CrvServices::tr("Edit");
    const KnFieldData* fields = node->getContainerFieldData();
    const QString name
        = toQString(node->getName().isEmpty() ? node->getObjectType().getName() : node->getName());
    const QString text = CrvServices::tr("Edit %1.%2")
                             .arg(name, toQString(fields->getName(fields->getIndex(node, field))));
    // A line break would split the text in two for the undo stack.
    return text.simplified();
}

} // namespace

CrvServices* CrvServices::getInstance()
{
    if (!instance) {
        instance = new CrvServices;
        // Gone with the application object, before Qt's own globals are; also when that object is
        // made later than this one. A further use makes a fresh instance.
        qAddPostRoutine([] { delete std::exchange(instance, nullptr); });
    }
    return instance;
}

CrvServices::CrvServices()
    : m_undoStack(new QUndoStack(this))
{
    new CrvSensorPump(this);
}

CrvServices::~CrvServices()
{
    // The commands name fields that may live in the selected node.
    m_undoStack->clear();
    if (m_node)
        m_node->unref();
}

// A slot may select something else while the signals of a selection are being emitted. The later
// selection has the last word: what the earlier one has not said by then stays unsaid.
void CrvServices::selectNode(KnFieldContainer* node)
{
    KnFieldContainer* const former = m_node;
    const bool nodeChanges = node != former;
    if (nodeChanges) {
        if (node)
            node->ref();
        m_node = node;
    }
    if (std::exchange(m_field, nullptr))
        announceField(nullptr);
    if (!nodeChanges)
        return;
    if (m_node == node)
        Q_EMIT selectedNodeChanged(node);
    // Only now, so that whoever showed the former node or its field found it alive.
    if (former)
        former->unref();
}

void CrvServices::selectField(KnField* field)
{
    if (field == m_field)
        return;
    if (field && field->getContainer() != m_node) {
        KnFieldContainer* const node = field->getContainer();
        selectNode(node);
        if (m_node != node || m_field)
            return;
    }
    m_field = field;
    announceField(field);
}

void CrvServices::announceField(KnField* field)
{
    Q_EMIT selectedFieldChanged(field);
    m_shownField = m_field;
}

KnFieldContainer* CrvServices::getSelectedNode() const { return m_node; }

KnField* CrvServices::getSelectedField() const { return m_field; }

void CrvServices::announceSelection()
{
    Q_EMIT selectedNodeChanged(m_node);
    announceField(m_field);
}

void CrvServices::executeCommand(CrvCommand* command)
{
    if (!command)
        return;
    auto entry
        = std::make_unique<UndoEntry>(std::unique_ptr<CrvCommand>(command), undoText(m_shownField));
    m_undoStack->push(entry.release()); // which owns it
}

QUndoStack* CrvServices::getUndoStack() const { return m_undoStack; }
