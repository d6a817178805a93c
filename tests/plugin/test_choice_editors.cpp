// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QUndoStack>

namespace {

/// Ü in UTF-8.
constexpr char umlaut[] = "\xC3\x9C";

QStringList entries(EditorFixture& fixture)
{
    const auto* const box = fixture.child<QComboBox>("comboBox");
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts << box->itemText(i);
    return texts;
}

QList<QCheckBox*> checkBoxes(EditorFixture& fixture)
{
    return fixture.child<QWidget>("m_editionFrame")->findChildren<QCheckBox*>();
}

/// Each box by its text, in brackets if it is checked.
QString boxes(EditorFixture& fixture)
{
    QStringList texts;
    for (const QCheckBox* box : checkBoxes(fixture))
        texts << (box->isChecked() ? QStringLiteral("[%1]").arg(box->text()) : box->text());
    return texts.join(u' ');
}

void click(EditorFixture& fixture, int index)
{
    QCheckBox* const box = checkBoxes(fixture)[index];
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EditorFixture::settle();
}

} // namespace

class TestChoiceEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void theListIsThatOfTheField()
    {
        EditorFixture fixture;
        fixture.node().SFEnum.setEnums({ { "NONE", 0 }, { umlaut, 7 }, { "none", 2 } });
        fixture.node().SFEnum.setValue(0);
        fixture.otherNode().SFEnum.setEnums({});
        fixture.select(fixture.field("SFEnum"));
        QCOMPARE(entries(fixture),
            QStringList(
                { QStringLiteral("NONE"), QStringLiteral("\u00DC"), QStringLiteral("none") }));
        // No entry at all is nothing to stumble over.
        fixture.otherNode().SFEnum.setValue(5);
        fixture.select(fixture.otherField("SFEnum"));
        QCOMPARE(entries(fixture), QStringList());
        QTest::keyClick(fixture.child<QComboBox>("comboBox"), Qt::Key_Down);
        QTest::mouseClick(fixture.child<QComboBox>("comboBox"), Qt::LeftButton);
        QTest::keyClick(fixture.child<QComboBox>("comboBox"), Qt::Key_Escape);
        EditorFixture::settle();
        QCOMPARE(fixture.otherNode().SFEnum.getValue(), 5);

        fixture.select(fixture.field("SFEnum"));
        QCOMPARE(entries(fixture).size(), 3);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void choosing()
    {
        EditorFixture fixture;
        KnSFEnum& field = fixture.node().SFEnum;
        field.setEnums({ { "NONE", 0 }, { umlaut, 7 }, { "none", 2 } });
        field.setValue(2);
        fixture.select(&field);
        auto* const box = fixture.child<QComboBox>("comboBox");
        QCOMPARE(box->currentIndex(), 2);
        QTest::keyClick(box, Qt::Key_Up);
        EditorFixture::settle();
        QCOMPARE(field.getValue(), 7);
        QCOMPARE(fixture.undoStack().count(), 1);
        // Choosing the present entry again is a choice, too.
        Q_EMIT box->activated(box->currentIndex());
        EditorFixture::settle();
        QCOMPARE(field.getValue(), 7);
        QCOMPARE(fixture.undoStack().count(), 2);
        fixture.undo();
        fixture.undo();
        QCOMPARE(field.getValue(), 2);
        QCOMPARE(box->currentIndex(), 2);
    }

    void anUnknownValueIsShownUntilTheNextAttachment()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFEnum"));
        EditorFixture::write(fixture.field("SFEnum"), "99");
        auto* const box = fixture.child<QComboBox>("comboBox");
        QCOMPARE(box->currentText(), QStringLiteral("99"));
        QCOMPARE(entries(fixture).size(), 3);
        QCOMPARE(fixture.node().SFEnum.getValue(), 99);
        EditorFixture::write(fixture.field("SFEnum"), "FIRST");
        QCOMPARE(box->currentText(), QStringLiteral("FIRST"));
        fixture.select(nullptr);
        fixture.select(fixture.field("SFEnum"));
        QCOMPARE(entries(fixture).first(), QStringLiteral("FIRST"));
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void theBoxesAreThoseOfTheField()
    {
        EditorFixture fixture;
        // The node's own names: one of value 0, which has no box, and one of two bits.
        fixture.node().SFBitMask = 4;
        fixture.select(fixture.field("SFBitMask"));
        QCOMPARE(boxes(fixture), QStringLiteral("A B [C]"));
        // Both bits of the name are written with the click on another box.
        click(fixture, 0);
        QCOMPARE(fixture.node().SFBitMask.getValue(), 1 | 12);

        fixture.otherNode().SFBitMask.setEnums({ { umlaut, 1 << 30 } });
        fixture.select(fixture.otherField("SFBitMask"));
        QCOMPARE(boxes(fixture), QStringLiteral("\u00DC"));
        click(fixture, 0);
        QCOMPARE(fixture.otherNode().SFBitMask.getValue(), 1 << 30);
        click(fixture, 0);
        QCOMPARE(fixture.otherNode().SFBitMask.getValue(), 0);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void noNameAtAllHasNoBoxes()
    {
        EditorFixture fixture;
        fixture.otherNode().SFBitMask.setEnums({ { "NOTHING", 0 } });
        fixture.otherNode().SFBitMask = 3;
        for (int i = 0; i < 2; ++i) {
            fixture.select(fixture.otherField("SFBitMask"));
            QCOMPARE(boxes(fixture), QString());
            fixture.select(nullptr);
        }
        QCOMPARE(fixture.otherNode().SFBitMask.getValue(), 3);
        fixture.select(fixture.field("SFBitMask"));
        QCOMPARE(boxes(fixture), QStringLiteral("A B C"));
        QVERIFY(checkBoxes(fixture).first()->isVisible());
    }

    void theFirstClickClearsBitsWithoutAName()
    {
        EditorFixture fixture;
        fixture.node().SFBitMask = 0x4001;
        fixture.select(fixture.field("SFBitMask"));
        QCOMPARE(boxes(fixture), QStringLiteral("[A] B C"));
        QCOMPARE(fixture.node().SFBitMask.getValue(), 0x4001);
        click(fixture, 1);
        QCOMPARE(fixture.node().SFBitMask.getValue(), 3);
    }

    void theBoxesStandTogetherInATallDock()
    {
        EditorFixture fixture;
        fixture.shell().window().resize(600, 600);
        fixture.select(fixture.field("SFBitMask"));
        const QList<QCheckBox*> all = checkBoxes(fixture);
        QVERIFY(all.last()->geometry().bottom() - all.first()->y() < 3 * 40);
    }
};

QTEST_MAIN(TestChoiceEditors)
#include "test_choice_editors.moc"
