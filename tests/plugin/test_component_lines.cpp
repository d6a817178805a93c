// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"
#include "TextRows.h"

#include <QPushButton>
#include <QShortcut>

class TestComponentLines : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void editing_data()
    {
        // The field, one of its lines, what is typed in place of what that holds, if anything, the
        // key behind it, what the field holds then, and the commands.
        addTextRows({
            // Leaving an untouched line writes nothing.
            { "SFBox2f", "0.12345678 0 1 1", "0", "", "Tab", "0.12345678 0 1 1", "0" },
            { "SFVec3f", "0.0733559 0 1", "0", "", "Tab", "0.0733559 0 1", "0" },
            // Leaving an edited one writes what all lines show.
            { "SFBox2f", "0.12345678 0 1 1234567", "2", "2", "Tab", "0.123457 0 2 1234570", "1" },
            { "SFColor", "0.12345678 1 2", "1", "0.25", "Tab", "0.123457 0.25 2", "1" },
            // A rotation is written by Return alone.
            { "SFRotation", "0 0 1 2", "0", "1", "Tab", "0 0 1 2", "0" },
            { "SFRotation", "0 0 1 2", "0", "1", "Return", "1 0 1 2", "1" },
            // Return applies an untouched line, too, but no unfinished one.
            { "SFBox2f", "0 0 1 1", "3", "", "Return", "0 0 1 1", "1" },
            { "SFBox2f", "5 0 1 1", "0", "-", "Return", "5 0 1 1", "0" },
            { "SFVec2f", "5 6", "1", "-", "Tab", "5 6", "0" },
            // A comma is no part of a number, nor is a seventh decimal.
            { "SFVec2f", "5 6", "1", "1,5.1234567", "Tab", "5 15.123456", "1" },
            // A colour takes any text.
            { "SFColor", "1 1 0", "1", "1,5", "Return", "1 0 0", "2" },
        });
    }
    void editing()
    {
        const auto [type, start, index, typed, key, after, count] = textRow<7>();
        KnField& field = show(type, start);
        QLineEdit* const line = openGrid()->findChildren<QLineEdit*>()[index.toInt()];
        QTest::mouseClick(line, Qt::LeftButton);
        line->selectAll();
        QTest::keyClicks(line, typed);
        QCOMPARE(text(&field), start);
        const QString shown = line->text();
        QTest::keyClick(line, QKeySequence(key)[0].key());
        settle();
        QCOMPARE(text(&field), after);
        QCOMPARE(commands(), count.toInt());
        if (start == after)
            QCOMPARE(line->text(), shown);

        // What wasn't applied doesn't outlive a refresh.
        write(&field, start.toLatin1());
        QVERIFY(!static_cast<WfSFieldWidget*>(editor())->edited());
        QVERIFY(typed.isEmpty() || line->text() != typed);
    }

    void escDropsWhatIsTyped_data()
    {
        addTextRows({ { "SFInt32" }, { "SFFloat" }, { "SFString" }, { "SFFilePathString" },
            { "SFVec2f" }, { "SFRotation" }, { "SFColorRGBA" }, { "SFBox2f" }, { "SFMatrix" } });
    }
    void escDropsWhatIsTyped()
    {
        KnField* const field = this->field(QTest::currentDataTag());
        const QString start = text(field);
        select(field);
        // A host may have a use for the key.
        int escapes = 0;
        QShortcut shortcut(Qt::Key_Escape, &window());
        connect(&shortcut, &QShortcut::activated, this, [&escapes] { ++escapes; });
        const QWidget* const frame = openGrid();
        const bool isPopup = frame->isWindow();

        QLineEdit* const line = frame->findChildren<QLineEdit*>().constLast();
        const QString shown = line->text();
        line->setFocus();
        if (!isPopup)
            QTest::keyClick(line, Qt::Key_Escape);
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("777"));
        QTest::keyClick(line, Qt::Key_Escape);
        QCOMPARE(line->text(), shown);
        QCOMPARE(escapes, isPopup ? 0 : 1);
        QCOMPARE(frame->isVisible(), !isPopup);
        QCOMPARE(commands(), 0);
        QTest::keyClick(line, Qt::Key_Tab);
        settle();
        QCOMPARE(text(field), start);
    }

    /// The refresh that follows each line leaves the next one ready to be typed over.
    void tabbingThroughTheLines_data()
    {
        addTextRows({ { "SFVec3f", "7 8 7" }, { "SFBox2f", "7 8 7 1" } });
    }
    void tabbingThroughTheLines()
    {
        const auto [type, end] = textRow<2>();
        const KnField& field = show(type, QStringLiteral("1 1 1 1").left(end.size()));
        const auto lines = openGrid()->findChildren<QLineEdit*>();
        lines[0]->setFocus(Qt::TabFocusReason);
        for (const Qt::Key key : { Qt::Key_7, Qt::Key_8, Qt::Key_7 }) {
            press(key);
            press(Qt::Key_Tab);
        }
        QCOMPARE(text(&field), end);
        QCOMPARE(commands(), 3);
        QCOMPARE(lines[0]->cursorPosition(), 0);
    }

private:
    /// What holds the lines of the editor shown: the popup, which it opens, or the editor's frame.
    QWidget* openGrid()
    {
        if (!editor()->getFrame()->findChild<QPushButton*>(QStringLiteral("m_editButton")))
            return editor()->getFrame();
        clickButton("m_editButton");
        return child<QWidget>("m_popupFrame");
    }
};

QTEST_MAIN(TestComponentLines)
#include "test_component_lines.moc"
