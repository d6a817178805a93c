// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldSetDefaultCommand.h"
#include "CrvSFSetValueCommand.h"
#include "KnSFields.h"

#include <QTest>

class TestSingleFieldCommands : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void setValueTakesTheOldText_data()
    {
        QTest::addColumn<KbString>("oldValue");
        QTest::addColumn<int>("afterUndo");
        QTest::newRow("null reads the field") << KbString() << 1;
        QTest::newRow("empty reads the field") << KbString("") << 1;
        QTest::newRow("saved text is used up") << KbString("7") << 7;
    }
    void setValueTakesTheOldText()
    {
        QFETCH(KbString, oldValue);
        QFETCH(int, afterUndo);
        KnSFInt32 field;
        field.setValue(1);
        CrvSFSetValueCommand first(&field, oldValue);
        field.setValue(2);
        first.execute();
        // A second command of the same source reads the field.
        CrvSFSetValueCommand second(&field, oldValue);
        field.setValue(3);
        second.execute();

        field.setValue(99);
        second.undo();
        QCOMPARE(field.getValue(), 2);
        first.undo();
        QCOMPARE(field.getValue(), afterUndo);
        first.redo();
        QCOMPARE(field.getValue(), 2);
        second.redo();
        QCOMPARE(field.getValue(), 3);
    }

    void setDefaultOutlivesTheDefaultField()
    {
        KnSFInt32 field;
        field.setValue(1);
        auto fresh = std::make_unique<KnSFInt32>();
        fresh->setValue(2);
        CrvFieldSetDefaultCommand command(&field, fresh.get());
        fresh.reset();
        command.execute();
        QCOMPARE(field.getValue(), 2);
        command.undo();
        QCOMPARE(field.getValue(), 1);
        command.redo();
        QCOMPARE(field.getValue(), 2);
    }
};

QTEST_APPLESS_MAIN(TestSingleFieldCommands)
#include "test_single_field_commands.moc"
