// SPDX-License-Identifier: BSD-3-Clause
#include "WindowTitle.h"

#include <QFileInfo>
#include <QGuiApplication>

namespace {

QString program() { return QStringLiteral("Corvane"); }

// A name may hold the signs that stand for "modified".
QString withoutMark(QString text)
{
    return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

} // namespace

QString WindowTitle::ofFile(const QString& fileName)
{
    const QString name = fileName.isEmpty() ? tr("Untitled") : QFileInfo(fileName).fileName();
    return QStringLiteral("%1[*] %2 %3").arg(withoutMark(name), QChar(0x2013), program());
}

// The platform appends the program's name to every title that doesn't end with it.
QString WindowTitle::ofGuest()
{
    const QString host = QGuiApplication::applicationDisplayName();
    if (host.isEmpty() || host == program())
        return program();
    return withoutMark(QStringLiteral("%1 %2 %3").arg(program(), QChar(0x2013), host));
}
