// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPlugin.h"
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvProfileSelectorExtension.h"
#include "EditorFixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTemporaryFile>
#include <QToolBar>

namespace {

class SelectorPlugin : public CrvPlugin {
public:
    void load() override
    {
        addExtension(&selector);
        CrvPlugin::load();
    }
    CrvProfileSelectorExtension selector;
};

} // namespace

/// The selector in a real host whose profiles are "First" and one with characters inside and
/// outside Latin-1, which hold the selector, and "Without".
class TestProfileSelector : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_shell = std::make_unique<TestShell>();
        m_plugin = std::make_unique<SelectorPlugin>();
        loadProfiles(R"({ "name": "First", "extensions": [ "Profile Selector" ] },
            { "name": "é∀", "extensions": [ "Profile Selector" ] },
            { "name": "Without", "extensions": [] })");
        manager()->adoptPlugin(m_plugin.get());
        m_shell->window().show();
        m_shell->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_shell->window()));
    }
    void cleanup()
    {
        manager()->unloadAll();
        m_plugin.reset();
        m_shell.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void theBarShowsTheProfiles()
    {
        QCOMPARE(names(),
            QStringList(
                { QStringLiteral("First"), QStringLiteral(u"é?"), QStringLiteral("Without") }));
        QCOMPARE(combo()->currentIndex(), 0);
        QCOMPARE(combo()->toolTip(), QStringLiteral("Select the active profile."));
        QCOMPARE(combo()->itemData(0), QVariant());
        QCOMPARE(m_shell->calls(),
            QStringList({ QStringLiteral("addToolBar Profile Selector 4"),
                QStringLiteral("registerExtension Profile Selector 1") }));
        QVERIFY(m_plugin->selector.isShown() && combo()->isVisible());
        m_plugin->selector.hide();
        QVERIFY(!combo()->isVisible());
    }

    void choosingMakesActive()
    {
        choose(1);
        QCOMPARE(manager()->getActiveProfile(), profile(1));
        QCOMPARE(combo()->currentIndex(), 1);

        bool told = false;
        connect(
            manager(), &CrvPluginsManager::activeProfileChanged, this, [&told] { told = true; });
        choose(1);
        QVERIFY(!told);
        disconnect(manager(), nullptr, this, nullptr);

        // The chosen profile lacks the selector itself.
        choose(2);
        QCOMPARE(manager()->getActiveProfile(), profile(2));
        QCOMPARE(m_shell->calls().last(), QStringLiteral("unregisterExtension Profile Selector"));
        QVERIFY(!m_plugin->selector.isActive());

        manager()->setActiveProfile(profile(0));
        QCOMPARE(combo()->currentIndex(), 0);
        QCOMPARE(combo()->count(), 3);
    }

    void theHostMayActivateAgainWhileTheChoiceIsHandled()
    {
        // Replacing the profiles deactivates and activates every extension.
        connect(manager(), &CrvPluginsManager::activeProfileChanged, this, [this] {
            disconnect(manager(), nullptr, this, nullptr);
            manager()->useBuiltInProfiles();
        });
        choose(1);
        QCOMPARE(names().value(0), QStringLiteral("Everything"));
        QCOMPARE(combo()->currentIndex(), 0);
        QVERIFY(m_plugin->selector.isActive());
    }

    void aHostWithoutAnActiveProfileShowsNone()
    {
        manager()->setActiveProfile(nullptr);
        m_plugin->selector.activate();
        QCOMPARE(combo()->currentIndex(), -1);
        QCOMPARE(combo()->count(), 3);
        QCOMPARE(manager()->getActiveProfile(), nullptr);
        m_plugin->selector.deactivate();
        // Not connected: no effect.
        combo()->setCurrentIndex(2);
        QCOMPARE(manager()->getActiveProfile(), nullptr);
    }

private:
    static CrvPluginsManager* manager() { return CrvPluginsManager::getInstance(); }
    static CrvProfile* profile(int position)
    {
        return *std::next(manager()->getProfilesList().begin(), position);
    }
    void loadProfiles(const char* profiles)
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(QByteArray("{ \"profiles\": [") + profiles + "] }");
        file.close();
        QString error;
        QVERIFY2(manager()->loadProfiles(file.fileName(), &error), qPrintable(error));
    }
    QComboBox* combo() const
    {
        const QWidgetList widgets = QApplication::allWidgets();
        return qobject_cast<QComboBox*>(*std::find_if(widgets.begin(), widgets.end(),
            [](QWidget* widget) { return qobject_cast<QComboBox*>(widget); }));
    }
    QStringList names() const
    {
        QStringList result;
        for (int i = 0; i < combo()->count(); ++i)
            result << combo()->itemText(i);
        return result;
    }
    /// As a user does: opens the list and picks the entry.
    void choose(int entry)
    {
        QTest::keyClick(combo(), Qt::Key_F4);
        QAbstractItemView* const list = combo()->view();
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < entry; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_VERIFY(!list->isVisible());
    }

    std::unique_ptr<TestShell> m_shell;
    std::unique_ptr<SelectorPlugin> m_plugin;
};

QTEST_MAIN(TestProfileSelector)
#include "test_profile_selector.moc"
