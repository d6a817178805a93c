// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "EditorFixture.h"
#include "EditorSelection.h"
#include "KnDatabase.h"

#include <QLineEdit>

#include <algorithm>
#include <array>

namespace {

/// An editor that handles whatever a case wants.
class ProbeEditor : public CrvEditor {
public:
    void handle(const KnType& type) { m_handledType = type; }
};

} // namespace

class TestEditorDocks : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    /// Which of the editors, given in the order of the map, serves an object of a type.
    void selectionRule_data()
    {
        QTest::addColumn<QStringList>("handled");
        QTest::addColumn<QString>("object");
        QTest::addColumn<int>("winner");
        const auto row = [](const char* what, const char* handled, const char* object, int winner) {
            const QString list = QLatin1String(handled);
            QTest::newRow(what) << (list.isEmpty() ? QStringList() : list.split(u' '))
                                << QString(QLatin1String(object)) << winner;
        };
        row("no editor", "", "SFBool", -1);
        row("no match", "SFFloat MField", "SFBool", -1);
        row("own type", "SFFloat SFBool", "SFBool", 1);
        row("most derived first", "SFFilePathString SFString SField", "SFFilePathString", 0);
        row("most derived last", "SField SFString SFFilePathString", "SFFilePathString", 2);
        row("most derived between", "SFString SFFilePathString SField", "SFFilePathString", 1);
        row("less derived object", "SField SFString SFFilePathString", "SFString", 1);
        row("the later of equals", "SFBool SFBool", "SFBool", 1);
        row("the later of equal catch-alls", "SField SField MField", "SFTime", 1);
        row("no editors among them", "- SFBool -", "SFBool", 1);
        row("only no editors", "- -", "SFBool", -1);
        row("an editor without a type", "none SFBool", "SFBool", 1);
    }
    void selectionRule()
    {
        QFETCH(QStringList, handled);
        QFETCH(QString, object);
        QFETCH(int, winner);

        KnDatabase::init();
        // The map is ordered by pointer, so one array gives the order of the editors.
        std::array<ProbeEditor, 4> editors;
        struct NoEditor : CrvExtension { };
        std::array<NoEditor, 4> others;
        std::map<CrvExtension*, CrvProfileSetting*> map;
        for (int i = 0; i < handled.size(); ++i) {
            const auto at = static_cast<std::size_t>(i);
            if (handled[i] == u'-') {
                map[&others[at]] = nullptr;
                continue;
            }
            editors[at].handle(KnType::fromName(KbName(qPrintable(handled[i]))));
            map[&editors[at]] = nullptr;
        }
        const KnType type = KnType::fromName(KbName(qPrintable(object)));
        QVERIFY(!type.isBad());
        QCOMPARE(selectEditor(map, type),
            winner < 0 ? nullptr : &editors[static_cast<std::size_t>(winner)]);
    }

    void deactivationGivesTheFrameBack()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFBool"));
        QPointer<QFrame> frame = fixture.editor()->getFrame();
        CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
        const auto profiles = manager->getProfilesList();
        const auto console = std::find_if(profiles.begin(), profiles.end(),
            [](const CrvProfile* profile) { return profile->getName() == KbString("Console"); });
        QVERIFY(console != profiles.end());
        manager->setActiveProfile(*console);
        QVERIFY(frame && !frame->parent());
        QCOMPARE(fixture.editor(), nullptr);

        // The selection is announced again when the dock comes back.
        manager->setActiveProfile(profiles.front());
        QVERIFY(fixture.editor() && frame->isVisible());
    }

    void aDockThatGoesTakesNoFurtherSelection()
    {
        EditorFixture fixture;
        const auto extensions = CrvPluginsManager::getInstance()->getExtensions();
        const auto dock = std::find_if(extensions.begin(), extensions.end(),
            [](CrvExtension* e) { return qobject_cast<CrvFieldEditorDockWin*>(e); });
        fixture.select(fixture.field("SFString"));
        fixture.child<QLineEdit>("lineEdit")->setFocus();
        // Whoever gets the focus from the editor selects something.
        connect(qApp, &QApplication::focusChanged, this, [&fixture](QWidget* old) {
            if (old)
                CrvServices::getInstance()->selectField(fixture.field("SFFloat"));
        });
        (*dock)->deactivate();
        disconnect(qApp, nullptr, this, nullptr);
        for (CrvExtension* extension : extensions)
            QVERIFY(!qobject_cast<CrvEditor*>(extension) || !extension->isActive());
        QCOMPARE(CrvServices::getInstance()->getSelectedField(), fixture.field("SFFloat"));
        (*dock)->activate();
    }
};

QTEST_MAIN(TestEditorDocks)
#include "test_editor_docks.moc"
