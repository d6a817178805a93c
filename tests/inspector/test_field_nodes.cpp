// SPDX-License-Identifier: BSD-3-Clause
#include "FieldLineEdit.h"
#include "FieldListFixture.h"
#include "KnGroup.h"
#include "TextRows.h"

#include <QClipboard>
#include <QToolButton>

/// The list of fields with several nodes in it.
class TestFieldNodes : public FieldListTest {
    Q_OBJECT
private Q_SLOTS:
    void sharedFieldsAreListed()
    {
        select({ u"Window light"_s, u"Desk lamp"_s });
        QCOMPARE(names(), u"on intensity color"_s);
        QCOMPARE(selectedNode(), u"Desk lamp"_s);
        QCOMPARE(cell(u"intensity"_s).data().toString(), u"\u2014"_s);
        QCOMPARE(cell(u"on"_s).data(Qt::CheckStateRole).toInt(), int(Qt::PartiallyChecked));
        // They agree by and by, whoever writes.
        m_inspector->field(u"Desk lamp.intensity"_s)->set("0.8");
        QTRY_COMPARE(cell(u"intensity"_s).data().toString(), u"0.8"_s);
        m_inspector->field(u"Window light.intensity"_s)->set("0.5");
        QTRY_COMPARE(cell(u"intensity"_s).data().toString(), u"\u2014"_s);
        // The last one that is chosen is what the host has.
        clickNode(Qt::ControlModifier, u"Desk lamp"_s);
        QTRY_COMPARE(selectedNode(), u"Window light"_s);
        QTRY_VERIFY(names().contains(u"direction"_s));
    }

    void anEditIsForAll_data()
    {
        addTextRows({ { "intensity", "F2 0.25", "0.25" }, { "on", "Space", "TRUE" },
            { "intensity", "Del", "1" }, { "color", "Ctrl+V", "0 1 0" },
            { "intensity", "F2", "0.65" } });
    }
    void anEditIsForAll()
    {
        const auto [name, keys, expected] = textRow<3>();
        const QString one = u"Window light."_s + name;
        const QString other = u"Desk lamp."_s + name;
        const QString before = m_inspector->text(one);
        QGuiApplication::clipboard()->setText(u"color 0 1 0"_s);
        select({ u"Window light"_s, u"Desk lamp"_s });
        clickWith({}, name);
        QTest::keySequence(list(), QKeySequence(keys.section(u' ', 0, 0)));
        if (auto* const line = open<FieldLineEdit>()) {
            QCOMPARE(line->text(), QString());
            QTest::keyClicks(line, keys.section(u' ', 1) + u'\r');
        }
        QTRY_COMPARE(m_inspector->text(other), expected);
        const bool wrote = keys != u"F2"_s;
        QCOMPARE(m_inspector->text(one), wrote ? expected : before);
        QCOMPARE(stack().count(), wrote ? 1 : 0);
        stack().undo();
        QCOMPARE(m_inspector->text(one), before);
    }

    void twoAreCompared()
    {
        auto* const button = m_inspector->window.findChild<QToolButton*>(u"compareButton"_s);
        m_inspector->clickNode(u"Window light"_s);
        QVERIFY(!button->isVisible());
        select({ u"Window light"_s, u"Desk lamp"_s });
        QTRY_VERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!list()->isColumnHidden(FieldListModel::OtherColumn));
        QCOMPARE(names(), u"on intensity color location attenuation"_s);
        QCOMPARE(row(u"intensity"_s), u"0.65 | 0.8 | differs"_s);
        QCOMPARE(row(u"location"_s), u"0.6 1.2 0.4 |  | "_s);
        m_inspector->field(u"Window light.intensity"_s)->set("0.5");
        QTRY_COMPARE(row(u"intensity"_s), u"0.65 | 0.5 | differs"_s);
        // An edit is for the node in the column where it is made.
        clickWith({}, u"intensity"_s);
        QTest::keyClick(list(), Qt::Key_F2);
        QTest::keyClicks(open<FieldLineEdit>(), u"0.5\r"_s);
        QTRY_COMPARE(row(u"intensity"_s), u"0.5 | 0.5 | "_s);
        m_inspector->clickNode(u"Oak"_s);
        QVERIFY(list()->isColumnHidden(FieldListModel::OtherColumn) && !button->isVisible());
        // Arrays that look alike for as far as they are shown.
        const QString many = QStringList(200, u"1"_s).join(u", "_s);
        auto* const pine
            = static_cast<KnFieldContainer*>(KnType::fromName("Material").createInstance());
        pine->setName("Pine");
        const KnNodePtr& root = CrvServices::getInstance()->getRoots().front();
        static_cast<KnGroup*>(root.get())->addChild(pine);
        pine->getField("shininess")->set(toKbString(u"[ %1, 2 ]"_s.arg(many)));
        m_inspector->field(u"Oak.shininess"_s)->set(toKbString(u"[ %1, 3 ]"_s.arg(many)));
        QCoreApplication::processEvents();
        select({ u"Oak"_s, u"Pine"_s });
        QTRY_VERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(row(u"shininess"_s).endsWith(u"differs"_s));
    }

    // By the keys, and a node that goes meanwhile.
    void aNodeGoes()
    {
        m_inspector->clickNode(u"Window light"_s);
        QTest::keyClick(tree(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(tree(), Qt::Key_Down, Qt::ShiftModifier);
        QTRY_COMPARE(names(), u"on"_s); // light, lamp and clip plane
        auto* const group = static_cast<KnGroup*>(m_inspector->window.document().root().get());
        for (int i = 0; i < group->getNumChildren(); ++i) {
            if (nodeLabel(*group->getChild(i)) == u"Cut at the wall"_s)
                group->removeChild(i);
        }
        QTRY_VERIFY(selectedNode() != u"Cut at the wall"_s);
        QTRY_COMPARE(names() + u'|' + selectedNode(), u"|"_s);
    }

private:
    QTreeView* tree() const { return m_inspector->view(u"sceneTree"_s); }
    void clickNode(Qt::KeyboardModifiers modifiers, const QString& name) const
    {
        const QModelIndex found = tree()
                                      ->model()
                                      ->match(tree()->model()->index(0, 0), Qt::DisplayRole, name,
                                          1, Qt::MatchExactly | Qt::MatchRecursive)
                                      .value(0);
        QTest::mouseClick(
            tree()->viewport(), Qt::LeftButton, modifiers, tree()->visualRect(found).center());
    }
    void select(const QStringList& nodes) const
    {
        m_inspector->clickNode(nodes.constFirst());
        for (const QString& name : nodes.mid(1))
            clickNode(Qt::ControlModifier, name);
        QCoreApplication::processEvents();
    }
    static QString selectedNode()
    {
        const KnFieldContainer* const node = CrvServices::getInstance()->getSelectedNode();
        return node ? nodeLabel(*node) : QString();
    }
    QString names() const
    {
        QStringList names;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            names += list()->model()->index(row, 0).data().toString();
        return names.join(u' ');
    }
    QString row(const QString& name) const
    {
        const QModelIndex value = cell(name);
        return value.data().toString() + u" | "_s
            + value.siblingAtColumn(FieldListModel::OtherColumn).data().toString() + u" | "_s
            + (value.data(FieldListModel::DiffersRole).toBool() ? u"differs"_s : QString());
    }
};

QTEST_MAIN(TestFieldNodes)
#include "test_field_nodes.moc"
