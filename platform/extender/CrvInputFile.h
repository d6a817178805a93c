// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The content of a file that somebody named. Only a regular file, or a symbolic link to one, of at
/// most `maxSize` bytes is read: a pipe could block for ever, and a device may have no end. For
/// anything else, and for a file that can't be read, there is no value and `error` says why,
/// without the file's name. Throws std::bad_alloc. The content has room for one more byte at its
/// end, so that appending it moves nothing.
std::optional<QByteArray> readInputFile(const QString& fileName, qint64 maxSize, QString* error);
