// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "ElidedLabel.h"
#include "FileMenu.h"
#include "InspectorFixture.h"
#include "TextRows.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTreeWidget>

namespace {

/// Drags a file over a widget and lets it go there. Whether the widget took it.
bool dropFile(QWidget* widget, const QString& file)
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(file) });
    const QPoint place = widget->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (enter.isAccepted())
        QCoreApplication::sendEvent(widget, &drop);
    return enter.isAccepted() && drop.isAccepted();
}

bool isBlank(QWidget* widget)
{
    const QImage image = widget->grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
        }
    }
    return true;
}

} // namespace

/// What somebody meets who has never seen the window.
class TestFirstSteps : public InspectorTest {
    Q_OBJECT
private Q_SLOTS:
    void aSceneBeginsWithAnOpenEditor_data()
    {
        addTextRows({ { "start" }, { "open" }, { "drop" }, { "recent" } });
    }
    void aSceneBeginsWithAnOpenEditor()
    {
        const QString way = textRow<1>()[0];
        MainWindow& window = m_inspector->window;
        const KnNodePtr former = window.document().root();
        if (way == u"open")
            window.findChild<FileMenu*>()->openFile(m_inspector->sceneFile);
        else if (way == u"drop")
            QVERIFY(dropFile(&window, m_inspector->sceneFile));
        else if (way == u"recent")
            window.findChild<QMenu*>(u"recentFilesMenu"_s)->actions().constFirst()->trigger();
        QCOMPARE(window.document().root().get() == former.get(), way == u"start");
        QCOMPARE(CrvServices::getInstance()->getSelectedField(),
            m_inspector->field(u"Workshop.visible"_s));
        QVERIFY(m_inspector->dock(u"Field Editor"_s)->isVisible());
        QVERIFY(!window.isWindowModified());
    }

    void aFileOnThePathLineIsAPath()
    {
        const KnNodePtr root = m_inspector->window.document().root();
        CrvServices::getInstance()->selectField(m_inspector->field(u"Ball.filename"_s));
        auto* const line = m_inspector->inEditor<QLineEdit>();
        QVERIFY(dropFile(line, m_inspector->sceneFile));
        QCOMPARE(line->text(), m_inspector->sceneFile);
        QCOMPARE(m_inspector->window.document().root().get(), root.get());
    }

    void emptyPanesSayWhatFillsThem()
    {
        QWidget* const fields = m_inspector->view(u"fieldList"_s)->viewport();
        QWidget* const scene = m_inspector->view(u"sceneTree"_s)->viewport();
        CrvServices::getInstance()->selectNode(nullptr);
        QVERIFY(!isBlank(fields));
        QTest::keyClicks(m_inspector->window.findChild<QLineEdit*>(u"sceneFilter"_s), u"no such"_s);
        QVERIFY(!isBlank(scene));
    }

    void aClickOpensTheClosedEditorAgain()
    {
        m_inspector->clickField(u"Desk lamp"_s, u"color"_s);
        QDockWidget* const dock = m_inspector->dock(u"Field Editor"_s);
        m_inspector->choose(u"viewMenu"_s, u"Field Editor"_s);
        QVERIFY(dock->isHidden());
        clickRow(m_inspector->view(u"fieldList"_s), u"color"_s);
        QVERIFY(dock->isVisible());
        QVERIFY(m_inspector->entries(u"viewMenu"_s).contains(u"Field Editor*"_s));
        // An open one stays as it is, with what was typed.
        auto* const line = m_inspector->inEditor<QLineEdit>();
        clickRow(m_inspector->view(u"fieldList"_s), u"color"_s);
        QCOMPARE(m_inspector->inEditor<QLineEdit>(), line);
    }

    void theStatusBarHelps()
    {
        const auto* const hint = m_inspector->window.findChild<ElidedLabel*>(u"statusHint"_s);
        QVERIFY(hint->isVisible());
        const auto hintAt = [hint](QWidget* widget) {
            widget->setFocus();
            return hint->wholeText();
        };
        const QString inList = hintAt(m_inspector->view(u"fieldList"_s));
        QVERIFY(inList.contains(u"Return"_s) && inList.contains(u"F1"_s));
        const QString inFilter
            = hintAt(m_inspector->window.findChild<QLineEdit*>(u"sceneFilter"_s));
        QVERIFY(inFilter.contains(u"Esc"_s) && inFilter != inList);
        m_inspector->clickField(u"Desk lamp"_s, u"color"_s);
        QVERIFY(hintAt(m_inspector->inEditor<QLineEdit>()).contains(u"drops what was typed"_s));
    }

    void helpListsTheKeysAndVersions()
    {
        m_inspector->press(QKeySequence(Qt::Key_F1));
        auto* const keys = m_inspector->window.findChild<QTreeWidget*>(u"shortcuts"_s);
        QVERIFY(keys && keys->isVisible());
        for (const char* text : { "Undo", "Find Node", "Next Pane", "Open", "to the first match" })
            QVERIFY2(!keys->findItems(QLatin1String(text), Qt::MatchExactly | Qt::MatchRecursive, 1)
                          .isEmpty(),
                text);
        QTest::keyClick(keys, Qt::Key_Escape);
        QTRY_VERIFY(!m_inspector->window.findChild<QTreeWidget*>(u"shortcuts"_s));

        for (const auto& [entry, box, word] :
            { std::tuple(u"aboutAction"_s, u"aboutBox"_s, u"Qt 6."_s),
                std::tuple(u"documentationAction"_s, u"documentationBox"_s, u"README.md"_s) }) {
            m_inspector->choose(u"helpMenu"_s, entry);
            auto* const message = m_inspector->window.findChild<QMessageBox*>(box);
            QVERIFY(message && message->isVisible() && message->text().contains(word));
            QTest::keyClick(message, Qt::Key_Escape);
            QTRY_VERIFY(!m_inspector->window.findChild<QMessageBox*>(box));
        }
    }
};

QTEST_MAIN(TestFirstSteps)
#include "test_first_steps.moc"
