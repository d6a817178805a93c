// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "InspectorFixture.h"
#include "KnGroup.h"
#include "SceneDocument.h"
#include "TextRows.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>

/// The window without a mouse.
class TestKeyboard : public InspectorTest {
    Q_OBJECT
private Q_SLOTS:
    void tabGoesFromTheSceneToTheEditor()
    {
        m_inspector->clickField(u"Front view"_s, u"position"_s);
        filter()->setFocus();
        QStringList way;
        while (!inFieldEditor() && way.size() < 20) {
            way += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(way.mid(0, 3), QStringList({ u"sceneFilter"_s, u"sceneTree"_s, u"fieldList"_s }));
        for (int i = 0; i < 20 && QApplication::focusWidget() != filter(); ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), filter());
    }

    void downGetsToTheDeepestNode()
    {
        auto* const scene = static_cast<KnGroup*>(m_inspector->window.document().root().get());
        auto* group = new KnGroup;
        scene->addChild(group);
        for (int depth = 0; depth < 30; ++depth) {
            auto* const child = new KnGroup;
            group->addChild(child);
            group = child;
        }
        group->setName("Deepest");
        QTreeView* const tree = m_inspector->view(u"sceneTree"_s);
        QTRY_COMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), scene->getNumChildren());
        tree->expandAll();
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_End);
        QTest::keyClick(tree, Qt::Key_Up);
        QTest::keyClick(tree, Qt::Key_Down);
        QCOMPARE(CrvServices::getInstance()->getSelectedNode(), group);
        QVERIFY(tree->visualRect(tree->currentIndex()).width() > 0);
    }

    void returnEntersAndEscLeaves_data()
    {
        addTextRows({ { "Front view", "description" }, { "Front view", "position" },
            { "Desk lamp", "intensity" }, { "Desk lamp", "on" },
            { "Opening hours", "justification" }, { "Corners", "point" },
            { "Frame place", "matrix" } });
    }
    void returnEntersAndEscLeaves()
    {
        const auto [node, field] = textRow<2>();
        m_inspector->view(u"sceneTree"_s)->expandAll();
        m_inspector->clickField(node, field);
        auto* const list = m_inspector->view(u"fieldList"_s);
        const QString before = m_inspector->text(node + u'.' + field);
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(inFieldEditor());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), list);
        QCOMPARE(m_inspector->text(node + u'.' + field), before);
    }

    void escDropsFirstAndLeavesThen()
    {
        m_inspector->clickField(u"Front view"_s, u"description"_s);
        auto* const list = m_inspector->view(u"fieldList"_s);
        m_inspector->dock(u"Field Editor"_s)->close();
        QTest::keyClick(list, Qt::Key_Return); // opens it again
        auto* const line = m_inspector->inEditor<QLineEdit>();
        QCOMPARE(QApplication::focusWidget(), line);
        QTest::keyClicks(line, u"typed"_s);
        QTest::keyClick(line, Qt::Key_Escape);
        QCOMPARE(line->text(), u"From the door"_s);
        QVERIFY(line->hasFocus());
        QTest::keyClick(line, Qt::Key_Escape);
        QVERIFY(list->hasFocus());
    }

    void f6WalksThePanes()
    {
        m_inspector->clickField(u"Front view"_s, u"description"_s);
        m_inspector->view(u"sceneTree"_s)->setFocus();
        QStringList panes;
        for (int i = 0; i < 4; ++i) {
            m_inspector->press(QKeySequence(Qt::Key_F6));
            panes += paneWithFocus();
        }
        QCOMPARE(panes.mid(0, 2), QStringList({ u"fieldPanel"_s, u"Field Editor"_s }));
        QVERIFY(panes.contains(u"Console"_s));
        for (int i = 0; i < 4; ++i)
            m_inspector->press(QKeySequence(Qt::SHIFT | Qt::Key_F6));
        QCOMPARE(QApplication::focusWidget(), m_inspector->view(u"sceneTree"_s));
    }

    void theFilterLeadsToAMatch_data() { addTextRows({ { "Down" }, { "Return" } }); }
    void theFilterLeadsToAMatch()
    {
        QTest::keyClicks(filter(), u"oak"_s);
        QTest::keySequence(filter(), QKeySequence(textRow<1>()[0]));
        auto* const tree = m_inspector->view(u"sceneTree"_s);
        // Not the group above it, which the tree shows as well.
        QCOMPARE(tree->currentIndex().data().toString(), u"Oak"_s);
        QVERIFY(tree->hasFocus() && CrvServices::getInstance()->getSelectedField());
        filter()->setFocus();
        QTest::keyClick(filter(), Qt::Key_Escape);
        QVERIFY(filter()->text().isEmpty() && filter()->hasFocus());
        QTest::keyClick(filter(), Qt::Key_Escape);
        QVERIFY(tree->hasFocus());
    }

    void matchesLookDifferent()
    {
        CrvServices::getInstance()->selectNode(nullptr);
        auto* const tree = m_inspector->view(u"sceneTree"_s);
        QTest::keyClicks(filter(), u"table"_s); // the group and what is in it
        const QImage asMatch = rowImage(rowOf(u"Table"_s));
        filter()->setText(u"oak"_s);
        QVERIFY(rowImage(rowOf(u"Table"_s)) != asMatch);
        QVERIFY(tree->currentIndex() == QModelIndex());
    }

    void aTipFollowsTheField()
    {
        for (const char* field : { "ambientColor", "specularColor" }) {
            m_inspector->clickField(u"Oak"_s, QLatin1String(field));
            QCOMPARE(m_inspector->dock(u"Field Editor"_s)
                         ->findChild<QAbstractButton*>(u"m_colorDisp"_s)
                         ->toolTip(),
                QLatin1String(field) + u" colour"_s);
        }
    }

    /// Whatever a screen reader or a mouse meets in the window says what it is for.
    void everyControlHasAName()
    {
        m_inspector->dock(u"watchDock"_s)->show();
        m_inspector->clickField(u"Oak"_s, u"ambientColor"_s);
        checkNames(QAccessible::queryAccessibleInterface(&m_inspector->window));
        for (const auto* button : m_inspector->window.findChildren<QAbstractButton*>()) {
            QVERIFY2(
                !button->text().isEmpty() || !button->toolTip().isEmpty() || !button->isVisible(),
                qPrintable(button->objectName()));
        }
    }

