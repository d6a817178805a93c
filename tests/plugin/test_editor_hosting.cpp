// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "EditorFixture.h"
#include "KnSensorQueue.h"

#include <QDockWidget>
#include <QScopeGuard>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A field editor that writes down what it is asked for.
class ProbeFieldEditor : public CrvFieldEditors {
public:
    void attachField(KnField* field) override
    {
        log << (isActive() ? u"attach"_s : u"attach too early"_s);
        CrvFieldEditors::attachField(field);
    }
    void updateFromField() override { log << u"update"_s; }
    void show() override
    {
        CrvFieldEditors::show();
        log << (isShown() && !getFrame()->isHidden() ? u"show"_s : u"show nothing"_s);
    }
    void hide() override
    {
        CrvFieldEditors::hide();
        log << (!isShown() && getFrame()->isHidden() ? u"hide"_s : u"hide nothing"_s);
    }
    void setFieldUpdateEnabled(bool) override { log << u"gate"_s; }
    void swapFieldValues(int, int) override { log << u"swap"_s; }
    void setFieldValue(int, int, QString) override { log << u"set"_s; }
    void setFieldColor(int, const void*) override { log << u"color"_s; }
    void applyChanges() override { log << u"apply"_s; }

    QStringList log;
};

/// An editor of another plug-in, which writes what a dock asks of it behind the shell's calls.
class ProbeEditor : public CrvEditor {
public:
    ProbeEditor(const QString& type, QStringList& log)
        : m_log(log)
    {
        m_handledType = KnType::fromName(KbName(qPrintable(type)));
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

/// Writes down when a dock comes and goes.
class DockWatch : public QObject {
public:
    DockWatch(QDockWidget* dock, QStringList& log)
        : m_log(log)
    {
        dock->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            m_log << (event->type() == QEvent::Show ? u"dock shown"_s : u"dock hidden"_s);
        return false;
    }

private:
    QStringList& m_log;
};

} // namespace

/// Editors and the docks that show them, step by step.
class TestEditorHosting : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void anEditorFromLoadToUnload()
    {
        KnSFBool first;
        KnSFBool second;
        auto editor = std::make_unique<ProbeFieldEditor>();
        const QPointer<QFrame> frame = editor->getFrame();
        QVERIFY(editor->getWidget() == frame && !frame->parent() && frame->children().isEmpty());

        QStringList steps;
        const auto step = [&steps, &editor](const char* name) {
            steps << QLatin1String(name) + u": "_s + editor->log.join(u' ');
            editor->log.clear();
        };
        const auto touch = [](KnField& field) {
            field.touch();
            KnSensorQueue::getInstance().process();
        };
        editor->deactivate();
        step("deactivate, never loaded");
        editor->load();
        step("load");
        editor->activate();
        step("activate without an object");
        auto* const node = new KnTestNode;
        node->ref();
        editor->setEditedObject(node);
        editor->activate();
        step("activate with a node");
        node->unref();
        editor->setEditedObject(&first);
        editor->activate();
        step("activate with a field");
        touch(first);
        step("the field changes");
        editor->deactivate();
        step("deactivate");
        QVERIFY(!editor->isActive());
        touch(first);
        step("the field changes behind it");
        editor->setEditedObject(&second);
        editor->activate();
        step("activate with another field");
        touch(first);
        step("the former field changes");
        touch(second);
        step("the field shown changes");
        editor->unload();
        touch(second);
        step("the field changes behind unload");
        editor->unload();
        editor->load();
        editor->activate();
        touch(second);
        step("once more");
        QCOMPARE(steps,
            QStringList({ u"deactivate, never loaded: hide"_s, u"load: hide"_s,
                u"activate without an object: "_s, u"activate with a node: "_s,
                u"activate with a field: attach update show"_s, u"the field changes: update"_s,
                u"deactivate: hide"_s, u"the field changes behind it: "_s,
                u"activate with another field: attach update show"_s,
                u"the former field changes: "_s, u"the field shown changes: update"_s,
                u"the field changes behind unload: "_s,
                u"once more: hide attach update show update"_s }));
        editor.reset();
        QVERIFY(!frame);
        touch(second);
    }

