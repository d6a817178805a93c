// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QUndoStack>

namespace {

/// Ü in UTF-8.
constexpr char umlaut[] = "\xC3\x9C";

QString entries(const QComboBox* box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts << box->itemText(i);
    return texts.join(u' ');
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
        KnSFEnum& field = fixture.node().SFEnum;
        KnSFEnum& bare = fixture.otherNode().SFEnum;
        field.setEnums({ { "NONE", 0 }, { umlaut, 7 }, { "none", 2 } });
        field.setValue(2);
        bare.setEnums({});
        bare.setValue(5);
        fixture.select(&field);
        auto* const box = fixture.child<QComboBox>("comboBox");
        QCOMPARE(entries(box), QStringLiteral("NONE \u00DC none"));
        QCOMPARE(box->currentIndex(), 2);
        QTest::keyClick(box, Qt::Key_Up);
        EditorFixture::settle();
        QCOMPARE(field.getValue(), 7);
        // Choosing the present entry again is a choice, too.
        Q_EMIT box->activated(box->currentIndex());
        QCOMPARE(fixture.undoStack().count(), 2);

        // No entry at all is nothing to stumble over.
        fixture.select(&bare);
        QCOMPARE(entries(box), QString());
        QTest::keyClick(box, Qt::Key_Down);
        EditorFixture::settle();
        QCOMPARE(bare.getValue(), 5);
        QCOMPARE(fixture.undoStack().count(), 2);
    }

    void anUnknownValueIsShownUntilTheNextAttachment()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFEnum");
        fixture.select(field);
        const auto* const box = fixture.child<QComboBox>("comboBox");
        const QString known = entries(box);
        EditorFixture::write(field, "99");
        QCOMPARE(box->currentText(), QStringLiteral("99"));
        QCOMPARE(fixture.node().SFEnum.getValue(), 99);
        EditorFixture::write(field, "FIRST");
        QCOMPARE(box->currentText(), QStringLiteral("FIRST"));
        const int width = box->sizeHint().width();
        fixture.otherNode().SFEnum.setEnums({ { "A_NAME_THAT_NEEDS_MUCH_MORE_ROOM", 1 } });
        fixture.select(fixture.otherField("SFEnum"));
        QVERIFY(box->sizeHint().width() > 2 * width);
        fixture.select(field);
        QCOMPARE(entries(box), known);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void theBoxesAreThoseOfTheField()
    {
        EditorFixture fixture;
        KnSFBitMask& mask = fixture.node().SFBitMask;
        KnSFBitMask& other = fixture.otherNode().SFBitMask;
        other.setEnums({ { umlaut, 1 << 30 } });
        // A name of value 0 has no box, one of two bits is checked by either of them, and both are
        // written with the click on another box. A bit without a name is cleared by it.
        mask = 4 | 0x4000;
        fixture.shell().window().resize(600, 600);
        fixture.select(&mask);
        QCOMPARE(boxes(fixture), QStringLiteral("A B [C]"));
        QCOMPARE(mask.getValue(), 4 | 0x4000);
        QVERIFY(checkBoxes(fixture).last()->y() - checkBoxes(fixture).first()->y() < 80);
        click(fixture, 0);
        QCOMPARE(mask.getValue(), 1 | 12);

        fixture.select(&other);
        QCOMPARE(boxes(fixture), QStringLiteral("\u00DC"));
        click(fixture, 0);
        QCOMPARE(other.getValue(), 1 << 30);
        click(fixture, 0);
        QCOMPARE(other.getValue(), 0);
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
};

QTEST_MAIN(TestChoiceEditors)
#include "test_choice_editors.moc"
