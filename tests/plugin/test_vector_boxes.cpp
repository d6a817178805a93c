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

/// How an editor's columns are named and labelled.
struct Columns {
    const char* type;
    const char* column;
    const char* label;
    const char* input;
    int spacing; ///< between columns
    const char* names;
};

const Columns allColumns[] = {
    { "SFVec2i32", "SF2BoxLayout", "SF4flabel", "SF2Box", 25, "x y" },
    { "SFVec2s", "SF2BoxLayout", "SF4flabel", "SF2Box", 25, "x y" },
    { "SFVec2f", "SFVec2fLayout", "SFVec2fLabel", "SFVec2fBox", 25, "x y" },
    { "SFVec3f", "SFVec3fLayout", "SFVec3fLabel", "SFVec3fLine", 20, "x y z" },
    { "SFVec4f", "SF4FvLayout", "SF4flabel", "SF4fine", 4, "x y z w" },
    { "SFPlane", "SF4FvLayout", "SF4flabel", "SF4fine", 4, "x y z distance" },
    { "SFRotation", "SF4FvLayout", "SF4flabel", "SF4fine", 4, "x y z radians" },
};

} // namespace

class TestVectorBoxes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void columns_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(allColumns)); ++i)
            QTest::newRow(allColumns[i].type) << i;
    }
    /// Each label stands right above its input, from left to right, also in a tall dock.
    void columns()
    {
        QFETCH(int, index);
        const Columns& row = allColumns[index];
        const QStringList names = QString::fromLatin1(row.names).split(u' ');
        EditorFixture fixture;
        fixture.shell().window().resize(900, 600);
        fixture.select(fixture.field(row.type));
        const auto* const frame = fixture.child<QWidget>("m_editionFrame");
        QCOMPARE(frame->layout()->spacing(), row.spacing);
        QCOMPARE(frame->layout()->findChildren<QLayout*>(QLatin1String(row.column)).size(),
            names.size());
        const auto above = frame->findChildren<QLabel*>(QLatin1String(row.label));
        const auto inputs = frame->findChildren<QWidget*>(QLatin1String(row.input));
        QCOMPARE(inputs.size(), names.size());
        for (int i = 0; i < inputs.size(); ++i) {
            QCOMPARE(above[i]->text(), QStringLiteral("<p>%1</p>").arg(names[i]));
            QCOMPARE(above[i]->height(), 14);
            QCOMPARE(inputs[i]->height(), 16);
            QCOMPARE(inputs[i]->x(), above[i]->x());
            QCOMPARE(inputs[i]->y() - above[i]->geometry().bottom() - 1, 4);
            QVERIFY(i == 0 || inputs[i]->x() >= inputs[i - 1]->geometry().right() + row.spacing);
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
        row("SFVec2s", "-327689", "-32768");
        row("SFVec2i32", "-2147483648", "-2147483648");
        row("SFVec2i32", "21474836479", "2147483647");
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
