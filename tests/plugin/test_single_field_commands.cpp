// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldIgnoredCommand.h"
#include "CrvFieldSetDefaultCommand.h"
#include "CrvSFSetValueCommand.h"
#include "KnSFields.h"

#include <QTest>

namespace {

KbString textOf(const KnField& field)
{
    KbString text;
    field.get(text);
    return text;
}

} // namespace

class TestSingleFieldCommands : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void setValueTakesTheOldText_data()
    {
        QTest::addColumn<bool>("isNull");
        QTest::addColumn<QString>("saved");
        QTest::addColumn<int>("afterUndo");
        QTest::newRow("null reads the field") << true << QString() << 1;
        QTest::newRow("empty reads the field") << false << QString() << 1;
        QTest::newRow("saved text is used up") << false << QStringLiteral("7") << 7;
    }
    void setValueTakesTheOldText()
    {
        QFETCH(bool, isNull);
        QFETCH(QString, saved);
        QFETCH(int, afterUndo);
        KnSFInt32 field;
        field.setValue(1);
        KbString oldValue;
        if (!isNull)
            oldValue = KbString(saved.toStdString());
        CrvSFSetValueCommand first(&field, oldValue);
        if (!saved.isEmpty())
            QVERIFY(oldValue.isNull());
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

    void ignoredSetsTheOppositeWhateverTheFlagIs()
    {
        KnSFBool field;
        CrvFieldIgnoredCommand command(&field, true);
        command.execute();
        QCOMPARE(field.isIgnored(), 1);
        field.setIgnored(0);
        command.undo();
        QCOMPARE(field.isIgnored(), 0);
        command.redo();
        QCOMPARE(field.isIgnored(), 1);
    }

    void setDefaultOutlivesTheDefaultField()
    {
        KnSFString field;
        field.setValue(KbString("mine"));
        auto fresh = std::make_unique<KnSFString>();
        fresh->setValue(KbString("theirs"));
        CrvFieldSetDefaultCommand command(&field, fresh.get());
        fresh.reset();
        command.execute();
        QCOMPARE(textOf(field).toUtf8(), std::string("\"theirs\""));
        command.undo();
        QCOMPARE(textOf(field).toUtf8(), std::string("\"mine\""));
        command.redo();
        QCOMPARE(textOf(field).toUtf8(), std::string("\"theirs\""));
    }
};

QTEST_APPLESS_MAIN(TestSingleFieldCommands)
#include "test_single_field_commands.moc"
