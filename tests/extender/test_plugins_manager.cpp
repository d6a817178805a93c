// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "CrvStrings.h"
#include "KnMaterial.h"
#include "RecordingPlugin.h"
#include "TextRows.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The places of the built-in profiles.
enum { Everything, Fields, Console };

/// A file with one profile of these extensions.
QByteArray profileOf(const QByteArray& extensions)
{
    return R"({"profiles":[{"name":"Caf\u00e9","extensions":)" + extensions + "}]}";
}

} // namespace

/// Plug-ins and profiles, from their files to the calls that extensions get.
class PluginsManagerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        connect(CrvServices::getInstance(), &CrvServices::selectedFieldChanged, this, &noteField);
        connect(m_manager, &CrvPluginsManager::activeProfileChanged, this, [] { note("changed"); });
        connect(m_manager, &CrvPluginsManager::profilesChanged, this, [] { note("replaced"); });
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_s));
        m_plugin = std::make_unique<RecordingPlugin>();
        m_plugin->add({ "Profile Selector" });
        m_console = m_plugin->add({ "Console" });
        m_plugin->add<CrvEditor>({ "MField", "SFBool" });
        m_plugin->add({ "Field Editor", "Node Editor", "Foreign" });
        m_plugin->add<CrvEditor>({ "SFBool" }); // as a second plug-in may bring it
        takeCalls();
    }

    void cleanup()
    {
        m_manager->unloadAll();
        m_manager->useBuiltInProfiles();
        m_manager->setActiveProfile(profile(Everything));
    }

    void refusesFiles_data()
    {
        addTextRows({ { "nowhere/plugin.so", "there is no such file" },
            { CORVANE_SAMPLE_PROFILES, "this is not a library that can be" },
            { CORVANE_TEST_MODULES "/half_module" CORVANE_MODULE_SUFFIX,
                "this library is no plug-in, it lacks unloadPlugin" },
            { CORVANE_TEST_MODULES "/null_module" CORVANE_MODULE_SUFFIX,
                "loadPlugin gave no plug-in" } });
    }
    void refusesFiles()
    {
        const auto [file, reason] = textRow<2>();
        QString error;
        QCOMPARE(m_manager->loadPlugin(file, &error), nullptr);
        QVERIFY2(error.startsWith(file + u": "_s + reason), qPrintable(error));
    }

    void moduleLivesAndDiesInOrder()
    {
        const QDir folder(QStringLiteral(CORVANE_TEST_MODULES));
        const QString file = u"recording_module" CORVANE_MODULE_SUFFIX ""_s;
        const QString sameFile = folder.filePath(u"../test_extender/"_s + file);
        for (int round = 0; round < 2; ++round) {
            QString error;
            QVERIFY(m_manager->loadPlugin(folder.filePath(file)));
            QCOMPARE(m_manager->loadPlugin(sameFile, &error), nullptr);
            QCOMPARE(error, sameFile + u": this plug-in is already loaded"_s);
            m_manager->unloadAll();
            QCOMPARE(takeCalls(),
                u"Console load, Field Editor load, Console on, Field Editor on, no field, "
                "Field Editor off, Console off, Field Editor unload, Console unload, unload, "
                "destroyed"_s);
        }
    }

    void unloadsInReverse()
    {
        RecordingPlugin first, second;
        first.add({ "A" });
        first.add<CrvEditor>({ "Console" }); // listed at the top, but that is its dock's affair
        second.add({ "Profile Selector", "B" });
        m_manager->adoptPlugin(&first);
        m_manager->adoptPlugin(&second);
        auto* const node = new KnMaterial;
        // Which holds the node, and nobody else does.
        CrvServices::getInstance()->selectField(&node->transparency);
        CrvServices::getInstance()->executeCommand(new NotingCommand);
        m_manager->unloadAll();
        QCOMPARE(takeCalls(),
            u"A load, Console load, A on, no field, "
            "Profile Selector load, B load, Profile Selector on, B on, no field, field, execute, "
            "no field, destroy, B off, Profile Selector off, A off, B unload, "
            "Profile Selector unload, unload, Console unload, A unload, unload"_s);
    }

    void refusesProfiles_data()
    {
        QTest::addColumn<QByteArray>("json");
        // The message behind the file's name, and what is refused with it.
        const auto row
            = [](const char* message, const QByteArray& json) { QTest::newRow(message) << json; };
        row(": profiles[1].name: there are two profiles of the name \"a\"",
            R"({"profiles":[{"name":"a","extensions":[]},{"name":"a","extensions":[]}]})");
        row(": profiles[0].extensions[0].controls[1].controls: an array",
            profileOf(R"([{"name":"b","controls":["c",{"name":"d","controls":"*"}]}])"));
    }
    void refusesProfiles()
    {
        QFETCH(QByteArray, json);
        const std::list<CrvProfile*> before = m_manager->getProfilesList();
        const QString message = QString::fromUtf8(QTest::currentDataTag());
        QCOMPARE(load(json).left(message.size()), message);
        QCOMPARE(m_manager->getProfilesList(), before);
        QCOMPARE(takeCalls(), QString());
    }

    void controlledExtensions()
    {
        m_manager->adoptPlugin(m_plugin.get());
        QCOMPARE(controls(),
            u"Field Editor.MField Field Editor.SFBool Field Editor.SFBool Node Editor.MField "
            "Node Editor.SFBool Node Editor.SFBool"_s);
        QCOMPARE(load(profileOf(R"(["Node Editor",{"name":"Console","controls":["Nobody","MField"]},
            {"name":"Console","controls":[{"name":"SFBool","controls":["MField"]}]}])")),
            QString());
        QCOMPARE(controls(),
            u"Console.MField Console.SFBool Console.SFBool SFBool.MField SFBool.MField"_s);
    }

    void switchingTouchesOnlyDifference()
    {
        m_manager->adoptPlugin(m_plugin.get());
        QCOMPARE(switchTo(Fields), u"Foreign off, Console off, no field, changed"_s);
        QCOMPARE(switchTo(Fields), QString());
        QCOMPARE(switchTo(Console),
            u"Node Editor off, Field Editor off, Console on, no field, changed"_s);
        // The selector shows the list of the moment in which it was activated.
        QCOMPARE(load(R"({"profiles":[{"name":"Other","extensions":[]},
            {"name":"Console","extensions":["Profile Selector"]}]})"),
            QString());
        QCOMPARE(takeCalls(),
            u"replaced, Console off, Profile Selector off, Profile Selector on, no field, "
            "changed"_s);
        QCOMPARE(activeName(), u"Console"_s);
    }

    void changesFromWithinActivate()
    {
        m_manager->adoptPlugin(m_plugin.get());
        switchTo(Fields);
        // The console's wish ends the round: what came behind it is never activated.
        m_console->inActivate = [this] { load(profileOf(R"(["Foreign"])")); };
        QCOMPARE(switchTo(Everything),
            u"Console on, replaced, Console off, Node Editor off, Field Editor off, "
            "Profile Selector off, Foreign on, no field, changed"_s);
        QCOMPARE(activeName(), u"Caf\u00e9"_s);
    }

