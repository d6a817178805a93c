// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>
#include <QtMessageHandler>

/// Takes what the toolkit has to say, while it lives, for a program that talks to a terminal or a
/// script. Where the toolkit would abort, the program ends with a message and a status of its own.
/// One at a time.
class ToolkitMessages {
    Q_DECLARE_TR_FUNCTIONS(ToolkitMessages)
public:
    enum class Manner {
        PassOn,
        Hush, ///< nothing is printed, unless somebody has set QT_LOGGING_RULES to read it
    };

    /// `fatalStatus` is the exit status in place of an abort.
    ToolkitMessages(Manner manner, int fatalStatus);
    ToolkitMessages(const ToolkitMessages&) = delete;
    ToolkitMessages& operator=(const ToolkitMessages&) = delete;
    ~ToolkitMessages();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);
};
