// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "KnMaterial.h"
#include "RecordingPlugin.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>

using namespace Qt::StringLiterals;

namespace {

QString modulePath(const char* name)
{
    return QLatin1String(CORVANE_TEST_MODULES "/") + QLatin1String(name)
        + QLatin1String(CORVANE_MODULE_SUFFIX);
}

} // namespace

class PluginsManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_s));
        takeCalls();
    }

    void cleanup() { m_manager->unloadAll(); }
    void refusals_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << u"nowhere/plugin.so"_s << u"there is no such file"_s;
        QTest::newRow("empty name") << QString() << u"there is no such file"_s;
        QTest::newRow("directory") << QDir::tempPath() << u"this is not a file"_s;
        QTest::newRow("text") << u"text.so"_s << u"not a library that can be loaded: .+text\\.so"_s;
        QTest::newRow("no functions")
            << modulePath("bare_module") << u"it lacks loadPlugin, unloadPlugin$"_s;
        QTest::newRow("one function") << modulePath("half_module") << u"it lacks unloadPlugin$"_s;
        QTest::newRow("null") << modulePath("null_module") << u"loadPlugin gave no plug-in$"_s;
    }

    void refusals()
    {
        QFETCH(QString, file);
        QFETCH(QString, reason);
        QTemporaryDir directory;
        if (file.startsWith(u"text")) {
            file = directory.filePath(file);
            QFile text(file);
            QVERIFY(text.open(QIODevice::WriteOnly));
            text.write("This is a text and no library.\n");
        }
        QString error;
        QCOMPARE(m_manager->loadPlugin(file, &error), nullptr);
        QVERIFY2(error.startsWith(file + u": "_s), qPrintable(error));
        QVERIFY2(error.contains(QRegularExpression(reason)), qPrintable(error));
        QCOMPARE(m_manager->loadPlugin(file), nullptr);
        QVERIFY(m_manager->getExtensions().empty());
    }

    void moduleLivesAndDiesInOrder()
    {
        for (int round = 0; round < 20; ++round) {
            QString error;
            const CrvPlugin* plugin = m_manager->loadPlugin(modulePath("recording_module"), &error);
            QVERIFY2(plugin, qPrintable(error));
            QCOMPARE(
                takeCalls(), u"Console load, Field Editor load, Console on, Field Editor on"_s);
            QCOMPARE(m_manager->getExtensions(), plugin->getExtensions());
            m_manager->unloadAll();
            QCOMPARE(takeCalls(),
                u"Field Editor off, Console off, Field Editor unload, Console unload, unload, destroyed"_s);
            QVERIFY(m_manager->getExtensions().empty());
        }
    }

    void refusesSecondLoad()
    {
        QVERIFY(m_manager->loadPlugin(modulePath("recording_module")));
        takeCalls();
        QString error;
        const QString sameFile = modulePath("../test_extender/recording_module");
        QCOMPARE(m_manager->loadPlugin(sameFile, &error), nullptr);
        QCOMPARE(error, sameFile + u": this plug-in is already loaded"_s);
        QCOMPARE(takeCalls(), QString());
    }

    void unloadsInReverse()
    {
        RecordingPlugin first;
        RecordingPlugin second;
        first.add<RecordingExtension>("A");
        first.add<RecordingEditor>(
            "Console"); // listed at the top, but an editor is its dock's affair
        second.add<RecordingExtension>("Profile Selector");
        second.add<RecordingExtension>("B");
        m_manager->adoptPlugin(&first);
        m_manager->adoptPlugin(&second);
        QCOMPARE(takeCalls(),
            u"A load, Console load, A on, "
            "Profile Selector load, B load, Profile Selector on, B on"_s);
        m_manager->unloadAll();
        QCOMPARE(takeCalls(),
            u"B off, Profile Selector off, A off, "
            "B unload, Profile Selector unload, unload, Console unload, A unload, unload"_s);
    }

    void unloadingGivesUpSelectionAndCommands()
    {
        CrvServices* const services = CrvServices::getInstance();
        auto* node = new KnMaterial;
        services->selectField(&node->transparency); // which holds the node, and nobody else does
        RecordingPlugin plugin;
        plugin.add<RecordingExtension>("Console");
        QObject context;
        connect(services, &CrvServices::selectedFieldChanged, &context,
            [](KnField* field) { note(field ? "field" : "no field"); });
        m_manager->adoptPlugin(&plugin);
        services->executeCommand(new NotingCommand);
        m_manager->unloadAll();
        QCOMPARE(takeCalls(),
            u"Console load, Console on, field, execute, no field, destroy, Console off, "
            "Console unload, unload"_s);
        QCOMPARE(services->getSelectedNode(), nullptr);
    }

    void refusesUnloadFromWithin()
    {
        RecordingPlugin plugin;
        auto* extension = plugin.add<RecordingExtension>("Console");
        extension->inActivate = [this] { m_manager->unloadAll(); };
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"can't unload the plug-ins"_s));
        m_manager->adoptPlugin(&plugin);
        QVERIFY(extension->isActive());
        m_manager->unloadAll();
        QVERIFY(!extension->isActive());
    }

private:
    CrvPluginsManager* const m_manager = CrvPluginsManager::getInstance();
};

QTEST_MAIN(PluginsManagerTest)
#include "test_plugins_manager.moc"
