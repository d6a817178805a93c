// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspector.h"
#include "CrvObjects.h"
#include "KnNodePtr.h"
#include "Machine.h"
#include "RowInput.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QEventLoop>
#include <QLineEdit>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

/// The inspector's own window on an object.
class TestObjectWindow : public QObject {
    Q_OBJECT

    template <class Widget>
    Widget* find(const QString& name) const
    {
        return m_inspector->window()->findChild<Widget*>(name);
    }
    QAbstractItemModel* fields() const { return find<QTreeView>(u"fieldList"_s)->model(); }
    /// The type of a field as the list shows it; null if it doesn't show the field.
    QString typeOf(const QString& name) const
    {
        const QModelIndex found
            = fields()->match(fields()->index(0, 0), Qt::DisplayRole, name).value(0);
        return found.siblingAtColumn(1).data().toString();
    }
    void clickField(const QString& name) { clickRow(find<QTreeView>(u"fieldList"_s), name); }
    QString currentField() const
    {
        return find<QTreeView>(u"fieldList"_s)->currentIndex().siblingAtColumn(0).data().toString();
    }
    template <class Input>
    Input* input() const
    {
        QWidget* const dock = find<QWidget>(u"Field Editor"_s);
        for (Input* widget : dock->findChildren<Input*>()) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
    }
    void init()
    {
        m_machine = std::make_unique<Machine>();
        m_machine->setObjectName(u"mill"_s);
        m_inspector = std::make_unique<CrvInspector>(crvObjectNode(m_machine.get()));
        m_inspector->show();
        QVERIFY(QTest::qWaitForWindowActive(m_inspector->window()));
        clickRow(find<QTreeView>(u"sceneTree"_s), u"mill"_s);
    }
    void cleanup()
    {
        m_inspector.reset();
        m_machine.reset();
    }

    void aNewPropertyGetsARow()
    {
        clickField(u"label"_s);
        QTest::keyClick(find<QTreeView>(u"fieldList"_s), Qt::Key_F2);
        const QPointer<QLineEdit> line = find<QLineEdit>(u"fieldLine"_s);
        QVERIFY(line);
        QTest::keyClicks(line, u"half"_s);
        m_machine->setProperty("weight", 1.5);
        QTRY_COMPARE(typeOf(u"weight"_s), u"SFDouble"_s);
        // What was being typed goes on as if nothing had happened.
        QCOMPARE(m_machine->m_label, u"old"_s);
        QVERIFY(line && line->hasFocus());
        QTest::keyClicks(line, u" done"_s);
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(m_machine->m_label, u"half done"_s);
        QCOMPARE(currentField(), u"label"_s);
        clickField(u"weight"_s);
        QTRY_VERIFY(input<QLineEdit>());
    }

    void aValueOfAnotherTypeGetsItsEditor()
    {
        clickField(u"load"_s);
        QTRY_VERIFY(input<QLineEdit>());
        m_machine->m_load = true;
        QTRY_COMPARE(typeOf(u"load"_s), u"SFBool"_s);
        QCOMPARE(currentField(), u"load"_s);
        QTRY_VERIFY(input<QCheckBox>());
        QTest::mouseClick(input<QCheckBox>(), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(m_machine->m_load, QVariant(false));
        QTest::keySequence(m_inspector->window(), QKeySequence::Undo);
        QCOMPARE(m_machine->m_load, QVariant(true));
    }

    void aMenuEndsAnEntryFirst_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addRow("of the tree") << u"sceneTree"_s;
        QTest::addRow("of the list") << u"fieldList"_s;
    }
    void aMenuEndsAnEntryFirst()
    {
        QFETCH(QString, view);
        // The setter runs an event loop that leaves no menu open.
        connect(m_machine.get(), &Machine::labelChanged, this, [] {
            QEventLoop events;
            QTimer::singleShot(0, &events, [&events] {
                if (QWidget* const popup = QApplication::activePopupWidget())
                    QTest::keyClick(popup, Qt::Key_Escape);
                events.quit();
            });
            events.exec();
        });
        clickField(u"label"_s);
        QTRY_VERIFY(input<QLineEdit>());
        QTest::mouseClick(input<QLineEdit>(), Qt::LeftButton);
        QTest::keyClicks(input<QLineEdit>(), u"er"_s);
        QWidget* const viewport = find<QTreeView>(view)->viewport();
        QContextMenuEvent wish(
            QContextMenuEvent::Keyboard, QPoint(20, 5), viewport->mapToGlobal(QPoint(20, 5)));
        QCoreApplication::sendEvent(viewport, &wish);
        QCOMPARE(m_machine->m_label, u"older"_s);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }

private:
    std::unique_ptr<Machine> m_machine;
    std::unique_ptr<CrvInspector> m_inspector;
};

QTEST_MAIN(TestObjectWindow)
#include "test_object_window.moc"
