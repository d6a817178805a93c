// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvStrings.h"
#include "EditorFixture.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QToolBar>

using namespace Qt::StringLiterals;

/// The selector in a real host with the built-in profiles.
class TestProfileSelector : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<CrvProfile*>("CrvProfile*"); } // for the spies
    void init()
    {
        // A profile of the same name stays active when the host's are replaced.
        manager()->setActiveProfile(manager()->getProfilesList().front());
        EditorFixture::init();
        m_combo = window().findChild<QComboBox*>(u"m_comboBox"_s);
        QVERIFY(m_combo);
    }

    void choosingMakesActive()
    {
        const QSignalSpy changes(manager(), &CrvPluginsManager::activeProfileChanged);
        QCOMPARE(state(), u"Everything|Fields|Console, 0, Everything"_s);
        choose(0); // the current one: the host isn't called
        QCOMPARE(changes.count(), 0);
        choose(2);
        QCOMPARE(state(), u"Everything|Fields|Console, 2, Console"_s);
        QCOMPARE(changes.count(), 1);
        QVERIFY(m_combo->isVisible());
        // One chosen elsewhere shows at the next activation.
        manager()->setActiveProfile(manager()->getProfilesList().front());
        QCOMPARE(state(), u"Everything|Fields|Console, 2, Everything"_s);
    }

    void theToolBarComesAndGoes()
    {
        QStringList& calls = shell().calls();
        CrvExtension* const selector = plugin().getExtensions().front();
        auto* const toolBar = qobject_cast<QToolBar*>(m_combo->parent());
        QVERIFY(toolBar && toolBar->windowTitle() == u"Profile Selector"_s);
        QCOMPARE(m_combo->toolTip(), u"Select the active profile."_s);
        manager()->setActiveProfile(manager()->getProfilesList().back());
        calls.clear();
        selector->deactivate();
        QVERIFY(!selector->isActive() && !toolBar->parent());
        selector->activate();
        QCOMPARE(calls.join(u'|'),
            u"removeToolBar Profile Selector|unregisterExtension Profile Selector|"
            "addToolBar Profile Selector 4|registerExtension Profile Selector 1"_s);
        QVERIFY(selector->isActive() && selector->isShown() && toolBar->isVisible());
        QCOMPARE(window().toolBarArea(toolBar), Qt::TopToolBarArea);
        QCOMPARE(state(), u"Everything|Fields|Console, 2, Console"_s);
        selector->hide();
        QVERIFY(!selector->isShown() && toolBar->isHidden());
        selector->show();
        QVERIFY(selector->isShown() && toolBar->isVisible());
    }

    void theHostMayChangeTheProfilesWhileTheChoiceIsHandled()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(R"({"profiles":[{"name":"é∀","extensions":["Profile Selector"]}]})");
        file.close();
        connect(manager(), &CrvPluginsManager::activeProfileChanged, m_combo, [this, &file] {
            disconnect(manager(), nullptr, m_combo, nullptr);
            QVERIFY(manager()->loadProfiles(file.fileName(), nullptr));
        });
        choose(1);
        // Outside Latin-1 is no character of a name.
        QCOMPARE(state(), u"é?, 0, é∀"_s);
    }

    /// Text that was typed and not yet committed when the profile, and with it the editor, goes.
    void typedTextIsWrittenWhenTheProfileChanges()
    {
        const KnField& field = show("MFInt32", "[ 1, 2, 3 ]");
        table().type(1, 0, u"7"_s);
        const auto profiles = manager()->getProfilesList();
        for (CrvProfile* const profile : { profiles.back(), profiles.front() }) {
            manager()->setActiveProfile(profile);
            settle();
        }
        QCOMPARE(text(&field), u"[ 1, 7, 3 ]"_s);
        QCOMPARE(table().openEditor(), nullptr);
    }

private:
    static CrvPluginsManager* manager() { return CrvPluginsManager::getInstance(); }
    /// The names listed, the index of the one shown, and the host's active profile.
    QString state() const
    {
        QStringList names;
        for (int i = 0; i < m_combo->count(); ++i)
            names << m_combo->itemText(i);
        const CrvProfile* const active = manager()->getActiveProfile();
        return u"%1, %2, %3"_s.arg(names.join(u'|'))
            .arg(m_combo->currentIndex())
            .arg(active ? toQString(active->getName()) : u"none"_s);
    }
    /// As a user does: opens the list and picks the entry.
    void choose(int entry)
    {
        QTest::keyClick(m_combo, Qt::Key_F4);
        QAbstractItemView* const list = m_combo->view();
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < entry; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_VERIFY(!list->isVisible());
    }

    QComboBox* m_combo = nullptr; // the tool bar's
};

QTEST_MAIN(TestProfileSelector)
#include "test_profile_selector.moc"
