// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginLibrary.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

namespace {

constexpr const char* loadName = "loadPlugin";
constexpr const char* unloadName = "unloadPlugin";

QString tr(const char* text) { return QCoreApplication::translate("CrvPluginLibrary", text); }

} // namespace

std::unique_ptr<CrvPluginLibrary> CrvPluginLibrary::open(const QString& fileName, QString* error)
{
    std::unique_ptr<CrvPluginLibrary> library;
    QString reason;
    const QFileInfo file(fileName);
    if (!file.exists()) {
        reason = tr("there is no such file");
    } else if (!file.isFile()) {
        reason = tr("this is not a file");
    } else {
        library.reset(new CrvPluginLibrary(file.canonicalFilePath()));
        reason = library->load();
    }
    if (reason.isEmpty())
        return library;
    if (error)
        *error = fileName + QStringLiteral(": ") + reason;
    return nullptr;
}

CrvPluginLibrary::CrvPluginLibrary(const QString& fileName)
    : m_library(fileName)
{
    // A symbol that is missing refuses the file now, instead of ending the process later.
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
}

CrvPluginLibrary::~CrvPluginLibrary()
{
    if (m_plugin)
        m_unloadPlugin();
    if (m_library.isLoaded())
        m_library.unload();
}

QString CrvPluginLibrary::load()
{
    if (!m_library.load())
        return tr("this is not a library that can be loaded: %1").arg(m_library.errorString());

    const auto loadPlugin = reinterpret_cast<CrvLoadPluginFunction>(m_library.resolve(loadName));
    m_unloadPlugin = reinterpret_cast<CrvUnloadPluginFunction>(m_library.resolve(unloadName));
    QStringList missing;
    if (!loadPlugin)
        missing += QLatin1String(loadName);
    if (!m_unloadPlugin)
        missing += QLatin1String(unloadName);
    if (!loadPlugin || !m_unloadPlugin)
        return tr("this library is no plug-in, it lacks %1")
            .arg(missing.join(QStringLiteral(", ")));

    m_plugin = loadPlugin();
    return m_plugin ? QString() : tr("%1 gave no plug-in").arg(QLatin1String(loadName));
}
