// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"
#include "FittedFont.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QLabel>
#include <QSpinBox>
#include <QUndoStack>

class TestVectorBoxes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void columns_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("names");
        const char* const rows[][4] = {
            { "SFVec2i32", "SF4flabel", "SF2Box", "x y" },
            { "SFVec2f", "SFVec2fLabel", "SFVec2fBox", "x y" },
            { "SFVec3f", "SFVec3fLabel", "SFVec3fLine", "x y z" },
            { "SFVec4f", "SF4flabel", "SF4fine", "x y z w" },
            { "SFPlane", "SF4flabel", "SF4fine", "x y z distance" },
            { "SFRotation", "SF4flabel", "SF4fine", "x y z radians" },
        };
        for (const auto& [type, label, input, names] : rows)
            QTest::newRow(type) << label << input << names;
    }
    /// Each label stands right above its input, from left to right, also in a tall dock.
    void columns()
    {
        QFETCH(QString, label);
        QFETCH(QString, input);
        EditorFixture fixture;
        fixture.shell().window().resize(900, 600);
        fixture.select(fixture.field(QTest::currentDataTag()));
        const auto* const frame = fixture.child<QWidget>("m_editionFrame");
        const auto inputs = frame->findChildren<QWidget*>(input);
        QStringList names;
        int right = -1;
        for (const QLabel* above : frame->findChildren<QLabel*>(label)) {
            const QRect box = inputs.at(names.size())->geometry();
            QCOMPARE(box.topLeft(), above->geometry().bottomLeft() + QPoint(0, 1 + 4));
            QVERIFY(box.left() > right);
            QVERIFY(above->minimumSizeHint().width() <= above->width());
            right = box.right();
            names << above->text().remove(QStringLiteral("<p>")).remove(QStringLiteral("</p>"));
        }
        QTEST(names.join(u' '), "names");
    }

    void spinBoxesStopAtTheEndsOfTheirType_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QString>("shown");
        QTest::newRow("-32768") << QByteArray("SFVec2s") << "-32768";
        QTest::newRow("-327689") << QByteArray("SFVec2s") << "-32768";
        QTest::newRow("-2147483648") << QByteArray("SFVec2i32") << "-2147483648";
        QTest::newRow("21474836479") << QByteArray("SFVec2i32") << "2147483647";
        QTest::newRow("1,000") << QByteArray("SFVec2i32") << "1000";
    }
    void spinBoxesStopAtTheEndsOfTheirType()
    {
        QFETCH(QByteArray, type);
        EditorFixture fixture;
        fixture.select(fixture.field(type.constData()));
        auto* const box = fixture.child<QSpinBox>("SF2Box");
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QLatin1String(QTest::currentDataTag()));
        EditorFixture::settle();
        QTEST(box->text(), "shown");
        // Every change of value was written while the person typed.
        QCOMPARE(EditorFixture::text(fixture.field(type.constData())),
            box->text() + QStringLiteral(" 0"));
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
