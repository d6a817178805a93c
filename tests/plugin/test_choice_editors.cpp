// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>

namespace {

/// Ü in UTF-8.
constexpr char umlaut[] = "\xC3\x9C";

} // namespace

class TestChoiceEditors : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void theListIsThatOfTheField()
    {
        KnSFEnum& field = node().SFEnum;
        field.setEnums({ { "NONE", 0 }, { umlaut, 7 }, { "none", 2 } });
        field.setValue(2);
        select(&field);
        auto* const box = child<QComboBox>("comboBox");
        QCOMPARE(entries(), QStringLiteral("NONE \u00DC none"));
        QCOMPARE(box->currentIndex(), 2);
        QTest::keyClick(box, Qt::Key_Up);
        settle();
        QCOMPARE(field.getValue(), 7);
        // Choosing the present entry again is a choice, too.
        QTest::keyClick(box, Qt::Key_F4);
        QTest::keyClick(box->view(), Qt::Key_Return);
        settle();
        QCOMPARE(commands(), 2);
    }

    void anUnknownValueIsShownUntilTheNextAttachment()
    {
        KnField* const field = this->field("SFEnum");
        select(field);
        const QString known = entries();
        write(field, "99");
        auto* const box = child<QComboBox>("comboBox");
        QCOMPARE(box->currentText(), QStringLiteral("99"));
        QCOMPARE(commands(), 0);
        // It can't be chosen.
        write(field, "SECOND");
        QTest::keyClick(box, Qt::Key_Up);
        settle();
        QCOMPARE(box->currentText(), QStringLiteral("SECOND"));
        select(otherField("SFEnum"));
        QCOMPARE(entries(), known);
    }

    void theBoxesAreThoseOfTheField()
    {
        KnSFBitMask& mask = node().SFBitMask;
        KnSFBitMask& other = otherNode().SFBitMask;
        // A name of value 0 has no box, one of two bits is checked by either of them, and both are
        // written with the click on another box. A bit without a name is cleared by it.
        mask = 4 | 0x4000;
        select(&mask);
        QCOMPARE(boxes(), QStringLiteral("A B [C]"));
        QCOMPARE(mask.getValue(), 4 | 0x4000);
        clickFirst();
        QCOMPARE(mask.getValue(), 1 | 12);

        other.setEnums({ { umlaut, 1 << 30 } });
        select(&other);
        QCOMPARE(boxes(), QStringLiteral("\u00DC"));
        clickFirst();
        QCOMPARE(other.getValue(), 1 << 30);
        select(&mask);
        QCOMPARE(boxes(), QStringLiteral("[A] B [C]"));
        QVERIFY(child<QCheckBox>("m_checkBoxes")->isVisible());

        other.setEnums({ { "ONE", 2 }, { "BOTH", 3 } });
        other = 1;
        select(&other);
        clickFirst();
        QCOMPARE(other.getValue(), 3);
        QCOMPARE(commands(), 0);
    }

private:
    QString entries()
    {
        const auto* const box = child<QComboBox>("comboBox");
        QStringList texts;
        for (int i = 0; i < box->count(); ++i)
            texts << box->itemText(i);
        return texts.join(u' ');
    }
    /// Each box by its text, in brackets if it is checked.
    QString boxes()
    {
        QStringList texts;
        for (const QCheckBox* box : editor()->getFrame()->findChildren<QCheckBox*>())
            texts << (box->isChecked() ? QStringLiteral("[%1]").arg(box->text()) : box->text());
        return texts.join(u' ');
    }
    void clickFirst()
    {
        auto* const box = child<QCheckBox>("m_checkBoxes");
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        settle();
    }
};

QTEST_MAIN(TestChoiceEditors)
#include "test_choice_editors.moc"
