// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "EditorFixture.h"
#include "EditorSelection.h"
#include "KnDatabase.h"
#include "TextRows.h"

#include <QDockWidget>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// An editor that handles whatever a case wants.
class AnyEditor : public CrvEditor {
public:
    void handle(const QString& type) { m_handledType = KnType::fromName(KbName(qPrintable(type))); }
};

/// An editor of another plug-in, which writes what a dock asks of it behind the shell's calls.
class ProbeEditor : public AnyEditor {
public:
    ProbeEditor(const QString& type, QStringList& log)
        : m_log(log)
    {
        handle(type);
        m_widget = &m_frame;
    }
    void setEditedObject(KnTypedObject* object) override
    {
        CrvEditor::setEditedObject(object);
        m_log << (object ? u"object"_s : u"no object"_s);
    }
    void activate() override
    {
        CrvEditor::activate();
        m_log << u"activate"_s + place();
    }
    void deactivate() override
    {
        CrvEditor::deactivate();
        m_log << u"deactivate"_s + place();
    }

private:
    QString place() const
    {
        return (m_editedObject ? u" with object"_s : QString())
            + (qobject_cast<QDockWidget*>(m_frame.parent()) ? u" in dock"_s : QString());
    }

    QStringList& m_log;
    QFrame m_frame;
};

class ProbePlugin : public CrvPlugin {
public:
    explicit ProbePlugin(CrvExtension* extension) { addExtension(extension); }
};

} // namespace

/// Editors and the docks that show them, step by step.
class TestEditorHosting : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    /// Which of the editors, given in the order of the map, serves an object of a type.
    void selectionRule_data()
    {
        addTextRows({
            { "SFFloat MField", "SFBool", "-1" }, { "SFFloat SFBool", "SFBool", "1" },
            { "SFFilePathString SFString SField", "SFFilePathString", "0" },
            { "SField SFString SFFilePathString", "SFFilePathString", "2" },
            { "SFString SFFilePathString SField", "SFFilePathString", "1" },
            { "SField SFString SFFilePathString", "SFString", "1" },
            { "SFBool SFBool", "SFBool", "1" }, // the later of equals
            { "SField SField MField", "SFTime", "1" },
            { "none SFBool", "SFBool", "1" }, // an editor without a type
        });
    }
    void selectionRule()
    {
        const auto [handled, object, winner] = textRow<3>();
        KnDatabase::init();
        // The map is ordered by pointer, so one array gives the order of the editors.
        std::array<AnyEditor, 3> editors;
        std::map<CrvExtension*, CrvProfileSetting*> map;
        AnyEditor* next = editors.data();
        for (const QString& type : handled.split(u' ')) {
            next->handle(type);
            map[next++] = nullptr;
        }
        const KnType type = KnType::fromName(KbName(qPrintable(object)));
        QVERIFY(!type.isBad());
        QCOMPARE(
            selectEditor(map, type), winner == u"-1"_s ? nullptr : editors.data() + winner.toInt());
    }

    void aDockAndItsEditor_data()
    {
        addTextRows({ { "Field Editor", "SFTime" }, { "Node Editor", "TestNode" } });
    }
    void aDockAndItsEditor()
    {
        const auto texts = textRow<2>();
        const QString& dockName = texts[0];
        const QString& type = texts[1];
        QStringList& log = shell().calls();
        ProbeEditor editor(type, log);
        ProbePlugin probe(&editor);
        CrvPluginsManager::getInstance()->adoptPlugin(&probe);
        // Also behind a failure, while the editor lives.
        const auto unload = qScopeGuard([] { CrvPluginsManager::getInstance()->unloadAll(); });
        auto* const dock = window().findChild<QDockWidget*>(dockName);
        const auto& all = plugin().getExtensions();
        CrvExtension& extension = **std::find_if(all.begin(), all.end(),
            [&](CrvExtension* each) { return each->getName() == KbString(qPrintable(dockName)); });
        connect(dock, &QDockWidget::visibilityChanged, this, [heard = &log](bool visible) {
            *heard << (visible ? u"dock shown"_s : u"dock hidden"_s);
        });
        const auto select = [&](KnTestNode* node) {
            log.clear();
            if (type == u"TestNode"_s)
                CrvServices::getInstance()->selectNode(node);
            else
                CrvServices::getInstance()->selectField(node ? &node->SFTime : nullptr);
            settle();
        };
        const QStringList shown { u"object"_s, u"activate with object in dock"_s, u"dock shown"_s };
        const QStringList released { u"deactivate with object in dock"_s, u"no object"_s,
            u"dock hidden"_s };
        QVERIFY(extension.isActive() && !extension.isShown() && dock->isHidden());
        QVERIFY(dock->windowTitle() == dockName && !dock->acceptDrops());
        QCOMPARE(window().dockWidgetArea(dock), Qt::RightDockWidgetArea);

        select(&node());
        QCOMPARE(log, shown);
        QVERIFY(extension.isShown() && editor.isActive() && dock->widget() == editor.getWidget());
        select(&otherNode()); // the same editor again
        QCOMPARE(log, released + shown);
        select(nullptr);
        QCOMPARE(log, released);
        QVERIFY(!extension.isShown() && !editor.isActive() && !dock->widget());
        QVERIFY(!editor.getWidget()->parent());

        select(&node());
        log.clear();
        extension.deactivate();
        QCOMPARE(log,
            released
                + QStringList(
                    { u"removeDockWidget "_s + dockName, u"unregisterExtension "_s + dockName }));
        QVERIFY(!extension.isActive() && !editor.getWidget()->parent());
        select(&otherNode()); // nobody listens
        QCOMPARE(log, QStringList());
        extension.activate();
        QCOMPARE(log,
            QStringList({ u"addDockWidget %1 2"_s.arg(dockName),
                u"registerExtension %1 1"_s.arg(dockName) }));
        QVERIFY(extension.isActive());
        select(&node());
        QCOMPARE(log, shown);
    }

    void aDockThatGoesTakesNoFurtherSelection()
    {
        const auto extensions = CrvPluginsManager::getInstance()->getExtensions();
        const auto dock = std::find_if(extensions.begin(), extensions.end(),
            [](CrvExtension* e) { return qobject_cast<CrvFieldEditorDockWin*>(e); });
        select(field("SFString"));
        child<QLineEdit>("lineEdit")->setFocus();
        // Whoever gets the focus from the editor selects something.
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old) {
            if (old)
                CrvServices::getInstance()->selectField(field("SFFloat"));
        });
        (*dock)->deactivate();
        disconnect(qApp, nullptr, this, nullptr);
        for (CrvExtension* extension : extensions)
            QVERIFY(!qobject_cast<CrvEditor*>(extension) || !extension->isActive());
        QCOMPARE(CrvServices::getInstance()->getSelectedField(), field("SFFloat"));
        (*dock)->activate();
    }
};

QTEST_MAIN(TestEditorHosting)
#include "test_editor_hosting.moc"
