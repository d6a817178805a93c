// SPDX-License-Identifier: BSD-3-Clause
#include "FieldLineEdit.h"
#include "FieldListFixture.h"
#include "TextRows.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QToolButton>

/// Edits values in the list of fields itself.
class TestFieldEditing : public FieldListTest {
    Q_OBJECT
private Q_SLOTS:
    void aLineIsWritten_data()
    {
        addTextRows({ { "Oak.transparency", "0.25\r", "0.25" },
            { "Front view.description", "a \"b\"\r", "\"a \\\"b\\\"\"" },
            { "Front view.position", "1 2 3\t", "1 2 3" },
            { "Oak.transparency", "0.25\x1b", "0.05" }, { "Frame style.parts", "()\r", "()" } });
    }
    void aLineIsWritten()
    {
        const auto [place, typed, expected] = textRow<3>();
        choose(place);
        const QString before = m_inspector->text(place);
        QTest::keyClick(list(), Qt::Key_F2);
        QVERIFY(open<FieldLineEdit>());
        QCOMPARE(stack().count(), 0);
        // Not to the line but to whatever has the focus, as keys go.
        for (const QChar key : typed)
            QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
        QTRY_COMPARE(m_inspector->text(place), expected);
        QCOMPARE(stack().count(), expected == before ? 0 : 1);
        stack().undo();
        QCOMPARE(m_inspector->text(place), before);
    }

    void aLookWritesNothing()
    {
        choose(u"Front view.description"_s);
        m_inspector->field(u"Front view.description"_s)->set("\"a\\nb\"");
        for (const int key : { Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape }) {
            QTest::keyClick(list(), Qt::Key_F2);
            QTest::keyClick(open<FieldLineEdit>(), static_cast<Qt::Key>(key));
            QTRY_VERIFY(key == Qt::Key_Tab || !open<FieldLineEdit>());
        }
        m_inspector->clickNode(u"Oak"_s);
        QCOMPARE(stack().count(), 0);
        QCOMPARE(m_inspector->text(u"Front view.description"_s), u"\"a\\nb\""_s);
    }

