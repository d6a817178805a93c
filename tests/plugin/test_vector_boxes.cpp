// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"
#include "FittedFont.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QUndoStack>

namespace {

QStringList labelTexts(const EditorFixture& fixture, const char* name)
{
    QStringList texts;
    for (const QLabel* label :
        fixture.editor()->getFrame()->findChildren<QLabel*>(QLatin1String(name)))
        texts << label->text();
    return texts;
}

} // namespace

class TestVectorBoxes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void columns_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<QByteArray>("label");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("spacing"); // between columns
        QTest::addColumn<QStringList>("labels");
        const auto row = [](const char* type, const char* column, const char* label,
                             const char* input, int spacing, const QString& names) {
            QStringList labels;
            for (const QString& name : names.split(u' '))
                labels << QStringLiteral("<p>%1</p>").arg(name);
            QTest::newRow(type) << QByteArray(type) << QByteArray(column) << QByteArray(label)
                                << QByteArray(input) << spacing << labels;
        };
        const QString xy = QStringLiteral("x y");
        const QString xyz = QStringLiteral("x y z");
        row("SFVec2i32", "SF2BoxLayout", "SF4flabel", "SF2Box", 25, xy);
        row("SFVec2s", "SF2BoxLayout", "SF4flabel", "SF2Box", 25, xy);
        row("SFVec2f", "SFVec2fLayout", "SFVec2fLabel", "SFVec2fBox", 25, xy);
        row("SFVec3f", "SFVec3fLayout", "SFVec3fLabel", "SFVec3fLine", 20, xyz);
        row("SFVec4f", "SF4FvLayout", "SF4flabel", "SF4fine", 4, xyz + QStringLiteral(" w"));
        row("SFPlane", "SF4FvLayout", "SF4flabel", "SF4fine", 4, xyz + QStringLiteral(" distance"));
        row("SFRotation", "SF4FvLayout", "SF4flabel", "SF4fine", 4,
            xyz + QStringLiteral(" radians"));
    }
    /// Each label stands right above its input, from left to right, also in a tall dock.
    void columns()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, column);
        QFETCH(QByteArray, label);
        QFETCH(QByteArray, input);
        QFETCH(int, spacing);
        QFETCH(QStringList, labels);
        EditorFixture fixture;
        fixture.shell().window().resize(900, 600);
        fixture.select(fixture.field(type.constData()));
        QCOMPARE(labelTexts(fixture, label.constData()), labels);
        const auto* const frame = fixture.child<QWidget>("m_editionFrame");
        QCOMPARE(frame->layout()->spacing(), spacing);
        QCOMPARE(
            frame->layout()->findChildren<QLayout*>(QLatin1String(column)).size(), labels.size());

        const auto above = frame->findChildren<QLabel*>(QLatin1String(label));
        const auto inputs = frame->findChildren<QWidget*>(QLatin1String(input));
        QCOMPARE(inputs.size(), labels.size());
        for (int i = 0; i < inputs.size(); ++i) {
            QCOMPARE(above[i]->height(), 14);
            QCOMPARE(inputs[i]->height(), 16);
            QCOMPARE(inputs[i]->x(), above[i]->x());
            QCOMPARE(inputs[i]->y() - above[i]->geometry().bottom() - 1, 4);
            QVERIFY(i == 0 || inputs[i]->x() >= inputs[i - 1]->geometry().right() + spacing);
            QVERIFY(above[i]->minimumSizeHint().width() <= above[i]->width());
        }
    }

    void spinBoxesStopAtTheEndsOfTheirType_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* type, const char* typed, const char* shown) {
            QTest::addRow("%s %s", type, typed)
                << QByteArray(type) << QString::fromLatin1(typed) << QString::fromLatin1(shown);
        };
        row("SFVec2s", "-32768", "-32768");
        row("SFVec2s", "327678", "32767");
        row("SFVec2s", "-327689", "-32768");
        row("SFVec2i32", "-2147483648", "-2147483648");
        row("SFVec2i32", "21474836479", "2147483647");
        row("SFVec2i32", "1.000", "1000");
        row("SFVec2i32", "1,000", "1000");
    }
    void spinBoxesStopAtTheEndsOfTheirType()
    {
        QFETCH(QByteArray, type);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        EditorFixture fixture;
        KnField* const field = fixture.field(type.constData());
        fixture.select(field);
        auto* const box = fixture.child<QSpinBox>("SF2Box");
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, typed);
        EditorFixture::settle();
        QCOMPARE(box->text(), shown);
        // Every change of value was written while the person typed.
        QCOMPARE(EditorFixture::text(field), shown + QStringLiteral(" 0"));
        QVERIFY(fixture.undoStack().count() > 1);
    }

    void anUntouchedLineWritesNothingWhenItIsLeft()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFVec3f");
        EditorFixture::write(field, "0.12345678 1 2");
        fixture.select(field);
        auto* const line = fixture.child<QLineEdit>("SFVec3fLine");
        line->setFocus();
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0.12345678 1 2"));
        QCOMPARE(fixture.undoStack().count(), 0);

        // A changed one writes all lines, as they are shown.
        line->setFocus();
        QTest::keyClick(line, Qt::Key_End);
        QTest::keyClick(line, Qt::Key_Backspace);
        QTest::keyClick(line, Qt::Key_Tab);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0.12345 1 2"));
        QCOMPARE(fixture.undoStack().count(), 1);
        QCOMPARE(line->cursorPosition(), 0);
    }

    void onlyReturnAppliesARotation()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFRotation");
        EditorFixture::write(field, "0 0 1 2");
        fixture.select(field);
        auto* const line = fixture.child<QLineEdit>("SF4fine");
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("1"));
        QTest::keyClick(line, Qt::Key_Tab);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0 0 1 2"));
        QCOMPARE(linesShown(fixture, "SF4fine"), QStringLiteral("1 0 1 2"));
        // Return in any line writes all of them.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("1 0 1 2"));
        QCOMPARE(fixture.undoStack().count(), 1);

        QTest::keyClicks(line, QStringLiteral("5"));
        EditorFixture::write(field, "0 1 0 3");
        QCOMPARE(linesShown(fixture, "SF4fine"), QStringLiteral("0 1 0 3"));
    }

    void anUnfinishedLineAppliesNothingAndCountsAsZero()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFVec2f");
        EditorFixture::write(field, "5 6");
        fixture.select(field);
        const auto lines
            = fixture.editor()->getFrame()->findChildren<QLineEdit*>(QStringLiteral("SFVec2fBox"));
        typeInto(lines[0], QStringLiteral("-"));
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("5 6"));
        QCOMPARE(lines[0]->text(), QStringLiteral("-"));
        // A comma is no part of a number, wherever the program runs.
        typeInto(lines[1], QStringLiteral("1,5.1234567"));
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0 15.123456"));
    }

    void withoutAFieldNothingHappens()
    {
        WfSFVec2sWidget spins;
        WfSFPlaneWidget lines;
        for (WfSFieldWidget* editor :
            { static_cast<WfSFieldWidget*>(&spins), static_cast<WfSFieldWidget*>(&lines) }) {
            editor->load();
            editor->updateFromField();
            QMetaObject::invokeMethod(editor, "applyChanges");
            editor->unload();
        }
        QCOMPARE(lines.objectName(), QStringLiteral("WfSFPlaneWidget"));
        QCOMPARE(WfSFPlaneWidget("mine").objectName(), QStringLiteral("mine"));
    }

    /// A large font of the user doesn't clip a number in the fixed heights, and a small one stays.
    void aFontGetsOnlyAsSmallAsItMust()
    {
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        const QString sample = QStringLiteral("-0.123457");
        for (const QSize& room : { QSize(1000, 12), QSize(48, 14), QSize(1000, 10) }) {
            font.setPixelSize(40);
            const QFont fitted = fittedFont(font, sample, room);
            QVERIFY(fitted.pixelSize() < 40);
            QVERIFY(QFontMetrics(fitted).tightBoundingRect(sample).height() <= room.height());
            QVERIFY(QFontMetrics(fitted).horizontalAdvance(sample) <= room.width());
            QCOMPARE(fittedFont(fitted, sample, room).pixelSize(), fitted.pixelSize());
        }
    }
};

QTEST_MAIN(TestVectorBoxes)
#include "test_vector_boxes.moc"
