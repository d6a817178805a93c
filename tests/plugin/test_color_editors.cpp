// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "DialogInput.h"
#include "EditorCase.h"

#include <QColorDialog>
#include <QPushButton>

namespace {

/// The colour that the button displays, as "#aarrggbb".
QString displayed(EditorFixture& fixture)
{
    const QPixmap pixmap
        = fixture.child<QPushButton>("m_colorDisp")->icon().pixmap(QSize(100, 100));
    return pixmap.toImage().pixelColor(0, 0).name(QColor::HexArgb);
}

/// Chooses a colour in the editor's dialog and ends that with a key. Selects `behind` meanwhile.
bool choose(EditorFixture& fixture, Qt::Key key, KnField* behind = nullptr)
{
    const bool alpha = fixture.editor()->objectName() == QStringLiteral("WfSFColorRGBAWidget");
    const auto act = [&](QColorDialog* dialog) {
        QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), alpha);
        QCOMPARE(dialog->currentColor(), QColor(255, 0, 0));
        if (behind)
            fixture.select(behind);
        dialog->setCurrentColor(QColor(128, 0, 255, 51));
        QTest::keyClick(dialog, key);
    };
    return inDialog<QColorDialog>(fixture.child<QPushButton>("m_colorDisp"), act);
}

} // namespace

class TestColorEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { failOnWarnings(); }

    void typingChangesTheDisplayAndNotTheField()
    {
        ArrayFixture fixture;
        const KnField& field = fixture.show("SFColorRGBA", "1 0 0 1");
        const auto* const frame = fixture.editor()->getFrame();
        const auto lines = frame->findChildren<QLineEdit*>(QStringLiteral("SFColorRGBALine"));
        QStringList colors { displayed(fixture) };
        const auto type = [&](int line, const char* text) {
            lines[line]->selectAll();
            QTest::keyClicks(lines[line], QLatin1String(text));
            colors << displayed(fixture);
        };
        type(1, "0.5");
        // Outside 0 to 1 there is nothing to display, so the last colour stays.
        type(1, "7");
        type(1, "x");
        type(3, "0.5");
        // What is dropped takes its channel and the display back.
        type(2, "1");
        QTest::keyClick(lines[2], Qt::Key_Escape);
        colors << displayed(fixture);
        QCOMPARE(colors.join(u' '),
            QStringLiteral(
                "#ffff0000 #ffff7f00 #ffff7f00 #ffff0000 #7fff0000 #7fff00ff #7fff0000"));
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("1 0 0 1"));
        QCOMPARE(fixture.commands(), 0);
        // No number counts as 0, and the refresh says so.
        QTest::keyClick(lines[1], Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("1 0 0 0.5"));
        QCOMPARE(lines[1]->text(), QStringLiteral("0"));
    }

    void anAcceptedDialogWritesTheColour()
    {
        ArrayFixture fixture;
        const KnField& field = fixture.show("SFColorRGBA", "1 0 0 1");
        QVERIFY(choose(fixture, Qt::Key_Return));
        // Red as the text of its line has it; the others kept or got a round number.
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("0.501961 0 1 0.2"));
        QCOMPARE(linesShown(fixture, "SFColorRGBALine"), QStringLiteral("0.501961 0 1 0.2"));
        QCOMPARE(fixture.commands(), 1);
        fixture.undo();
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("1 0 0 1"));
    }

    void anUnwantedChoiceLeavesEverything()
    {
        ArrayFixture fixture;
        const KnField& field = fixture.show("SFColor", "1 0 0.001");
        QVERIFY(choose(fixture, Qt::Key_Escape));
        QCOMPARE(linesShown(fixture, "SFColorLine"), QStringLiteral("1 0 0.001"));
        // What was chosen for one field never reaches another.
        QVERIFY(choose(fixture, Qt::Key_Return, fixture.otherField("SFColor")));
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("1 0 0.001"));
        QCOMPARE(EditorFixture::text(fixture.otherField("SFColor")), QStringLiteral("0 0 0"));
        QCOMPARE(fixture.commands(), 0);
    }
};

QTEST_MAIN(TestColorEditors)
#include "test_color_editors.moc"
