// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "RecordingPlugin.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString toQString(const KbString& text) { return QString::fromStdString(text.toUtf8()); }

} // namespace

class ProfilesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_s));
        qRegisterMetaType<CrvProfile*>(); // for the signal spies
        m_plugin = std::make_unique<RecordingPlugin>();
        m_plugin->add<RecordingExtension>("Profile Selector");
        m_console = m_plugin->add<RecordingExtension>("Console");
        m_plugin->add<RecordingEditor>("MField");
        m_plugin->add<RecordingEditor>("SFBool");
        m_plugin->add<RecordingExtension>("Field Editor");
        m_plugin->add<RecordingExtension>("Node Editor");
        m_plugin->add<RecordingExtension>("Foreign");
        m_plugin->add<RecordingEditor>("SFBool"); // as a second plug-in may bring it
    }

    void cleanup()
    {
        m_manager->unloadAll();
        m_manager->useBuiltInProfiles();
        m_manager->setActiveProfile(m_manager->getProfilesList().front());
        takeCalls();
    }

    void refusals_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("start");
        const char* const rows[][3] = {
            { "empty file", "", "line 1, column 1: " },
            { "no JSON", "{\"profiles\":\n  [oops]}", "line 2, column 4: " },
            { "rest behind", "{}\n\n x", "line 3, column 2: " },
            { "root array", "[]", "$: an object is expected" },
            { "no list", "{}", "$.profiles: an array is expected" },
            { "unknown member", R"({"profile":[]})", "$.profile: unknown member" },
            { "wrong list", R"({"profiles":{}})", "$.profiles: an array is expected" },
            { "empty list", R"({"profiles":[]})", "$.profiles: at least one" },
            { "wrong profile", R"({"profiles":["a"]})", "$.profiles[0]: an object" },
            { "no name", R"({"profiles":[{"extensions":[]}]})", "$.profiles[0].name: a name" },
            { "no extensions", R"({"profiles":[{"name":"a"}]})",
                "$.profiles[0].extensions: an array" },
            { "same name",
                R"({"profiles":[{"name":"a","extensions":[]},{"name":"a","extensions":[]}]})",
                "$.profiles[1].name: there are two profiles of the name \"a\"" },
            { "wrong entry", R"({"profiles":[{"name":"a","extensions":["b",1]}]})",
                "$.profiles[0].extensions[1]: a name" },
            { "empty name", R"({"profiles":[{"name":"a","extensions":[{"name":""}]}]})",
                "$.profiles[0].extensions[0].name: a name" },
            { "misspelt controls",
                R"({"profiles":[{"name":"a","extensions":[{"name":"b","x":[]}]}]})",
                "$.profiles[0].extensions[0].x: unknown member" },
            { "deep inside",
                R"({"profiles":[{"name":"a","extensions":[{"name":"b","controls":["c",{"name":"d",
                    "controls":"*"}]}]}]})",
                "$.profiles[0].extensions[0].controls[1].controls: an array" },
        };
        for (const auto& [name, json, start] : rows)
            QTest::newRow(name) << QByteArray(json) << QString::fromLatin1(start);
    }

    void refusals()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, start);
        const std::list<CrvProfile*> before = m_manager->getProfilesList();
        QSignalSpy changes(m_manager, &CrvPluginsManager::profilesChanged);
        QString error;
        QVERIFY(!load(json, &error));
        QVERIFY2(error.startsWith(start), qPrintable(error));
        QCOMPARE(m_manager->getProfilesList(), before);
        QCOMPARE(changes.count(), 0);
    }

    void readsNestedEntries()
    {
        QVERIFY(load(R"({"profiles":[{"name":"Caf\u00e9","extensions":[
            "A", {"name":"B","controls":["C",{"name":"D","controls":["E"]}]}]}]})"));
        QCOMPARE(activeName(), u"Café"_s);
        const auto& entries = m_manager->getActiveProfile()->getEntries();
        QCOMPARE(entries.size(), std::size_t(2));
        QVERIFY(entries[0].children.empty());
        QCOMPARE(toQString(entries[1].children.at(1).children.at(0).extension), u"E"_s);

        QString error;
        QVERIFY(!m_manager->loadProfiles(u"nowhere/profiles.json"_s, &error));
        QVERIFY2(error.startsWith(u"nowhere/profiles.json: "), qPrintable(error));
        const QString sample = QLatin1String(CORVANE_SAMPLE_PROFILES);
        QVERIFY2(m_manager->loadProfiles(sample, &error), qPrintable(error));
    }

    void settings_data()
    {
        QTest::addColumn<QByteArray>("extensions"); // empty for the built-in profile
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("controlled");
        const char* const all = "MField SFBool SFBool";
        const char* const rows[][4] = {
            { "built-in fields", "", "Field Editor", all },
            { "built-in nodes", "", "Node Editor", all },
            { "built-in console", "", "Console", "" },
            { "by name", R"([{"name":"Console","controls":["SFBool"]}])", "Console",
                "SFBool SFBool" },
            { "unknown name", R"([{"name":"Console","controls":["Nobody"]}])", "Console", "" },
            { "not listed", R"([{"name":"Console","controls":["*"]}])", "Foreign", "" },
            { "listed twice", R"([{"name":"Console","controls":["MField"]},
                {"name":"Console","controls":["SFBool"]}])",
                "Console", all },
            { "below another", R"([{"name":"Console","controls":[
                {"name":"SFBool","controls":["MField"]}]}])",
                "SFBool", "MField MField" },
            { "wildcard", R"([{"name":"*","controls":["*"]}])", "Foreign", all },
        };
        for (const auto& [name, extensions, asked, controlled] : rows) {
            QTest::newRow(name) << QByteArray(extensions) << QString::fromLatin1(asked)
                                << QString::fromLatin1(controlled);
        }
    }

    void settings()
    {
        QFETCH(QByteArray, extensions);
        QFETCH(QString, asked);
        m_manager->adoptPlugin(m_plugin.get());
        if (!extensions.isEmpty())
            QVERIFY(load(R"({"profiles":[{"name":"a","extensions":)" + extensions + "}]}"));
        QStringList names;
        for (const CrvExtension* extension : m_manager->getExtensions()) {
            if (toQString(extension->getName()) != asked)
                continue;
            for (const auto& [below, setting] :
                extension->getProfileSetting()->getControlledExtensions()) {
                names += toQString(below->getName());
                QCOMPARE(setting, below->getProfileSetting());
            }
        }
        names.sort(); // the map goes by address
        QTEST(names.join(u' '), "controlled");
    }

    void switchingTouchesOnlyDifference()
    {
        QSignalSpy changes(m_manager, &CrvPluginsManager::activeProfileChanged);
        m_manager->adoptPlugin(m_plugin.get());
        const auto switchTo = [this](const QString& name) {
            takeCalls();
            m_manager->setActiveProfile(profile(name));
            return takeCalls();
        };
        QCOMPARE(switchTo(u"Fields"_s), u"Foreign off, Console off"_s);
        QCOMPARE(switchTo(u"Fields"_s), QString());
        QCOMPARE(switchTo(u"Console"_s), u"Node Editor off, Field Editor off, Console on"_s);
        QCOMPARE(switchTo(u"Everything"_s), u"Field Editor on, Node Editor on, Foreign on"_s);
        QCOMPARE(changes.count(), 3);
        CrvProfile foreign("foreign", {});
        m_manager->setActiveProfile(&foreign);
        QCOMPARE(activeName(), u"Everything"_s);
        QCOMPARE(switchTo(u"none"_s),
            u"Foreign off, Node Editor off, Field Editor off, Console off, Profile Selector off"_s);
    }

    void switchingAnnouncesSelection()
    {
        m_manager->adoptPlugin(m_plugin.get());
        takeCalls();
        QObject context;
        connect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, &context,
            [] { note("announced"); });
        connect(
            m_manager, &CrvPluginsManager::activeProfileChanged, &context, [] { note("changed"); });
        m_manager->setActiveProfile(profile(u"Fields"_s));
        QCOMPARE(takeCalls(), u"Foreign off, Console off, announced, changed"_s);
    }

    void switchingFromWithinActivate()
    {
        m_manager->setActiveProfile(profile(u"Fields"_s));
        m_manager->adoptPlugin(m_plugin.get());
        m_console->inActivate = [this] { m_manager->setActiveProfile(profile(u"Fields"_s)); };
        QSignalSpy changes(m_manager, &CrvPluginsManager::activeProfileChanged);
        takeCalls();
        m_manager->setActiveProfile(profile(u"Everything"_s));
        // The console's wish ends the round: what came behind it is never activated.
        QCOMPARE(takeCalls(), u"Console on, Console off"_s);
        QCOMPARE(activeName(), u"Fields"_s);
        QCOMPARE(changes.count(), 1);

        // The same with the whole list replaced under the manager's feet.
        m_console->inActivate
            = [this] { QVERIFY(load(R"({"profiles":[{"name":"a","extensions":["Foreign"]}]})")); };
        m_manager->setActiveProfile(profile(u"Everything"_s));
        QCOMPARE(activeName(), u"a"_s);
        QCOMPARE(takeCalls(),
            u"Console on, Console off, Node Editor off, Field Editor off, Profile Selector off, "
            "Foreign on"_s);
    }

    void replacingActivatesAnew()
    {
        m_manager->adoptPlugin(m_plugin.get());
        m_manager->setActiveProfile(profile(u"Console"_s));
        takeCalls();
        QSignalSpy changes(m_manager, &CrvPluginsManager::profilesChanged);
        // The selector shows the list of the moment in which it was activated.
        QVERIFY(load(R"({"profiles":[{"name":"Other","extensions":[]},
            {"name":"Console","extensions":["Profile Selector"]}]})"));
        QCOMPARE(takeCalls(), u"Console off, Profile Selector off, Profile Selector on"_s);
        QCOMPARE(activeName(), u"Console"_s);
        QCOMPARE(changes.count(), 1);
        QVERIFY(load(R"({"profiles":[{"name":"Elsewhere","extensions":[]}]})"));
        QCOMPARE(activeName(), u"Elsewhere"_s);
    }

private:
    bool load(const QByteArray& json, QString* error = nullptr)
    {
        QTemporaryFile file;
        if (!file.open() || file.write(json) != json.size() || !file.flush())
            return false;
        QString message;
        const bool taken = m_manager->loadProfiles(file.fileName(), &message);
        if (error)
            *error = message.remove(file.fileName() + u": "_s);
        return taken;
    }

    CrvProfile* profile(const QString& name) const
    {
        for (CrvProfile* each : m_manager->getProfilesList()) {
            if (toQString(each->getName()) == name)
                return each;
        }
        return nullptr;
    }

    QString activeName() const { return toQString(m_manager->getActiveProfile()->getName()); }

    CrvPluginsManager* const m_manager = CrvPluginsManager::getInstance();
    std::unique_ptr<RecordingPlugin> m_plugin; // anew for each test
    RecordingExtension* m_console = nullptr;
};

QTEST_MAIN(ProfilesTest)
#include "test_profiles.moc"
