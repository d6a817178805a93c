// SPDX-License-Identifier: BSD-3-Clause
#include "ToolkitMessages.h"

#include "Messages.h"

#include <atomic>
#include <cstdlib>

namespace {

// The handler is a plain function, and may be called from any thread.
std::atomic<QtMessageHandler> outerHandler;
std::atomic<bool> isHushed;
std::atomic<int> exitStatus;

} // namespace

ToolkitMessages::ToolkitMessages(Manner manner, int fatalStatus)
{
    isHushed = manner == Manner::Hush && qEnvironmentVariableIsEmpty("QT_LOGGING_RULES");
    exitStatus = fatalStatus;
    outerHandler = qInstallMessageHandler(handle);
}

ToolkitMessages::~ToolkitMessages() { qInstallMessageHandler(outerHandler); }

void ToolkitMessages::handle(
    QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        complainToTerminal(tr("corvane: the window system can't be used: %1").arg(message));
        // Half of the application object may be there, so nothing is cleaned up.
        std::_Exit(exitStatus);
    }
    const QtMessageHandler outer = outerHandler;
    if (!isHushed && outer)
        outer(type, context, message);
}
