// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListFixture.h"
#include "TextRows.h"

#include <QClipboard>
#include <QTableView>

/// Copies and pastes in the list of fields.
class TestFieldList : public FieldListTest {
    Q_OBJECT
private Q_SLOTS:

    void isCopiedAsLines_data()
    {
        addTextRows({ { "Oak", "transparency", "transparency 0.05" },
            { "Opening hours", "string", "string [ \"Open\", \"9 \\\"to\\\" 5\" ]" } });
    }
    void isCopiedAsLines()
    {
        const auto [node, name, expected] = textRow<3>();
        m_inspector->field(u"Opening hours.string"_s)->set("[ Open, \"9 \\\"to\\\" 5\" ]");
        m_inspector->clickField(node, name);
        m_inspector->press(QKeySequence::Copy);
        QCOMPARE(clipboardText(), expected);
    }

    void severalAreCopied()
    {
        m_inspector->clickField(u"Desk lamp"_s, u"on"_s);
        QTest::keyClick(list(), Qt::Key_Down, Qt::ShiftModifier);
        clickWith(Qt::ControlModifier, u"location"_s);
        QCOMPARE(list()->currentIndex().data().toString(), u"location"_s);
        m_inspector->press(QKeySequence::Copy);
        QCOMPARE(clipboardText(), u"on FALSE\nintensity 0.65\nlocation 0.6 1.2 0.4"_s);
        // What they hold is the same by now; one of them isn't.
        m_inspector->field(u"Desk lamp.on"_s)->set("TRUE");
        m_inspector->press(QKeySequence::Paste);
        QCOMPARE(m_inspector->text(u"Desk lamp.on"_s), u"FALSE"_s);
        QCOMPARE(stack().undoText(), u"Desk lamp.on: TRUE \u2192 FALSE"_s);
    }

    void isPastedOntoAField_data()
    {
        addTextRows({ { "Oak.transparency", "0.25", "0.25" },
            { "Oak.transparency", "shininess 0.5", "0.5" },
            { "Front view.description", "a \"b\"\\c", "\"a \\\"b\\\"\\\\c\"" },
            { "Front view.description", "\"a\\nb\"", "\"a\\nb\"" },
            { "Front view.description", "position of the sun", "\"position of the sun\"" },
            { "Front view.description", "description of it", "\"description of it\"" },
            { "Front view.description", "description \"x\"", "\"x\"" },
            { "Corners.point", "1\t2\t3\r\n4\t5\t6\r\n", "[ 1 2 3, 4 5 6 ]" },
            { "Opening hours.width", "1\t2\n3\t4", "[ 1, 2, 3, 4 ]" },
            { "Opening hours.width", "[ 7,\n 8 ]", "[ 7, 8 ]" },
            { "Opening hours.string", "closed\n", "[ \"closed\" ]" },
            { "Opening hours.string", "9 to 5\tclosed\n\"a, b\"",
                "[ \"9 to 5\", \"closed\", \"a, b\" ]" } });
    }
    void isPastedOntoAField()
    {
        const auto [place, text, expected] = textRow<3>();
        const QString before = m_inspector->text(place);
        choose(place);
        QGuiApplication::clipboard()->setText(text);
        m_inspector->press(QKeySequence::Paste);
        QCOMPARE(m_inspector->text(place), expected);
        QVERIFY(message().isEmpty());
        QCOMPARE(stack().count(), 1);
        stack().undo();
        QCOMPARE(m_inspector->text(place), before);
        stack().redo();
        QCOMPARE(m_inspector->text(place), expected);
    }