    void aDockOfItsOwn_data() { docks(); }
    void aDockOfItsOwn()
    {
        QFETCH(QString, dockName);
        CrvFieldEditorDockWin fieldDock;
        CrvNodeEditor nodeDock;
        CrvExtension& extension = dockName == u"Field Editor"_s
            ? static_cast<CrvExtension&>(fieldDock)
            : static_cast<CrvExtension&>(nodeDock);
        extension.unload(); // which is allowed before
        extension.load();
        QCOMPARE(QApplication::topLevelWidgets().size(), 1);
        const QPointer<QWidget> dock = QApplication::topLevelWidgets().first();
        QVERIFY(qobject_cast<QDockWidget*>(dock) && dock->isHidden() && !dock->acceptDrops());
        QCOMPARE(dock->windowTitle(), dockName);
        QCOMPARE(dock->objectName(), dockName);
        extension.show();
        QVERIFY(extension.isShown() && dock->isVisible());
        extension.hide();
        QVERIFY(!extension.isShown() && dock->isHidden());
        extension.unload();
        QVERIFY(!dock);
    }

    void aDockAndItsEditor_data() { docks(); }
    void aDockAndItsEditor()
    {
        QFETCH(QString, dockName);
        QFETCH(QString, type);
        EditorFixture fixture;
        QStringList& log = fixture.shell().calls();
        ProbeEditor editor(type, log);
        ProbePlugin plugin(&editor);
        CrvPluginsManager::getInstance()->adoptPlugin(&plugin);
        // Also behind a failure, while the editor lives.
        const auto unload = qScopeGuard([] { CrvPluginsManager::getInstance()->unloadAll(); });
        QMainWindow& window = fixture.shell().window();
        auto* const dock = window.findChild<QDockWidget*>(dockName);
        const auto& all = fixture.plugin().getExtensions();
        CrvExtension& extension = **std::find_if(all.begin(), all.end(),
            [&](CrvExtension* each) { return each->getName() == KbString(qPrintable(dockName)); });
        const DockWatch watch(dock, log);
        const auto select = [&](KnTestNode* node) {
            log.clear();
            if (type == u"TestNode"_s)
                CrvServices::getInstance()->selectNode(node);
            else
                CrvServices::getInstance()->selectField(node ? &node->SFTime : nullptr);
            EditorFixture::settle();
        };
        const QStringList shown { u"object"_s, u"activate with object in dock"_s, u"dock shown"_s };
        const QStringList released { u"deactivate with object in dock"_s, u"no object"_s,
            u"dock hidden"_s };
        QVERIFY(extension.isActive() && !extension.isShown() && dock->isHidden());
        QCOMPARE(window.dockWidgetArea(dock), Qt::RightDockWidgetArea);

        select(&fixture.node());
        QCOMPARE(log, shown);
        QVERIFY(extension.isShown() && editor.isActive() && dock->widget() == editor.getWidget());
        select(&fixture.otherNode()); // the same editor again
        QCOMPARE(log, released + shown);
        select(nullptr);
        QCOMPARE(log, released);
        QVERIFY(!extension.isShown() && !editor.isActive() && !dock->widget());
        QVERIFY(!editor.getWidget()->parent());

        select(&fixture.node());
        log.clear();
        extension.deactivate();
        QCOMPARE(log,
            released
                + QStringList(
                    { u"removeDockWidget "_s + dockName, u"unregisterExtension "_s + dockName }));
        QVERIFY(!extension.isActive() && !editor.getWidget()->parent());
        select(&fixture.otherNode()); // nobody listens
        QCOMPARE(log, QStringList());
        extension.activate();
        QCOMPARE(log,
            QStringList({ u"addDockWidget %1 2"_s.arg(dockName),
                u"registerExtension %1 1"_s.arg(dockName) }));
        QVERIFY(extension.isActive());
        select(&fixture.node());
        QCOMPARE(log, shown);
    }

private:
    /// The twins, and what the probe handles under each.
    static void docks()
    {
        QTest::addColumn<QString>("dockName");
        QTest::addColumn<QString>("type");
        QTest::newRow("fields") << u"Field Editor"_s << u"SFTime"_s;
        QTest::newRow("nodes") << u"Node Editor"_s << u"TestNode"_s;
    }
};

QTEST_MAIN(TestEditorHosting)
#include "test_editor_hosting.moc"
