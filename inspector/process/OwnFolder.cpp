// SPDX-License-Identifier: BSD-3-Clause
#include "OwnFolder.h"

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
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
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