    void isPastedOntoAnotherNode()
    {
        m_inspector->clickField(u"Desk lamp"_s, u"on"_s);
        m_inspector->press(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
        m_inspector->clickField(u"Window light"_s, u"on"_s);
        m_inspector->press(QKeySequence::Paste);
        QCOMPARE(m_inspector->text(u"Window light.intensity"_s), u"0.65"_s);
        QCOMPARE(stack().count(), 1);
        QVERIFY(stack().undoText().endsWith(u"fields into Window light"_s));
        QVERIFY(message().contains(u"DirectionalLight has no field location"_s));
        stack().undo();
        QVERIFY(m_inspector->text(u"Window light.intensity"_s) != u"0.65"_s);
        // The message is gone with the node that it was about.
        m_inspector->clickNode(u"Oak"_s);
        QVERIFY(message().isEmpty());
    }

    void nodesOfTheTreeHaveTheirEntries()
    {
        const auto choose = [this](const QString& node, const QString& entry) {
            m_inspector->clickNode(node);
            QTimer::singleShot(0, this, [entry] {
                auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                auto* const action = menu->findChild<QAction*>(entry);
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            });
            QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
            QCoreApplication::sendEvent(m_inspector->view(u"sceneTree"_s)->viewport(), &key);
            QTRY_VERIFY(!QApplication::activePopupWidget());
        };
        choose(u"Desk lamp"_s, u"copyNodeFields"_s);
        QVERIFY(clipboardText().contains(u"\nintensity 0.65\n"_s));
        choose(u"Window light"_s, u"pasteNodeFields"_s);
        QCOMPARE(m_inspector->text(u"Window light.intensity"_s), u"0.65"_s);
        QCOMPARE(stack().count(), 1);
        QVERIFY(message().contains(u"location"_s)); // which a directional light doesn't have
    }

    void rowsArePastedIntoAnArray_data()
    {
        addTextRows({ { "", "B", "[ 7, 8, 0, 80, 64.5 ]" }, { "", "E", "[ 0, 80, 64.5, 7, 8 ]" },
            { "1", "I", "[ 0, 7, 8, 80, 64.5 ]" }, { "1", "O", "[ 0, 7, 8 ]" },
            { "2", "O", "[ 0, 80, 7, 8 ]" } });
    }
    void rowsArePastedIntoAnArray()
    {
        const auto [row, key, expected] = textRow<3>();
        choose(u"Opening hours.width"_s);
        if (!row.isEmpty())
            m_inspector->inEditor<QTableView>()->setCurrentIndex(
                m_inspector->inEditor<QTableView>()->model()->index(row.toInt(), 0));
        QGuiApplication::clipboard()->setText(u"7\n8\n"_s);
        Q_EMIT list()->customContextMenuRequested(
            list()->visualRect(list()->currentIndex()).center());
        auto* const menu = m_inspector->window.findChild<QMenu*>(u"pasteRows"_s);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, key.front().toLatin1());
        QTRY_COMPARE(m_inspector->text(u"Opening hours.width"_s), expected);
        QCOMPARE(stack().count(), 1);
        stack().undo();
        QCOMPARE(m_inspector->text(u"Opening hours.width"_s), u"[ 0, 80, 64.5 ]"_s);
        stack().redo();
        QCOMPARE(m_inspector->text(u"Opening hours.width"_s), expected);
    }

    // All of them, where the host shows nothing but what a person does.
    void isSeenDuringAPause()
    {
        choose(u"Desk lamp.on"_s);
        m_inspector->press(QKeySequence(Qt::CTRL | Qt::Key_P));
        QGuiApplication::clipboard()->setText(u"intensity 0.125\nlocation 1 2 3"_s);
        m_inspector->press(QKeySequence::Paste);
        const auto shown = [this] {
            return cell(u"intensity"_s).data().toString() + u", "_s
                + cell(u"location"_s).data().toString();
        };
        QTRY_COMPARE(shown(), u"0.125, 1 2 3"_s);
        stack().undo();
        QTRY_COMPARE(shown(), u"0.65, 0.6 1.2 0.4"_s);
        m_inspector->press(QKeySequence(Qt::CTRL | Qt::Key_P));
    }

    void aBadTextIsRefused_data()
    {
        addTextRows({ { "Oak.transparency", "abc", "expected a number" },
            { "Corners.point", "1\t2\t3\n4\tx\t6", "row 1" },
            { "Oak.shininess", "ambientColor red\nno 1", "expected a number" } });
    }
    void aBadTextIsRefused()
    {
        const auto [place, text, expected] = textRow<3>();
        const QString before = m_inspector->text(place);
        choose(place);
        QGuiApplication::clipboard()->setText(text);
        m_inspector->press(QKeySequence::Paste);
        QCOMPARE(m_inspector->text(place), before);
        QVERIFY2(message().contains(expected), qPrintable(message()));
        QCOMPARE(stack().count(), 0);
    }

private:
    static QString clipboardText() { return QGuiApplication::clipboard()->text(); }
};

QTEST_MAIN(TestFieldList)
#include "test_field_list.moc"
