// SPDX-License-Identifier: BSD-3-Clause
#include "OwnFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

const char anchor = 0; // whatever lies in the file will do

QDir ownFolder()
{
    Dl_info info = {};
    if (dladdr(&anchor, &info) == 0 || !info.dli_fname)
        return {};
    // A program that has the objects in itself bears the name that it was called by, which may be
    // relative to a folder that it has left since.
    const QFileInfo file(QFile::decodeName(info.dli_fname));
    return file.exists() ? file.canonicalPath() : QCoreApplication::applicationDirPath();
}

} // namespace

QString ownFile(const QString& name)
{
    const QDir folder = ownFolder();
    // In a build tree: beside the library, or seen from a program that has its objects.
    for (const QString& place : { name, QStringLiteral("../lib/") + name }) {
        if (QFileInfo::exists(folder.filePath(place)))
            return QDir::cleanPath(folder.filePath(place));
    }
    return folder.filePath(QStringLiteral("corvane/") + name); // in an installed one
}
