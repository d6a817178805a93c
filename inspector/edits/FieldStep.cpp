// SPDX-License-Identifier: BSD-3-Clause
#include "FieldStep.h"

#include "CrvServices.h"
#include "FieldRowsCommand.h"
#include "FieldTextCommand.h"
#include "KnMField.h"
#include "KnReadErrorCapture.h"
#include "SceneText.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

// How much of a value the text of a step shows, in characters.
constexpr int shownLength = 24;
// Of the fields that were left out.
constexpr qsizetype shownNames = 6;

KbString fieldText(const KnField& field)
{
    KbString text;
    field.get(text);
    return text;
}

} // namespace

FieldStep::FieldStep() = default;
FieldStep::~FieldStep() = default;

bool FieldStep::mayWrite(const KnField& field)
{
    if (!field.isReadOnly())
        return true;
    const QString name = fieldName(field);
    if (!m_readOnly.contains(name))
        m_readOnly += name;
    m_refusal = QCoreApplication::translate("FieldStep", "%1 is read-only").arg(name);
    return false;
}

QString FieldStep::readOnlyNote() const
{
    if (m_readOnly.isEmpty())
        return QString();
    QString names = m_readOnly.first(std::min(m_readOnly.size(), shownNames)).join(u", ");
    if (m_readOnly.size() > shownNames)
        names = QCoreApplication::translate("FieldStep", "%1 and %2 more")
                    .arg(names)
                    .arg(m_readOnly.size() - shownNames);
    return QCoreApplication::translate("FieldStep", "Read-only: %1").arg(names);
}

bool FieldStep::setText(KnField& field, const KbString& text)
{
    if (field.isReadOnly() && fieldText(field) == text)
        return true;
    return write(field, [&text](FieldTextCommand& command) { return command.write(text); });
}

bool FieldStep::reset(KnField& field)
{
    return write(field, [](FieldTextCommand& command) { return command.writeOwnDefault(); });
}

template <class Write>
bool FieldStep::write(KnField& field, Write write)
{
    if (!mayWrite(field))
        return false;
    const QString before = fieldSummary(field, shownLength);
    auto command = std::make_unique<FieldTextCommand>(field);
    const KnReadErrorCapture capture;
    if (!write(*command)) {
        m_refusal = toQString(capture.getText());
        return false;
    }
    if (command->hasChanged())
        add(std::move(command), field, before);
    return true;
}

bool FieldStep::setRows(KnMField& field, int start, Rows how, const KbString& text)
{
    if (!mayWrite(field))
        return false;
    // Read elsewhere first, so that a bad value leaves the array as it is.
    const std::unique_ptr<KnTypedObject> fresh(field.getObjectType().createInstance());
    auto& scratch = static_cast<KnMField&>(*fresh);
    const KnReadErrorCapture capture;
    if (!scratch.set(text)) {
        m_refusal = toQString(capture.getText());
        return false;
    }
    std::vector<KbString> rows(static_cast<std::size_t>(scratch.getNum()));
    for (int i = 0; i < scratch.getNum(); ++i)
        scratch.get1(i, rows[static_cast<std::size_t>(i)]);
    const QString before = fieldSummary(field, shownLength);
    const int removed
        = how == Rows::Overwrite ? std::min(scratch.getNum(), field.getNum() - start) : 0;
    auto command = std::make_unique<FieldRowsCommand>(field, start, removed, std::move(rows));
    command->write();
    add(std::move(command), field, before);
    return true;
}

void FieldStep::add(
    std::unique_ptr<CrvCommand> command, const KnField& field, const QString& before)
{
    m_commands.push_back(std::move(command));
    const KnFieldContainer* const node = field.getContainer();
    const QString name = node ? nodeLabel(*node) + QLatin1Char('.') + fieldName(field) : QString();
    m_change = QStringLiteral("%1: %2 %3 %4")
                   .arg(name, before, QChar(0x2192), fieldSummary(field, shownLength));
}

void FieldStep::finish(const QString& text)
{
    if (m_commands.empty())
        return;
    CrvServices& services = *CrvServices::getInstance();
    // A line break would split the text in two for the undo stack.
    const CrvServices::StepGroup group(
        services, (m_commands.size() == 1 ? m_change : text).simplified());
    for (auto& command : std::exchange(m_commands, {}))
        services.executeCommand(command.release());
}

QString nodesLabel(const std::vector<KnFieldContainer*>& nodes)
{
    return nodes.size() == 1
        ? nodeLabel(*nodes.front())
        : QCoreApplication::translate("FieldStep", "%1 nodes").arg(nodes.size());
}
