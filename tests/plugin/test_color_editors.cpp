// SPDX-License-Identifier: BSD-3-Clause
#include "DialogInput.h"
#include "EditorFixture.h"

#include <QColorDialog>
#include <QPushButton>

class TestColorEditors : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void typingChangesTheDisplayAndNotTheField()
    {
        const KnField& field = show("SFColorRGBA", "1 0 0 1");
        const auto* const frame = editor()->getFrame();
        const auto lines = frame->findChildren<QLineEdit*>(QStringLiteral("SFColorRGBALine"));
        QStringList colors { displayed() };
        const auto type = [&](int line, const char* text) {
            lines[line]->selectAll();
            QTest::keyClicks(lines[line], QLatin1String(text));
            colors << displayed();
        };
        type(1, "0.5");
        // Outside 0 to 1 there is nothing to display, so the last colour stays.
        type(1, "7");
        type(1, "x");
        type(3, "0.5");
        // What is dropped takes its channel and the display back.
        type(2, "1");
        QTest::keyClick(lines[2], Qt::Key_Escape);
        colors << displayed();
        QCOMPARE(colors.join(u' '),
            QStringLiteral(
                "#ffff0000 #ffff7f00 #ffff7f00 #ffff0000 #7fff0000 #7fff00ff #7fff0000"));
        settle();
        QCOMPARE(text(&field), QStringLiteral("1 0 0 1"));
        QCOMPARE(commands(), 0);
        // No number counts as 0, and the refresh says so.
        QTest::keyClick(lines[1], Qt::Key_Return);
        settle();
        QCOMPARE(text(&field), QStringLiteral("1 0 0 0.5"));
        QCOMPARE(lines[1]->text(), QStringLiteral("0"));
    }

    void anAcceptedDialogWritesTheColour()
    {
        const KnField& field = show("SFColorRGBA", "1 0 0 1");
        QVERIFY(choose(Qt::Key_Return));
        // Red as the text of its line has it; the others kept or got a round number.
        QCOMPARE(text(&field), QStringLiteral("0.501961 0 1 0.2"));
        QCOMPARE(linesShown("SFColorRGBALine"), QStringLiteral("0.501961 0 1 0.2"));
        QCOMPARE(commands(), 1);
        undo();
        QCOMPARE(text(&field), QStringLiteral("1 0 0 1"));
    }

    void anUnwantedChoiceLeavesEverything()
    {
        const KnField& field = show("SFColor", "1 0 0.001");
        QVERIFY(choose(Qt::Key_Escape));
        QCOMPARE(linesShown("SFColorLine"), QStringLiteral("1 0 0.001"));
        // What was chosen for one field never reaches another.
        QVERIFY(choose(Qt::Key_Return, otherField("SFColor")));
        QCOMPARE(text(&field), QStringLiteral("1 0 0.001"));
        QCOMPARE(text(otherField("SFColor")), QStringLiteral("0 0 0"));
        QCOMPARE(commands(), 0);
    }

private:
    /// The colour that the button displays, as "#aarrggbb".
    QString displayed()
    {
        const QPixmap pixmap = child<QPushButton>("m_colorDisp")->icon().pixmap(QSize(100, 100));
        return pixmap.toImage().pixelColor(0, 0).name(QColor::HexArgb);
    }
    /// Chooses a colour in the editor's dialog and ends that with a key. Selects `behind`
    /// meanwhile.
    bool choose(Qt::Key key, KnField* behind = nullptr)
    {
        const bool alpha = editor()->objectName() == QStringLiteral("WfSFColorRGBAWidget");
        const auto act = [&](QColorDialog* dialog) {
            QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), alpha);
            QCOMPARE(dialog->currentColor(), QColor(255, 0, 0));
            if (behind)
                select(behind);
            dialog->setCurrentColor(QColor(128, 0, 255, 51));
            QTest::keyClick(dialog, key);
        };
        return inDialogOpenedBy<QColorDialog>([this] { clickButton("m_colorDisp"); }, act);
    }
};

QTEST_MAIN(TestColorEditors)
#include "test_color_editors.moc"
