// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInputFile.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace {

constexpr qint64 chunkSize = 1 << 20; // bytes

QString tr(const char* text) { return QCoreApplication::translate("CrvInputFile", text); }

QString tooLarge(qint64 maxSize)
{
    return tr("the file is too large, at most %1 bytes are read").arg(maxSize);
}

/// Why such a file isn't read; empty for one that is.
QString refusal(const struct stat& info, qint64 maxSize)
{
    switch (info.st_mode & S_IFMT) {
    case S_IFREG:
        return info.st_size > maxSize ? tooLarge(maxSize) : QString();
    case S_IFDIR:
        return tr("this is a directory, not a file");
    case S_IFIFO:
        return tr("this is a pipe, not a file");
    case S_IFCHR:
    case S_IFBLK:
        return tr("this is a device, not a file");
    case S_IFSOCK:
        return tr("this is a socket, not a file");
    default:
        return tr("this is not a file");
    }
}

} // namespace

std::optional<QByteArray> readInputFile(const QString& fileName, qint64 maxSize, QString* error)
{
    const QByteArray path = QFile::encodeName(fileName);
    struct stat info { };
    // Looked at before it is opened, since opening alone may set a device going.
    if (::stat(path.constData(), &info) != 0) {
        *error = qt_error_string(errno);
        return std::nullopt;
    }
    *error = refusal(info, maxSize);
    if (!error->isEmpty())
        return std::nullopt;

    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (descriptor < 0) {
        *error = qt_error_string(errno);
        return std::nullopt;
    }
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        *error = file.errorString();
        ::close(descriptor); // which the file hasn't taken over
        return std::nullopt;
    }
    if (::fstat(descriptor, &info) != 0) {
        *error = qt_error_string(errno);
        return std::nullopt;
    }
    // Something else may go by that name by now.
    *error = refusal(info, maxSize);
    if (!error->isEmpty())
        return std::nullopt;

    QByteArray content;
    content.reserve(static_cast<qsizetype>(info.st_size) + 1);
    // The size can't be trusted for a file that grows, or for one that the system makes up.
    for (QByteArray chunk = file.read(chunkSize); !chunk.isEmpty(); chunk = file.read(chunkSize)) {
        content += chunk;
        if (content.size() > maxSize) {
            *error = tooLarge(maxSize);
            return std::nullopt;
        }
    }
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
        return std::nullopt;
    }
    return content;
}
