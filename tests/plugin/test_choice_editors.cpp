// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QUndoStack>

namespace {

/// Ü in UTF-8.
constexpr char umlaut[] = "\xC3\x9C";

QString entries(EditorFixture& fixture)
{
    const auto* const box = fixture.child<QComboBox>("comboBox");
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts << box->itemText(i);
    return texts.join(u' ');
}

/// Each box by its text, in brackets if it is checked.
QString boxes(EditorFixture& fixture)
{
    QStringList texts;
    for (const QCheckBox* box : fixture.editor()->getFrame()->findChildren<QCheckBox*>())
        texts << (box->isChecked() ? QStringLiteral("[%1]").arg(box->text()) : box->text());
    return texts.join(u' ');
}

void clickFirst(EditorFixture& fixture)
{
    auto* const box = fixture.child<QCheckBox>("m_checkBoxes");
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
        field.setEnums({ { "NONE", 0 }, { umlaut, 7 }, { "none", 2 } });
        field.setValue(2);
        fixture.select(&field);
        auto* const box = fixture.child<QComboBox>("comboBox");
        QCOMPARE(entries(fixture), QStringLiteral("NONE \u00DC none"));
        QCOMPARE(box->currentIndex(), 2);
        QTest::keyClick(box, Qt::Key_Up);
        EditorFixture::settle();
        QCOMPARE(field.getValue(), 7);
        // Choosing the present entry again is a choice, too.
        QTest::keyClick(box, Qt::Key_F4);
        QTest::keyClick(box->view(), Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(fixture.undoStack().count(), 2);
    }

    void anUnknownValueIsShownUntilTheNextAttachment()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFEnum");
        fixture.select(field);
        const QString known = entries(fixture);
        EditorFixture::write(field, "99");
        QCOMPARE(fixture.child<QComboBox>("comboBox")->currentText(), QStringLiteral("99"));
        fixture.select(fixture.otherField("SFEnum"));
        QCOMPARE(entries(fixture), known);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void theBoxesAreThoseOfTheField()
    {
        EditorFixture fixture;
        KnSFBitMask& mask = fixture.node().SFBitMask;
        KnSFBitMask& other = fixture.otherNode().SFBitMask;
        // A name of value 0 has no box, one of two bits is checked by either of them, and both are
        // written with the click on another box. A bit without a name is cleared by it.
        mask = 4 | 0x4000;
        fixture.select(&mask);
        QCOMPARE(boxes(fixture), QStringLiteral("A B [C]"));
        QCOMPARE(mask.getValue(), 4 | 0x4000);
        clickFirst(fixture);
        QCOMPARE(mask.getValue(), 1 | 12);

        other.setEnums({ { umlaut, 1 << 30 } });
        fixture.select(&other);
        QCOMPARE(boxes(fixture), QStringLiteral("\u00DC"));
        clickFirst(fixture);
        QCOMPARE(other.getValue(), 1 << 30);
        fixture.select(&mask);
        QCOMPARE(boxes(fixture), QStringLiteral("[A] B [C]"));
        QVERIFY(fixture.child<QCheckBox>("m_checkBoxes")->isVisible());

        other.setEnums({ { "ONE", 2 }, { "BOTH", 3 } });
        other = 1;
        fixture.select(&other);
        clickFirst(fixture);
        QCOMPARE(other.getValue(), 3);
        QCOMPARE(fixture.undoStack().count(), 0);
    }
};

QTEST_MAIN(TestChoiceEditors)
#include "test_choice_editors.moc"
