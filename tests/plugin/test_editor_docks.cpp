// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "EditorFixture.h"
#include "EditorSelection.h"
#include "KnDatabase.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QUndoStack>

#include <algorithm>
#include <array>

namespace {

/// An editor that writes down what the dock asks of it.
class ProbeEditor : public CrvEditor {
public:
    explicit ProbeEditor(const KnType& type = {})
    {
        m_handledType = type;
        m_widget = &m_label;
    }
    void handle(const KnType& type) { m_handledType = type; }
    void activate() override
    {
        CrvEditor::activate();
        log << QStringLiteral("activate");
    }
    void deactivate() override
    {
        CrvEditor::deactivate();
        log << (getEditedObject() ? QStringLiteral("deactivate with object")
                                  : QStringLiteral("deactivate without object"));
    }
    QStringList log;

private:
    QFrame m_label;
};

/// A plug-in that offers one editor under a name of its own.
class ProbePlugin : public CrvPlugin {
public:
    explicit ProbePlugin(CrvExtension* extension)
        : m_extension(extension)
    {
    }
    void load() override
    {
        addExtension(m_extension);
        CrvPlugin::load();
    }

private:
    CrvExtension* m_extension;
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

    void docksComeAndGo()
    {
        EditorFixture fixture;
        const QStringList calls = fixture.shell().calls();
        const auto dock = calls.indexOf(QStringLiteral("addDockWidget Field Editor 2"));
        QVERIFY(dock >= 0);
        QCOMPARE(calls.value(dock + 1), QStringLiteral("registerExtension Field Editor 1"));
        QVERIFY(calls.contains(QStringLiteral("addDockWidget Node Editor 2")));

        fixture.shell().calls().clear();
        CrvPluginsManager::getInstance()->unloadAll();
        QVERIFY(fixture.shell().extensions().isEmpty());
        QVERIFY(fixture.shell().calls().contains(QStringLiteral("removeDockWidget Field Editor")));
    }

    void aSelectionShowsTheDockAndNoneHidesIt()
    {
        EditorFixture fixture;
        auto* const dock
            = fixture.shell().window().findChild<QDockWidget*>(QStringLiteral("Field Editor"));
        QVERIFY(dock && dock->isHidden());
        fixture.select(fixture.field("SFBool"));
        QVERIFY(dock->isVisible());
        QCOMPARE(dock->widget(), fixture.editor()->getFrame());
        QVERIFY(fixture.editor()->getFrame()->isVisible());

        QPointer<QFrame> frame = fixture.editor()->getFrame();
        fixture.select(nullptr);
        QVERIFY(dock->isHidden());
        QCOMPARE(dock->widget(), nullptr);
        QCOMPARE(fixture.editor(), nullptr);
        QVERIFY(frame && !frame->parent() && frame->isHidden());
    }

    void anotherFieldOfTheTypeMovesTheSensor()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFBool"));
        CrvFieldEditors* const editor = fixture.editor();
        fixture.select(fixture.otherField("SFBool"));
        QCOMPARE(fixture.editor(), editor);
        auto* const box = fixture.child<QAbstractButton>("m_box");
        EditorFixture::write(fixture.field("SFBool"), "TRUE");
        QVERIFY(!box->isChecked());
        EditorFixture::write(fixture.otherField("SFBool"), "TRUE");
        QVERIFY(box->isChecked());
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void anEditorWithoutAFieldStaysHidden()
    {
        EditorFixture fixture;
        WfSFBoolWidget editor;
        editor.load();
        editor.activate();
        QVERIFY(editor.getFrame()->isHidden());
        editor.setEditedObject(&fixture.node());
        editor.activate();
        QVERIFY(editor.getFrame()->isHidden());
        editor.deactivate();
        editor.unload();
        // An editor that was never loaded may go as well.
        WfSFBoolWidget untouched;
        untouched.deactivate();
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

    void aNodeEditorOfAnotherPlugInShows()
    {
        EditorFixture fixture;
        ProbeEditor editor(KnTestNode::getClassTypeId());
        ProbePlugin plugin(&editor);
        CrvPluginsManager::getInstance()->adoptPlugin(&plugin);
        auto* const dock
            = fixture.shell().window().findChild<QDockWidget*>(QStringLiteral("Node Editor"));
        QVERIFY(dock->isHidden());
        CrvServices::getInstance()->selectNode(&fixture.node());
        QVERIFY(dock->isVisible());
        QCOMPARE(editor.getEditedObject(), &fixture.node());
        CrvServices::getInstance()->selectNode(nullptr);
        QVERIFY(dock->isHidden());
        QCOMPARE(editor.log,
            QStringList({ QStringLiteral("activate"), QStringLiteral("deactivate with object") }));
        QCOMPARE(editor.getEditedObject(), nullptr);
        CrvPluginsManager::getInstance()->unloadAll();
    }
};

QTEST_MAIN(TestEditorDocks)
#include "test_editor_docks.moc"