private:
    QLineEdit* filter() const
    {
        return m_inspector->window.findChild<QLineEdit*>(u"sceneFilter"_s);
    }
    bool inFieldEditor() const
    {
        return m_inspector->dock(u"Field Editor"_s)->isAncestorOf(QApplication::focusWidget());
    }
    QString paneWithFocus() const
    {
        const QWidget* widget = QApplication::focusWidget();
        while (widget && widget->parentWidget() != &m_inspector->window)
            widget = widget->parentWidget();
        return widget ? widget->objectName() : QString();
    }
    QModelIndex rowOf(const QString& text) const
    {
        const QAbstractItemModel* const model = m_inspector->view(u"sceneTree"_s)->model();
        return model
            ->match(
                model->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }
    QImage rowImage(const QModelIndex& index) const
    {
        auto* const tree = m_inspector->view(u"sceneTree"_s);
        return tree->viewport()->grab(tree->visualRect(index)).toImage();
    }
    static void checkNames(QAccessibleInterface* item)
    {
        const QList<QAccessible::Role> controls { QAccessible::EditableText, QAccessible::CheckBox,
            QAccessible::PushButton, QAccessible::ComboBox, QAccessible::SpinBox,
            QAccessible::Slider, QAccessible::Table, QAccessible::Tree, QAccessible::List };
        if (item->state().invisible)
            return;
        const QObject* const object = item->object();
        const bool isControl = controls.contains(item->role());
        QVERIFY2(!isControl || !item->text(QAccessible::Name).isEmpty(),
            qPrintable(object
                    ? object->objectName() + QLatin1String(object->metaObject()->className())
                    : QString()));
        // What stands in a list or in an input is the content, not a control.
        for (int i = 0; !isControl && i < item->childCount(); ++i) {
            if (QAccessibleInterface* child = item->child(i))
                checkNames(child);
        }
    }
};

QTEST_MAIN(TestKeyboard)
#include "test_keyboard.moc"
