// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"

#include "CrvCommand.h"
#include "CrvSensorPump.h"
#include "CrvUndoSteps.h"
#include "KnDatabase.h"
#include "KnField.h"
#include "KnFieldContainer.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QUndoStack>

#include <memory>
#include <utility>

namespace {

CrvServices* instance = nullptr; // owned, until the application object goes away

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
    : m_pump(new CrvSensorPump(this))
    , m_undoSteps(new CrvUndoSteps(*m_pump, this))
{
    KnDatabase::init();
    connect(m_pump, &CrvSensorPump::hurried, this, &CrvServices::fieldEdited);
}

CrvServices::~CrvServices()
{
    // The commands name fields that may live in the selected node.
    getUndoStack()->clear();
}

CrvServices::SelectionHold::SelectionHold(CrvServices& services)
    : m_services(services)
{
    ++m_services.m_holds;
}

CrvServices::SelectionHold::~SelectionHold()
{
    --m_services.m_holds;
    m_services.applyRequests();
}

CrvServices::StepGroup::StepGroup(CrvServices& services, const QString& text)
    : m_services(services)
{
    m_services.m_undoSteps->beginGroup(text);
}

CrvServices::StepGroup::~StepGroup() { m_services.m_undoSteps->endGroup(); }

void CrvServices::setRoots(std::vector<KnNodePtr> roots)
{
    std::swap(m_roots, roots); // the former ones live until the views have let go of them
    Q_EMIT rootsChanged();
}

void CrvServices::selectNode(KnFieldContainer* node) { request({ KnNodePtr(node), nullptr }); }

void CrvServices::selectField(KnField* field)
{
    request({ field ? KnNodePtr(field->getContainer()) : latestSelection().node, field });
}

void CrvServices::announceSelection()
{
    Selection selection = latestSelection();
    selection.again = true;
    request(std::move(selection));
}

CrvServices::Selection CrvServices::latestSelection() const
{
    return m_requested.value_or(Selection { m_node, m_field });
}

void CrvServices::request(Selection selection)
{
    // A repeated announcement that still waits is due whatever is selected then.
    selection.again = selection.again || (m_requested && m_requested->again);
    m_requested = std::move(selection);
    applyRequests();
}

void CrvServices::applyRequests()
{
    // Listeners that answer each other's selections would never come to an end.
    constexpr int maxRounds = 100;
    if (m_holds > 0)
        return;
    const QScopedValueRollback hold(m_holds, 1);
    for (int round = 0; m_requested; ++round) {
        const Selection next = *std::exchange(m_requested, std::nullopt);
        if (round == maxRounds) {
            qWarning("CrvServices: listeners go on selecting in answer to each other");
            return;
        }
        apply(next);
    }
}

void CrvServices::apply(const Selection& selection)
{
    const bool nodeChanges = selection.node.get() != m_node.get();
    // Lives to the end of this function, so that whoever shows the former node finds it alive.
    const KnNodePtr former = std::exchange(m_node, selection.node);
    if (nodeChanges && m_field)
        announceField(nullptr);
    if (nodeChanges || selection.again)
        Q_EMIT selectedNodeChanged(m_node.get());
    if (m_field != selection.field || selection.again)
        announceField(selection.field);
    m_undoSteps->setShown(m_node.get(), m_shownField);
}

void CrvServices::announceField(KnField* field)
{
    m_field = field;
    Q_EMIT selectedFieldChanged(field);
    m_shownField = field;
    m_undoSteps->setShown(m_node.get(), m_shownField);
}

KnFieldContainer* CrvServices::getSelectedNode() const { return m_node.get(); }

KnField* CrvServices::getSelectedField() const { return m_field; }

void CrvServices::executeCommand(CrvCommand* command)
{
    if (!command)
        return;
    m_undoSteps->execute(std::unique_ptr<CrvCommand>(command), m_node.get(), m_shownField);
}

void CrvServices::executeCommand(CrvCommand* command, KnField& field)
{
    m_undoSteps->execute(std::unique_ptr<CrvCommand>(command), m_node.get(), &field);
}

QUndoStack* CrvServices::getUndoStack() const { return m_undoSteps->stack(); }

CrvUndoSteps* CrvServices::getUndoSteps() const { return m_undoSteps; }

void CrvServices::setRefreshInterval(int milliseconds) { m_pump->setInterval(milliseconds); }

void CrvServices::setPaused(bool paused)
{
    if (paused == m_pump->isPaused())
        return;
    m_pump->setPaused(paused);
    Q_EMIT pausedChanged(paused);
}

bool CrvServices::isPaused() const { return m_pump->isPaused(); }
