// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

/// What the process and its children write to standard error during an action.
template <class Action>
QByteArray standardErrorOf(const Action& action)
{
    std::fflush(stderr);
    QTemporaryFile file;
    const int before = dup(STDERR_FILENO);
    if (!file.open() || dup2(file.handle(), STDERR_FILENO) < 0)
        return "standard error can't be redirected";
    action();
    std::fflush(stderr);
    dup2(before, STDERR_FILENO);
    close(before);
    file.seek(0);
    return file.readAll();
}