    void tabGoesToTheNextLine()
    {
        choose(u"Desk lamp.on"_s);
        const QPoint intensity = list()->visualRect(cell(u"intensity"_s)).center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, intensity);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, intensity);
        QTest::keyClicks(open<FieldLineEdit>(), u"0.5\t"_s);
        QTRY_COMPARE(list()->currentIndex().siblingAtColumn(0).data().toString(), u"color"_s);
        QTest::keyClicks(QApplication::focusWidget(), u"1 0 0"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QTRY_COMPARE(list()->currentIndex().siblingAtColumn(0).data().toString(), u"intensity"_s);
        QCOMPARE(m_inspector->text(u"Desk lamp.intensity"_s), u"0.5"_s);
        QCOMPARE(m_inspector->text(u"Desk lamp.color"_s), u"1 0 0"_s);
        // What is typed isn't lost when the selection moves.
        QTest::keyClicks(QApplication::focusWidget(), u"0.125"_s);
        CrvServices::getInstance()->selectNode(nullptr);
        QCOMPARE(m_inspector->text(u"Desk lamp.intensity"_s), u"0.125"_s);
    }

    void aRefusedTextStays()
    {
        choose(u"Oak.transparency"_s);
        QTest::keyClick(list(), Qt::Key_F2);
        auto* line = open<FieldLineEdit>();
        QTest::keyClicks(line, u"0,5"_s);
        for (const int key : { Qt::Key_Return, Qt::Key_Tab }) {
            QTest::keyClick(line, static_cast<Qt::Key>(key));
            const auto* const reason = open<QLabel>();
            QVERIFY(reason && reason->text().contains(u"expected the end of the text"_s));
            QVERIFY(list()->viewport()->rect().contains(reason->geometry()));
        }
        // Nor is it lost elsewhere; and no second line opens.
        m_inspector->clickField(u"Oak"_s, u"ambientColor"_s);
        QCOMPARE(line->text(), u"0,5"_s);
        QTest::keyClick(list(), Qt::Key_F2);
        QVERIFY(line->hasFocus());
        QCOMPARE(m_inspector->text(u"Oak.transparency"_s), u"0.05"_s);
        // Where the line has to go, the reason stays.
        m_inspector->clickNode(u"Front view"_s);
        QVERIFY(message().contains(u"expected the end of the text"_s));
        choose(u"Oak.transparency"_s);
        QVERIFY(message().isEmpty());
        QTest::keyClick(list(), Qt::Key_F2);
        line = open<FieldLineEdit>();
        QTest::keyClicks(line, u"0,5\r"_s);
        // A better one is taken.
        QTest::keyClick(line, Qt::Key_Backspace);
        QVERIFY(!open<QLabel>());
        QTest::keyClick(line, Qt::Key_Backspace);
        QTest::keyClicks(line, u".5\r"_s);
        QTRY_COMPARE(m_inspector->text(u"Oak.transparency"_s), u"0.5"_s);
        QCOMPARE(stack().count(), 1);
    }

    /// The reason stands beside its line, and must outlive the round that hides them both.
    void theWindowIsClosedOnARefusedText()
    {
        choose(u"Oak.transparency"_s);
        QTest::keyClick(list(), Qt::Key_F2);
        QTest::keyClicks(open<FieldLineEdit>(), u"0,5\r"_s);
        const QPointer<QLabel> reason = open<QLabel>();
        QVERIFY(reason);
        m_inspector->window.close();
        QVERIFY(reason && reason->isHidden());
        QTRY_VERIFY(!reason);
    }

    void aTruthValueToggles()
    {
        choose(u"Desk lamp.on"_s);
        QTest::keyClick(list(), Qt::Key_Space);
        QCOMPARE(m_inspector->text(u"Desk lamp.on"_s), u"TRUE"_s);
        QCOMPARE(stack().undoText(), u"Desk lamp.on: FALSE \u2192 TRUE"_s);
        const QRect value = list()->visualRect(cell(u"on"_s));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
            QPoint(value.left() + value.height() / 2, value.center().y()));
        QCOMPARE(m_inspector->text(u"Desk lamp.on"_s), u"FALSE"_s);
        // Beside the mark it is only chosen.
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, value.center());
        QCOMPARE(stack().count(), 2);
    }

    void anEnumerationIsChosen()
    {
        choose(u"Opening hours.justification"_s);
        QTest::keyClick(list(), Qt::Key_F2);
        auto* const box = open<QComboBox>();
        QVERIFY(box);
        QTRY_VERIFY(box->view()->isVisible());
        QCOMPARE(box->currentText(), u"CENTER"_s);
        QTest::keyClick(box->view(), Qt::Key_Up);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QTRY_VERIFY(m_inspector->text(u"Opening hours.justification"_s) != u"CENTER"_s);
        QTRY_VERIFY(!open<QComboBox>());
        // Return on the box ends the edit, and isn't taken for the list's way to the editor.
        QTest::keyClick(list(), Qt::Key_F2);
        QTRY_VERIFY(open<QComboBox>()->view()->isVisible());
        open<QComboBox>()->hidePopup();
        QTest::keyClick(open<QComboBox>(), Qt::Key_Return);
        QTRY_VERIFY(!open<QComboBox>());
        QVERIFY(list()->hasFocus());
        QCOMPARE(stack().count(), 1);
    }

    void whatIsChangedIsBold()
    {
        choose(u"Oak.transparency"_s);
        QVERIFY(isBold(u"transparency"_s));
        QTest::keyClick(list(), Qt::Key_Delete);
        QCOMPARE(m_inspector->text(u"Oak.transparency"_s), u"0"_s);
        QTRY_VERIFY(!isBold(u"transparency"_s));
        // An array that its default begins with, and one that is as long.
        m_inspector->field(u"Oak.shininess"_s)->set("[]");
        QTRY_COMPARE(cell(u"shininess"_s).data().toString(), u"no values"_s);
        QVERIFY(isBold(u"shininess"_s));
        m_inspector->field(u"Oak.shininess"_s)->set("[ 0.5 ]");
        QTRY_VERIFY(isBold(u"shininess"_s));
        stack().undo();
        QTRY_VERIFY(isBold(u"transparency"_s));
    }

    void onlyChangedAreListed()
    {
        const KnNodePtr fresh(
            static_cast<KnFieldContainer*>(KnType::fromName("Material").createInstance()));
        CrvServices::getInstance()->selectNode(fresh.get());
        auto* const button = m_inspector->window.findChild<QToolButton*>(u"changedOnlyButton"_s);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(shownRows(), QString());
        fresh->getField("transparency")->set("0.5");
        QTRY_COMPARE(shownRows(), u"transparency"_s);
        // What the host selects is shown in any case.
        CrvServices::getInstance()->selectField(fresh->getField("shininess"));
        QCOMPARE(shownRows(), u"shininess transparency"_s);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(shownRows().contains(u"ambientColor"_s));
        // Nothing is done to what was selected and is hidden by now.
        list()->selectAll();
        QTest::mouseClick(button, Qt::LeftButton);
        list()->setFocus();
        m_inspector->press(QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"transparency 0.5"_s);
    }

private:
    bool isBold(const QString& field) const
    {
        return cell(field).data(Qt::FontRole).value<QFont>().bold();
    }
    QString shownRows() const
    {
        QStringList names;
        for (int row = 0; row < list()->model()->rowCount(); ++row) {
            if (!list()->isRowHidden(row, QModelIndex()))
                names += list()->model()->index(row, 0).data().toString();
        }
        return names.join(u' ');
    }
};

QTEST_MAIN(TestFieldEditing)
#include "test_field_editing.moc"
