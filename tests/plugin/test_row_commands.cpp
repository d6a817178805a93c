// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFAddRowsCommand.h"
#include "CrvMFDeleteRowsCommand.h"
#include "CrvMFSetValueCommand.h"
#include "CrvMFSwapRowsCommand.h"
#include "CrvStrings.h"
#include "KnMFields.h"

#include <QTest>

namespace {

QString textOf(const KnField& field)
{
    KbString text;
    field.get(text);
    return toQString(text);
}

} // namespace

class TestRowCommands : public QObject {
    Q_OBJECT
    using Make = std::unique_ptr<CrvCommand> (*)(KnMField* field);

private Q_SLOTS:
    void setValueTakesTheOldText()
    {
        KnMFInt32 field;
        field.set("[ 1, 2, 3 ]");
        KbString oldValue("7");
        CrvMFSetValueCommand command(&field, 1, oldValue);
        field.set1Value(1, 9);
        command.execute();
        command.undo();
        QCOMPARE(textOf(field), QStringLiteral("[ 1, 7, 3 ]"));
        command.redo();
        QCOMPARE(textOf(field), QStringLiteral("[ 1, 9, 3 ]"));
    }

    void rowsGoAndComeBack_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("after");
        row<CrvMFAddRowsCommand, 3, 1>("added behind", "[ -0, 0.1, 5e-324, 0 ]");
        row<CrvMFAddRowsCommand, 0, 2>("added above", "[ 0, 0, -0, 0.1, 5e-324 ]");
        row<CrvMFDeleteRowsCommand, 0, 1>("first deleted", "[ 0.1, 5e-324 ]");
        row<CrvMFDeleteRowsCommand, 1, 2>("last deleted", "[ -0 ]");
        row<CrvMFDeleteRowsCommand, 0, 3>("all deleted", "[]");
        row<CrvMFSwapRowsCommand, 0, 2>("swapped", "[ 5e-324, 0.1, -0 ]");
    }
    void rowsGoAndComeBack()
    {
        QFETCH(Make, make);
        QFETCH(QString, after);
        KnMFDouble field;
        const QString before = QStringLiteral("[ -0, 0.1, 5e-324 ]");
        QVERIFY(field.set(before.toLatin1()));
        const auto command = make(&field);
        command->execute();
        for (int pass = 0; pass < 2; ++pass) {
            QCOMPARE(textOf(field), after);
            command->undo();
            QCOMPARE(textOf(field), before);
            command->redo();
        }
    }

private:
    template <class Command, int first, int second>
    static void row(const char* name, const char* after)
    {
        const Make make = [](KnMField* field) -> std::unique_ptr<CrvCommand> {
            return std::make_unique<Command>(field, first, second);
        };
        QTest::newRow(name) << make << after;
    }
};

QTEST_APPLESS_MAIN(TestRowCommands)
#include "test_row_commands.moc"