private:
    /// What is wrong with the profiles, behind the file's name; empty when they were taken.
    QString load(const QByteArray& json)
    {
        QTemporaryFile file;
        if (!file.open() || file.write(json) != json.size() || !file.flush())
            return file.errorString();
        QString error;
        m_manager->loadProfiles(file.fileName(), &error);
        return error.remove(0, file.fileName().size());
    }

    CrvProfile* profile(int index) const
    {
        return *std::next(m_manager->getProfilesList().begin(), index);
    }

    /// Makes the profile active and returns the calls that come of it.
    QString switchTo(int index)
    {
        takeCalls();
        m_manager->setActiveProfile(profile(index));
        return takeCalls();
    }

    QString activeName() const { return toQString(m_manager->getActiveProfile()->getName()); }

    /// What the profile puts below what, as "Console.SFBool".
    QString controls() const
    {
        QStringList all;
        for (const CrvExtension* extension : m_manager->getExtensions()) {
            for (const auto& below : extension->getProfileSetting()->getControlledExtensions())
                all += toQString(extension->getName()) + u'.' + toQString(below.first->getName());
        }
        all.sort(); // the map goes by address
        return all.join(u' ');
    }

    CrvPluginsManager* const m_manager = CrvPluginsManager::getInstance();
    std::unique_ptr<RecordingPlugin> m_plugin; // anew for each test
    Recording<CrvExtension>* m_console = nullptr;
};

QTEST_MAIN(PluginsManagerTest)
#include "test_plugins_manager.moc"
