// SPDX-License-Identifier: BSD-3-Clause
#include "CrvUndoStep.h"

#include "CrvRowsCommand.h"
#include "CrvStepText.h"
#include "CrvUndoSteps.h"
#include "KnMField.h"
#include "KnReadErrorCapture.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

/// Whether what the field held is known to the last digit.
bool isRestored(const CrvFieldRecord& record)
{
    return record.isChanged && !record.isLarge && !record.array();
}

} // namespace

CrvUndoStep::CrvUndoStep(CrvUndoSteps& steps, int gesture)
    : m_steps(steps)
    , m_gesture(gesture)
{
}

CrvUndoStep::~CrvUndoStep()
{
    m_steps.forget(*this);
    // The commands name fields of the nodes, so they go first.
    for (Part& part : m_parts)
        part.command.reset();
}

void CrvUndoStep::add(Part part, CrvChanges changes)
{
    // A command that wrote nothing here may have changed something elsewhere.
    m_changes.hasOthers = m_changes.hasOthers || changes.records.empty();
    m_changes.append(std::move(changes));
    if (!m_hasFixedText) {
        const QString text = stepText(m_changes);
        setText(text.isEmpty() ? editText(part.field) : text);
    }
    auto* const rows = dynamic_cast<CrvRowsCommand*>(part.command.get());
    auto* const former
        = m_parts.empty() ? nullptr : dynamic_cast<CrvRowsCommand*>(m_parts.back().command.get());
    if (!rows || !former || !former->absorb(*rows))
        m_parts.push_back(std::move(part));
}

void CrvUndoStep::setFixedText(const QString& text)
{
    m_hasFixedText = true;
    setText(text.simplified());
}

bool CrvUndoStep::endsWithCell() const
{
    return !isEmpty() && dynamic_cast<const CrvRowsCommand*>(m_parts.back().command.get());
}

bool CrvUndoStep::isIdle() const
{
    return !m_changes.hasOthers && !m_changes.records.empty()
        && std::none_of(m_changes.records.begin(), m_changes.records.end(),
            [](const CrvFieldRecord& record) { return record.differs(); });
}

bool CrvUndoStep::mergeWith(const QUndoCommand* later)
{
    const auto* const step = dynamic_cast<const CrvUndoStep*>(later);
    return step && step->isEmpty() && m_gesture != 0 && step->m_gesture == m_gesture;
}

void CrvUndoStep::undo()
{
    const KnFieldRecorder::Pause unrecorded;
    {
        // The text that a slider saves need not be one that the field reads. What the field held
        // comes back all the same, so that nobody needs to hear of it.
        std::optional<KnReadErrorCapture> capture;
        if (std::any_of(m_changes.records.begin(), m_changes.records.end(), isRestored))
            capture.emplace();
        for (auto part = m_parts.rbegin(); part != m_parts.rend(); ++part)
            part->command->undo();
    }
    restoreValues();
    announce();
}

void CrvUndoStep::redo()
{
    // The stack calls redo when it takes the step, which was executed by then.
    if (!std::exchange(m_isPushed, true))
        return;
    const KnFieldRecorder::Pause unrecorded;
    for (const Part& part : m_parts)
        part.command->redo();
    announce();
}

/// A slider rounds the old value to the digits that it shows.
void CrvUndoStep::restoreValues()
{
    for (const CrvFieldRecord& record : m_changes.records) {
        if (!isRestored(record))
            continue;
        KbString text;
        record.field->get(text);
        if (!(text == record.before))
            record.field->set(record.before);
    }
}

void CrvUndoStep::announce() const
{
    std::vector<const Part*> told;
    for (const Part& part : m_parts) {
        const bool isKnown = std::any_of(told.begin(), told.end(),
            [&part](const Part* other) { return other->field == part.field; });
        if (isKnown)
            continue;
        told.push_back(&part);
        m_steps.announce(part);
    }
}
