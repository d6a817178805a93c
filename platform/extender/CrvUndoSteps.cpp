// SPDX-License-Identifier: BSD-3-Clause
#include "CrvUndoSteps.h"

#include "CrvCommand.h"
#include "CrvRowsCommand.h"
#include "CrvSensorPump.h"
#include "CrvStepText.h"
#include "KnMField.h"

#include <QScopedValueRollback>
#include <QString>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace {

KnFieldContainer* containerOf(const KnField* field)
{
    return field ? field->getContainer() : nullptr;
}

/// Whether the field holds what it holds in a fresh node.
bool holdsDefault(KnField& field)
{
    const KnFieldRecorder::Pause unrecorded;
    KnFieldContainer* const node = field.getContainer();
    const KnNodePtr fresh(dynamic_cast<KnFieldContainer*>(node->getObjectType().createInstance()));
    if (!fresh)
        return false;
    const KnFieldData* const data = node->getContainerFieldData();
    KnField* const other = data->getField(fresh.get(), data->getIndex(node, &field));
    if (!other)
        return false;
    if (const auto* const array = dynamic_cast<const KnMField*>(other)) {
        const auto& own = static_cast<const KnMField&>(field);
        const int num = array->getNum();
        return own.getNum() == num && own.holdsRows(0, *array->copyRows(0, num));
    }
    KbString text;
    KbString defaultText;
    field.get(text);
    other->get(defaultText);
    return text == defaultText;
}

/// The field that a command has written itself; null for none or several.
KnField* onlyField(const CrvChanges& changes)
{
    KnField* only = nullptr;
    for (const CrvFieldRecord& record : changes.records) {
        if (record.isChanged && std::exchange(only, record.field))
            return nullptr;
    }
    return only;
}

bool wroteRows(const CrvChanges& own, const KnField* field)
{
    const CrvFieldRecord* const record = own.find(field);
    return record && (!record->rows.empty() || !record->splices.empty() || record->hasUnknownRows);
}

/// Whether the value was written as a whole, as when it is reset.
bool wroteWholly(const CrvFieldRecord& record)
{
    const KnMField* const array = record.array();
    if (!array)
        return !record.isLarge;
    return record.splices.empty()
        && std::any_of(
            record.rows.begin(), record.rows.end(), [array](const CrvFieldRecord::Rows& rows) {
                return rows.start == 0 && rows.before->getNum() == array->getNum();
            });
}

CrvUndoStep::Part partOf(
    std::unique_ptr<CrvCommand> command, KnFieldContainer* node, KnField* field)
{
    return { std::move(command), KnNodePtr(node), KnNodePtr::ofHeld(containerOf(field)), field };
}

} // namespace

CrvUndoSteps::CrvUndoSteps(CrvSensorPump& pump, QObject* parent)
    : QObject(parent)
    , m_stack(new QUndoStack(this))
    , m_pump(pump)
{
    connect(m_stack, &QUndoStack::indexChanged, this, &CrvUndoSteps::indexChanged);
}

CrvUndoSteps::~CrvUndoSteps()
{
    // The steps tell this object that they go.
    m_stack->clear();
}

void CrvUndoSteps::setGrouping(Grouping grouping)
{
    endGesture();
    m_grouping = grouping;
}

void CrvUndoSteps::beginGesture()
{
    endGesture();
    if (m_grouping == Grouping::Gestures)
        m_gesture = ++m_lastGesture;
}

void CrvUndoSteps::endGesture()
{
    endInput();
    m_gesture = 0;
    if (!mayGrow() || !m_open->isIdle()) {
        m_open = nullptr;
        return;
    }
    m_open->setObsolete(true);
    push(std::make_unique<CrvUndoStep>(*this, m_open->gesture()));
}

void CrvUndoSteps::beginInput()
{
    endInput();
    if (m_grouping == Grouping::Gestures && !m_group)
        record();
}

void CrvUndoSteps::endInput()
{
    if (!isInput())
        return;
    settle();
    m_recorder.stop();
}

void CrvUndoSteps::record()
{
    KnFieldContainer* const node = m_field ? containerOf(m_field) : m_node;
    if (m_group)
        m_recorder.start(nullptr);
    else if (node)
        m_recorder.start(node);
}

void CrvUndoSteps::settle()
{
    CrvChanges changes = m_recorder.take();
    // What else was written without a command is the program's.
    changes.keepOnly(m_field);
    changes.hasOthers = false;
    if (changes.records.empty())
        return;
    if (auto rows = CrvRowsCommand::make(changes.records.front()))
        addPart(partOf(std::move(rows), m_node, m_field), std::move(changes));
}

/// Executes the command. Gives what it has written itself, whatever node that belongs to.
CrvChanges CrvUndoSteps::run(CrvCommand& command)
{
    const bool isInput = this->isInput();
    if (isInput || m_grouping == Grouping::Gestures)
        m_recorder.start(nullptr);
    command.execute();
    CrvChanges own = m_recorder.take();
    for (CrvFieldRecord& record : own.records)
        record.isDefault = wroteWholly(record) && holdsDefault(*record.field);
    if (isInput)
        record();
    else if (!m_group)
        m_recorder.stop();
    return own;
}

