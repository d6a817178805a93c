// SPDX-License-Identifier: BSD-3-Clause
#include "ColorChannels.h"
#include "DialogInput.h"
#include "EditorRow.h"

#include <QColorDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QUndoStack>

#include <limits>

namespace {

/// The colour that the button displays.
QColor displayed(EditorFixture& fixture)
{
    const QPixmap pixmap
        = fixture.child<QPushButton>("m_colorDisp")->icon().pixmap(QSize(100, 100));
    return pixmap.toImage().pixelColor(0, 0);
}

QList<QLineEdit*> linesOf(EditorFixture& fixture)
{
    return fixture.child<QWidget>("m_editionFrame")->findChildren<QLineEdit*>();
}

} // namespace

class TestColorEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { failOnWarnings(); }

    void channels()
    {
        using Float = std::numeric_limits<float>;
        const std::pair<float, int> bytes[] = { { 1, 255 }, { 0.5F, 127 }, { -0.003F, 0 },
            { -0.004F, -1 }, { 1.003F, 255 }, { 1.01F, -1 }, { Float::max(), -1 },
            { -Float::infinity(), -1 }, { Float::quiet_NaN(), -1 } };
        for (const auto& [channel, byte] : bytes)
            QCOMPARE(channelByte(channel), byte);
    }

    void everyChannelHasItsSlotAndItsLine_data()
    {
        QTest::addColumn<QString>("letters");
        QTest::addColumn<int>("spacing"); // between a label and its line
        QTest::newRow("SFColor") << QStringLiteral("RGB") << 2;
        QTest::newRow("SFColorRGBA") << QStringLiteral("RGBA") << 0;
    }
    void everyChannelHasItsSlotAndItsLine()
    {
        QFETCH(QString, letters);
        QFETCH(int, spacing);
        EditorFixture fixture;
        fixture.select(fixture.field(QTest::currentDataTag()));
        const QMetaObject* const meta = fixture.editor()->metaObject();
        QStringList expected;
        for (const QChar letter : letters)
            expected << QStringLiteral("change%1Value(QString)").arg(letter);
        expected << QStringLiteral("getColorEditor()");
        QStringList found;
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
            found << QString::fromLatin1(meta->method(i).methodSignature());
        QCOMPARE(found, expected);

        const auto* const frame = fixture.child<QWidget>("m_editionFrame");
        const QString prefix = QString::fromLatin1(QTest::currentDataTag());
        const auto labels = frame->findChildren<QLabel*>(prefix + QStringLiteral("Label"));
        const auto lines = frame->findChildren<QLineEdit*>(prefix + QStringLiteral("Line"));
        QCOMPARE(labels.size(), letters.size());
        QCOMPARE(lines.size(), letters.size());
        for (int i = 0; i < labels.size(); ++i) {
            QCOMPARE(
                labels[i]->text(), QStringLiteral("<p align=\"right\">%1</p>").arg(letters[i]));
            QCOMPARE(lines[i]->x() - labels[i]->geometry().right() - 1, spacing);
        }
    }

    void typingChangesTheDisplayAndNotTheField()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFColorRGBA");
        EditorFixture::write(field, "1 0 0 1");
        fixture.select(field);
        QCOMPARE(displayed(fixture), QColor(255, 0, 0));
        const auto lines = linesOf(fixture);
        lines[1]->selectAll();
        QTest::keyClicks(lines[1], QStringLiteral("0.5"));
        QCOMPARE(displayed(fixture), QColor(255, 127, 0));
        // Outside 0 to 1 there is nothing to display, so the last colour stays.
        lines[1]->selectAll();
        QTest::keyClicks(lines[1], QStringLiteral("7"));
        QCOMPARE(displayed(fixture), QColor(255, 127, 0));
        lines[1]->selectAll();
        QTest::keyClicks(lines[1], QStringLiteral("x"));
        QCOMPARE(displayed(fixture), QColor(255, 0, 0));
        lines[3]->setText(QStringLiteral("0.5"));
        QCOMPARE(displayed(fixture).alpha(), 127);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("1 0 0 1"));
        QCOMPARE(fixture.undoStack().count(), 0);
        // No number counts as 0, and the refresh says so.
        QTest::keyClick(lines[1], Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("1 0 0 0.5"));
        QCOMPARE(lines[1]->text(), QStringLiteral("0"));
    }

    void anAcceptedDialogWritesTheColour()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFColorRGBA");
        EditorFixture::write(field, "1 0 0 1");
        fixture.select(field);
        QVERIFY(inDialog<QColorDialog>(
            fixture.child<QPushButton>("m_colorDisp"), [](QColorDialog* dialog) {
                QCOMPARE(dialog->currentColor(), QColor(255, 0, 0));
                QVERIFY(dialog->testOption(QColorDialog::ShowAlphaChannel));
                dialog->setCurrentColor(QColor(128, 0, 255, 51));
                QTest::keyClick(dialog, Qt::Key_Return);
            }));
        // Red as the text of its line has it; the others kept or got a round number.
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0.501961 0 1 0.2"));
        QCOMPARE(linesShown(fixture, "SFColorRGBALine"), QStringLiteral("0.501961 0 1 0.2"));
        QCOMPARE(fixture.undoStack().count(), 1);
        fixture.undo();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("1 0 0 1"));
    }

    void aCancelledDialogLeavesEverything()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFColor");
        EditorFixture::write(field, "0.3 7 0");
        fixture.select(field);
        QVERIFY(inDialog<QColorDialog>(
            fixture.child<QPushButton>("m_colorDisp"), [](QColorDialog* dialog) {
                QVERIFY(!dialog->testOption(QColorDialog::ShowAlphaChannel));
                dialog->setCurrentColor(Qt::green);
                QTest::keyClick(dialog, Qt::Key_Escape);
            }));
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0.3 7 0"));
        QCOMPARE(linesShown(fixture, "SFColorLine"), QStringLiteral("0.3 7 0"));
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void aColourChosenForOneFieldNeverReachesAnother()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFColor"));
        QVERIFY(inDialog<QColorDialog>(
            fixture.child<QPushButton>("m_colorDisp"), [&](QColorDialog* dialog) {
                fixture.select(fixture.otherField("SFColor"));
                dialog->setCurrentColor(Qt::green);
                QTest::keyClick(dialog, Qt::Key_Return);
            }));
        QCOMPARE(EditorFixture::text(fixture.field("SFColor")), QStringLiteral("0 0 0"));
        QCOMPARE(EditorFixture::text(fixture.otherField("SFColor")), QStringLiteral("0 0 0"));
        QCOMPARE(fixture.undoStack().count(), 0);
    }
};

QTEST_MAIN(TestColorEditors)
#include "test_color_editors.moc"
