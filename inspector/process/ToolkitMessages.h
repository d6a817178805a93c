// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QtMessageHandler>

#include <atomic>

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

    /// In place of an abort, the reason is printed and `advice`, which may be empty, on a line of
    /// its own. `fatalStatus` is the exit status then.
    ToolkitMessages(Manner manner, const QString& advice, int fatalStatus);
    ToolkitMessages(const ToolkitMessages&) = delete;
    ToolkitMessages& operator=(const ToolkitMessages&) = delete;
    ~ToolkitMessages();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);
    [[noreturn]] void giveUp(const QString& reason) const;

    // The handler is a plain function, and may be called from any thread; all this is constant.
    static std::atomic<const ToolkitMessages*> activeMessages; // not owned
    const QtMessageHandler m_outer;
    const bool m_isHushed;
    const QString m_advice;
    const int m_fatalStatus;
};
