// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspector.h"
#include "CrvObjects.h"
#include "CrvServices.h"
#include "FieldListModel.h"
#include "KnGroup.h"
#include "Machine.h"
#include "RowInput.h"
#include "TextRows.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QUndoStack>

using namespace Qt::StringLiterals;

/// What a person sees and does in the window when the nodes are objects: a mill, which names a
/// drill that stands on a shelf, and a saw.
class TestObjectPanels : public QObject {
    Q_OBJECT

    template <class Widget>
    Widget* find(const QString& name) const
    {
        return m_inspector->window()->findChild<Widget*>(name);
    }
    QTreeView* tree() const { return find<QTreeView>(u"sceneTree"_s); }
    QTreeView* list() const { return find<QTreeView>(u"fieldList"_s); }
    QString console() const { return find<QTextEdit>(u"m_consoleOutput"_s)->toPlainText(); }
    QString message() const
    {
        const auto* const label = find<QLabel>(u"fieldMessage"_s);
        return label->isVisible() ? label->text() : QString();
    }
    QUndoStack& stack() const { return *CrvServices::getInstance()->getUndoStack(); }
    QString selectedName() const
    {
        const QObject* const object = crvNodeObject(CrvServices::getInstance()->getSelectedNode());
        return object ? object->objectName() : QString();
    }
    QModelIndex cell(const QString& field, int column = FieldListModel::ValueColumn) const
    {
        const QAbstractItemModel& model = *list()->model();
        const QModelIndex found
            = model.match(model.index(0, 0), Qt::DisplayRole, field, 1, Qt::MatchExactly).value(0);
        list()->scrollTo(found);
        return found.siblingAtColumn(column);
    }
    void clickCell(const QString& field, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers,
            list()->visualRect(cell(field)).center());
        QCoreApplication::processEvents();
    }
    void doubleClickCell(const QString& field) const
    {
        clickCell(field);
        QTest::mouseDClick(
            list()->viewport(), Qt::LeftButton, {}, list()->visualRect(cell(field)).center());
        QCoreApplication::processEvents();
    }
    void press(const QKeySequence& keys) const
    {
        QTest::keySequence(m_inspector->window()->focusWidget(), keys);
        QCoreApplication::processEvents();
    }
    /// Clicks the entries of these texts, one menu after the other, in the one that is open.
    static void clickThrough(const QStringList& texts)
    {
        for (const QString& text : texts) {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            const QList<QAction*> actions = menu->actions();
            const auto found = std::find_if(actions.begin(), actions.end(),
                [&text](QAction* action) { return action->text().remove(u'&') == text; });
            QVERIFY2(found != actions.end(), qPrintable(text));
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(*found).center());
            if ((*found)->menu())
                QTRY_COMPARE(QApplication::activePopupWidget(), (*found)->menu());
        }
    }
    /// The menu of the current row of a view.
    static void openMenu(QTreeView* view)
    {
        const QPoint place = view->visualRect(view->currentIndex()).center();
        QContextMenuEvent event(
            QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view->viewport(), &event);
    }
    void chooseFromNodeMenu(const QStringList& texts) const
    {
        QTimer::singleShot(0, tree(), [&texts] {
            clickThrough(texts);
            while (QWidget* const popup = QApplication::activePopupWidget())
                popup->close();
        });
        openMenu(tree());
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        m_mill = std::make_unique<Machine>();
        m_mill->setObjectName(u"mill"_s);
        auto* const shelf = new QObject(m_mill.get());
        shelf->setObjectName(u"shelf"_s);
        m_drill = new Machine(shelf);
        m_drill->setObjectName(u"drill"_s);
        m_saw = new Machine(m_mill.get());
        m_saw->setObjectName(u"saw"_s);
        m_mill->m_next = m_drill;
        m_inspector = std::make_unique<CrvInspector>(crvObjectNode(m_mill.get()));
        m_inspector->show();
        QVERIFY(QTest::qWaitForWindowActive(m_inspector->window()));
        clickRow(tree(), u"mill"_s);
    }
    void cleanup()
    {
        m_inspector.reset();
        m_mill.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void aLockedRowSaysSo_data()
    {
        addTextRows({ { "heat", "read-only" }, { "next", "read-only" }, { "speed" } });
    }
    void aLockedRowSaysSo()
    {
        const auto [field, note] = textRow<2>();
        const bool locked = !note.isEmpty();
        const QModelIndex index = cell(field);
        QCOMPARE(index.data(FieldListModel::ReadOnlyRole).toBool(), locked);
        QCOMPARE(index.data(Qt::AccessibleDescriptionRole).toString(), note);
        QCOMPARE(index.data(Qt::ToolTipRole).toString().contains(u"read-only"_s), locked);
        QVERIFY(locked || index.flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(!locked || !index.flags().testFlag(Qt::ItemIsEditable));
    }

    void theLockIsSeenInEveryPalette_data()
    {
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("text");
        QTest::addRow("light") << QColor(Qt::white) << QColor(Qt::black);
        QTest::addRow("dark") << QColor(30, 30, 30) << QColor(Qt::white);
    }
    void theLockIsSeenInEveryPalette()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        QPalette palette = list()->palette();
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::AlternateBase, base);
        palette.setColor(QPalette::Text, text);
        list()->setPalette(palette);
        // At the end of the cell, as far from its background as text is.
        const auto darkest = [this, base](const QString& field) {
            QRect place = list()->visualRect(cell(field));
            place.setLeft(place.right() - place.height() + 1);
            const QImage image = list()->viewport()->grab(place).toImage();
            int most = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    most = std::max(
                        most, std::abs(image.pixelColor(x, y).lightness() - base.lightness()));
            }
            return most;
        };
        QVERIFY(darkest(u"heat"_s) > 120);
        QVERIFY(darkest(u"polled"_s) < 60);
    }

    void nothingEditsALockedRow_data()
    {
        // A double click, a key, or what is pasted, and what the panel tells.
        addTextRows({ { "double click", "heat is read-only" }, { "F2", "heat is read-only" },
            { "Del", "Read-only: heat" }, { "paste 5", "Read-only: heat" },
            { "paste heat 5\nspeed 30\n", "1 field pasted, but not all:\nRead-only: heat" } });
    }
    void nothingEditsALockedRow()
    {
        const auto [act, told] = textRow<2>();
        clickCell(u"heat"_s);
        if (act == u"double click") {
            doubleClickCell(u"heat"_s);
        } else if (act.startsWith(u"paste ")) {
            QApplication::clipboard()->setText(act.section(u' ', 1));
            press(QKeySequence::Paste);
        } else {
            press(QKeySequence(act));
        }
        QCOMPARE(message(), told);
        QCOMPARE(m_mill->heat(), 2.0 * m_mill->m_speed);
        QCOMPARE(stack().count(), told.startsWith(u"1"_s) ? 1 : 0);
    }

    void anEditOfSeveralLeavesOutTheLocked()
    {
        QObject* const shelf = m_drill->parent();
        shelf->setProperty("heat", 5.0);
        clickRow(tree(), u"shelf"_s);
        const QModelIndex saw = tree()->currentIndex().siblingAtRow(1);
        QCOMPARE(saw.data().toString(), u"saw"_s);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::ControlModifier,
            tree()->visualRect(saw).center());
        QTRY_VERIFY(cell(u"heat"_s).isValid() && list()->model()->rowCount() == 2);
        doubleClickCell(u"heat"_s);
        auto* const line = list()->viewport()->findChild<QLineEdit*>();
        QVERIFY(line);
        QTest::keyClicks(line, u"7"_s);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(shelf->property("heat"), QVariant(7.0));
        QCOMPARE(message(), u"heat is read-only in 1 of 2 nodes"_s);
        QCOMPARE(m_saw->heat(), 2.0 * m_saw->m_speed);
    }

    void resetCallsTheProperty_data() { addTextRows({ { "list" }, { "editor" } }); }
    void resetCallsTheProperty()
    {
        const bool inEditor = textRow<1>()[0] == u"editor";
        m_mill->setSpeed(50);
        clickCell(u"speed"_s);
        auto* const button = find<QPushButton>(u"m_defaultButton"_s);
        QVERIFY(button && button->isEnabled());
        // The second time there is nothing to do.
        for (int i = 0; i < 2; ++i) {
            if (inEditor)
                QTest::mouseClick(button, Qt::LeftButton);
            else
                press(Qt::Key_Delete);
            QCOMPARE(m_mill->m_speed, 10);
            QCOMPARE(stack().count(), 1);
        }
        stack().undo();
        QCOMPARE(m_mill->m_speed, 50);
        stack().redo();
        QCOMPARE(m_mill->m_speed, 10);
    }

    void withoutADefaultThereIsNoReset()
    {
        clickCell(u"polled"_s);
        for (const auto* button :
            m_inspector->window()->findChildren<QPushButton*>(u"m_defaultButton"_s))
            QVERIFY(!button->isVisible() || !button->isEnabled());
        QVERIFY(!find<QPushButton>(u"m_ignoreButton"_s)->isEnabled());
        press(Qt::Key_Delete);
        QCOMPARE(message(), u"Nothing is known of the default of polled"_s);
        QCOMPARE(stack().count(), 0);
        QVERIFY(!cell(u"polled"_s).data(Qt::FontRole).value<QFont>().bold());
        // What may have changed isn't filtered away.
        QTest::mouseClick(find<QToolButton>(u"changedOnlyButton"_s), Qt::LeftButton);
        QVERIFY(!list()->isRowHidden(cell(u"polled"_s).row(), QModelIndex()));
    }

    void linksLead_data()
    {
        addTextRows({ { "double click" }, { "Ctrl and click" }, { "Return" }, { "menu" } });
    }
    void linksLead()
    {
        const QString act = textRow<1>()[0];
        QCOMPARE(cell(u"next"_s).data().toString(), u"Machine \"drill\""_s);
        clickCell(u"next"_s, act.startsWith(u"Ctrl") ? Qt::ControlModifier : Qt::NoModifier);
        if (act == u"double click") {
            doubleClickCell(u"next"_s);
        } else if (act == u"Return") {
            press(Qt::Key_Return);
        } else if (act == u"menu") {
            openMenu(list());
            clickThrough({ u"Go to Object"_s });
            QCoreApplication::processEvents();
        }
        QCOMPARE(selectedName(), u"drill"_s);
        QCOMPARE(tree()->currentIndex().data().toString(), u"drill"_s);
        m_inspector->window()->activateWindow(); // not every platform does so behind a menu
        QVERIFY(QTest::qWaitForWindowActive(m_inspector->window()));
        press(QKeySequence(Qt::ALT | Qt::Key_Left));
        QCOMPARE(selectedName(), u"mill"_s);
    }

    void toolTipsTell()
    {
        const QString tip
            = cell(u"speed"_s, FieldListModel::NameColumn).data(Qt::ToolTipRole).toString();
        QVERIFY(tip.contains(u"int Machine::speed"_s) && tip.contains(u"speedChanged()"_s));
        const QString nodeTip = tree()->currentIndex().data(Qt::ToolTipRole).toString();
        QVERIFY(nodeTip.startsWith(u"mill\nMachine : QObject\n"_s));
    }

    void methodsAreCalled()
    {
        m_mill->setSpeed(50);
        chooseFromNodeMenu({ u"Call"_s, u"resetSpeed()"_s });
        QTRY_COMPARE(m_mill->m_speed, 10);
        const QString told = u"Machine \"mill\".resetSpeed() was called"_s;
        QTRY_VERIFY(console().contains(told));
        const auto* const window = static_cast<QMainWindow*>(m_inspector->window());
        QCOMPARE(window->statusBar()->currentMessage(), told);
    }

    void aCallMayEndTheObject()
    {
        clickRow(tree(), u"saw"_s);
        chooseFromNodeMenu({ u"Call"_s, u"QObject"_s, u"deleteLater()"_s });
        QTRY_COMPARE(m_mill->children().size(), 1);
        QTRY_VERIFY(selectedName() != u"saw"_s);
    }

    void signalsArePrinted()
    {
        chooseFromNodeMenu({ u"Watch Signals"_s, u"speedChanged()"_s });
        m_mill->setSpeed(3);
        const QString line = u"Machine \"mill\"  speedChanged()"_s;
        QTRY_COMPARE(console().count(line), 1);
        chooseFromNodeMenu({ u"Watch Signals"_s, u"Stop Watching All Objects"_s });
        m_mill->setSpeed(4);
        chooseFromNodeMenu({ u"Watch Signals"_s, u"All Signals"_s });
        m_mill->setSpeed(5);
        QTRY_COMPARE(console().count(line), 2);
        m_inspector->close();
        QVERIFY(!m_mill->isSpeedHeard());
    }

    void namesAreFollowed()
    {
        clickCell(u"speed"_s);
        m_mill->setObjectName(u"plant"_s);
        QTRY_COMPARE(tree()->currentIndex().data().toString(), u"plant"_s);
        const auto headings = m_inspector->window()->findChildren<QLabel*>(u"editorHeadingText"_s);
        QTRY_VERIFY(std::any_of(headings.begin(), headings.end(),
            [](const QLabel* each) { return each->text().contains(u"plant.speed"_s); }));
        // And the other way.
        tree()->setFocus();
        press(Qt::Key_F2);
        auto* const line = tree()->findChild<QLineEdit*>();
        QTest::keyClicks(line, u"works"_s);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(m_mill->objectName(), u"works"_s);
        stack().undo();
        QCOMPARE(m_mill->objectName(), u"plant"_s);
    }

    void aStepOfADeadObjectSaysSo()
    {
        clickRow(tree(), u"saw"_s);
        m_saw->setSpeed(50);
        clickCell(u"speed"_s);
        press(Qt::Key_Delete);
        QCOMPARE(stack().count(), 1);
        delete m_saw;
        QTRY_VERIFY(selectedName() != u"saw"_s);
        stack().undo();
        QTRY_VERIFY(console().contains(u"the object is gone"_s));
        stack().redo();
    }

    void objectsStayWhereTheyAre()
    {
        clickRow(tree(), u"saw"_s);
        const QObjectList before = m_mill->children();
        tree()->setFocus();
        for (const QKeySequence& keys :
            { QKeySequence(Qt::Key_Delete), QKeySequence(Qt::Key_Insert),
                QKeySequence(Qt::CTRL | Qt::Key_D), QKeySequence(Qt::ALT | Qt::Key_Up) })
            press(keys);
        QCOMPARE(stack().count(), 0);
        QCOMPARE(m_mill->children(), before);
        QCOMPARE(tree()->model()->rowCount(tree()->currentIndex().parent()), 2);
        const Qt::ItemFlags flags = tree()->currentIndex().flags();
        QVERIFY(!flags.testFlag(Qt::ItemIsDragEnabled) && !flags.testFlag(Qt::ItemIsDropEnabled));
        auto* const menu = find<QMenu>(u"editMenu"_s);
        QVERIFY(menu);
        Q_EMIT menu->aboutToShow();
        for (const QString& name : { u"addNodeAction"_s, u"duplicateNodeAction"_s,
                 u"deleteNodeAction"_s, u"moveNodeUpAction"_s })
            QVERIFY2(!find<QAction>(name)->isEnabled(), qPrintable(name));
        QVERIFY(find<QAction>(u"renameNodeAction"_s)->isEnabled());
    }

    void objectsCantBeSaved()
    {
        auto* const menu = find<QMenu>(u"fileMenu"_s);
        menu->popup(QPoint());
        const auto* const save = find<QAction>(u"saveCopyAction"_s);
        QVERIFY(!save->isEnabled());
        QVERIFY(save->toolTip().contains(u"objects can't be saved"_s));
        menu->close();
    }

private:
    std::unique_ptr<Machine> m_mill;
    Machine* m_drill = nullptr; // below the mill
    Machine* m_saw = nullptr; // below the mill
    std::unique_ptr<CrvInspector> m_inspector;
};

QTEST_MAIN(TestObjectPanels)
#include "test_object_panels.moc"