void CrvUndoSteps::execute(
    std::unique_ptr<CrvCommand> command, KnFieldContainer* node, KnField* field)
{
    ++m_executedCommands;
    // What the command writes may run an event loop, and something else is selected then.
    const KnNodePtr held(node);
    const KnNodePtr heldWithField = KnNodePtr::ofHeld(containerOf(field));
    const bool isInput = this->isInput();
    CrvChanges changes = m_recorder.take();
    if (isInput && field)
        changes.keepOnly(field);
    // An operation on rows first writes the cell that is open, which needs no command for that.
    const CrvFieldRecord* const shown = isInput ? changes.find(field) : nullptr;
    std::unique_ptr<CrvRowsCommand> cell = shown ? CrvRowsCommand::make(*shown) : nullptr;
    CrvChanges own = run(*command);
    if (cell && wroteRows(own, field))
        addPart(partOf(std::move(cell), node, field), std::exchange(changes, CrvChanges()));

    KnField* const only = onlyField(own);
    CrvUndoStep::Part part = partOf(std::move(command), node, only ? only : field);
    const QString ownText = stepText(own);
    changes.append(std::move(own));
    if (m_group) {
        m_pump.hurry(part.field);
        m_group->add(std::move(part), std::move(changes));
    } else if (isInput && changes.areIdle()) {
        m_pump.hurry(part.field);
    } else if (isInput) {
        addPart(std::move(part), std::move(changes));
    } else {
        // What was written before isn't known, so there is nothing to be restored.
        auto step = std::make_unique<CrvUndoStep>(*this, 0);
        if (!ownText.isEmpty())
            step->setFixedText(ownText);
        m_pump.hurry(part.field);
        step->add(std::move(part), CrvChanges());
        push(std::move(step));
    }
}

bool CrvUndoSteps::mayGrow() const
{
    // The stack doesn't let a step grow that was saved.
    const int index = m_stack->index();
    return m_open && index == m_stack->count() && m_stack->command(index - 1) == m_open
        && !m_stack->isClean();
}

void CrvUndoSteps::addPart(CrvUndoStep::Part part, CrvChanges changes)
{
    m_pump.hurry(part.field);
    // What was typed into a cell is an edit of its own, also if a click on a button ends it.
    const bool isCell = dynamic_cast<const CrvRowsCommand*>(part.command.get());
    const bool grows = m_gesture != 0 && mayGrow() && m_open->gesture() == m_gesture;
    if (grows && m_open->endsWithCell() != isCell)
        m_gesture = ++m_lastGesture;
    auto step = std::make_unique<CrvUndoStep>(*this, m_gesture);
    if (grows && m_open->gesture() == m_gesture) {
        m_open->add(std::move(part), std::move(changes));
    } else {
        step->add(std::move(part), std::move(changes));
        // One outside of gestures stands alone.
        m_open = m_gesture != 0 ? step.get() : nullptr;
    }
    push(std::move(step));
}

void CrvUndoSteps::push(std::unique_ptr<CrvUndoStep> step)
{
    const QScopedValueRollback pushing(m_isPushing, true);
    m_stack->push(step.release()); // which owns it
}

void CrvUndoSteps::beginGroup(const QString& text)
{
    if (m_groupDepth++ > 0)
        return;
    m_groupIsInput = isInput();
    endInput();
    m_group = std::make_unique<CrvUndoStep>(*this, 0);
    m_group->setFixedText(text);
    m_recorder.start(nullptr);
}

void CrvUndoSteps::endGroup()
{
    if (--m_groupDepth > 0)
        return;
    m_recorder.stop();
    static_cast<void>(m_recorder.take());
    std::unique_ptr<CrvUndoStep> group = std::move(m_group);
    if (!group->isEmpty() && !group->changes().areIdle())
        push(std::move(group));
    if (m_groupIsInput)
        record();
}

void CrvUndoSteps::setShown(KnFieldContainer* node, KnField* field)
{
    const bool wasInput = isInput();
    if (field != m_field)
        endGesture();
    m_node = node;
    m_field = field;
    if (wasInput)
        record();
}

void CrvUndoSteps::indexChanged()
{
    if (m_isPushing)
        return;
    // What the gesture goes on to do is another step.
    m_open = nullptr;
    if (m_gesture != 0)
        m_gesture = ++m_lastGesture;
    const KnNodePtr node = std::exchange(m_movedNode, KnNodePtr());
    if (node)
        Q_EMIT stepMoved(m_movedField);
}

void CrvUndoSteps::announce(const CrvUndoStep::Part& part)
{
    m_pump.hurry(part.field);
    if (!part.fieldNode)
        return;
    m_movedNode = part.fieldNode;
    m_movedField = part.field;
}

void CrvUndoSteps::forget(const CrvUndoStep& step)
{
    if (m_open == &step)
        m_open = nullptr;
}
