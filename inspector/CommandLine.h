// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ScriptRun.h"

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What the program was asked to do. It is read before there is an application object, since
/// whether a display is needed depends on it.
class CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
    enum class Request {
        Run, ///< a window or a picture
        Script,
        Program, ///< another program, with the inspector in it
        Help,
        Version,
        Error,
    };

    /// `arguments` begin with the program's name.
    static CommandLine parse(const QStringList& arguments);
    static QString helpText();

    Request request = Request::Run;
    QString error; ///< for Request::Error

    QString scene; ///< empty: the scene that the program starts with
    QString profile; ///< empty: the first one
    QString profilesFile; ///< empty: the built-in profiles
    QString selection; ///< NODE or NODE.FIELD; empty for none
    QString picture; ///< empty: a window for a person
    QSize pictureSize; ///< invalid: that of a fresh window
    QStringList plugins; ///< empty: the default extensions beside the program
    QStringList toolkitArguments; ///< passed on to the application object
    QString platform; ///< the toolkit's, as its own option names it; empty if it doesn't
    QString display; ///< the same for the X display

    ScriptRun script; ///< for Request::Script; for Request::Program, its steps alone

    QStringList options; ///< for Request::Program, as they were given
    std::optional<double> after; ///< seconds from the program's start; none: when it has settled

    /// Whether a program ends with the answer to what was asked of it.
    bool endsProgram() const { return !picture.isEmpty() || !script.steps.isEmpty(); }
};
