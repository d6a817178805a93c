// SPDX-License-Identifier: BSD-3-Clause
#include "ToolkitMessages.h"

#include "Messages.h"

#include <cstdlib>

std::atomic<const ToolkitMessages*> ToolkitMessages::activeMessages;

ToolkitMessages::ToolkitMessages(Manner manner, const QString& advice, int fatalStatus)
    : m_outer(qInstallMessageHandler(nullptr))
    , m_isHushed(manner == Manner::Hush && qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
    , m_advice(advice)
    , m_fatalStatus(fatalStatus)
{
    activeMessages = this;
    qInstallMessageHandler(handle);
}

ToolkitMessages::~ToolkitMessages()
{
    qInstallMessageHandler(m_outer);
    activeMessages = nullptr;
}

void ToolkitMessages::handle(
    QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const ToolkitMessages* const current = activeMessages;
    if (!current)
        return; // a thread that got here while the handler was taken away
    if (type == QtFatalMsg)
        current->giveUp(message);
    if (!current->m_isHushed)
        current->m_outer(type, context, message);
}

void ToolkitMessages::giveUp(const QString& reason) const
{
    complainToTerminal(tr("corvane: the window system can't be used: %1").arg(reason.trimmed()));
    if (!m_advice.isEmpty())
        complainToTerminal(QStringLiteral("corvane: ") + m_advice);
    // Half of the application object may be there, so nothing is cleaned up.
    std::_Exit(m_fatalStatus);
}
