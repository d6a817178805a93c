// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFAddRowsCommand.h"
#include "CrvMFDeleteRowsCommand.h"
#include "CrvMFSetFieldValueCommand.h"
#include "CrvMFSetValueCommand.h"
#include "CrvMFSwapRowsCommand.h"
#include "CrvStrings.h"
#include "KnMFields.h"

#include <QRandomGenerator>
#include <QTest>

#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace {

using Command = std::unique_ptr<CrvCommand>;
using MakeCommand = std::function<Command(KnMField*)>;

template <class Class>
MakeCommand make(int first, int second)
{
    return [=](KnMField* field) { return std::make_unique<Class>(field, first, second); };
}

QString textOf(const KnField& field)
{
    KbString text;
    field.get(text);
    return toQString(text);
}

QByteArray bitsOf(const KnMFDouble& field)
{
    return QByteArray(reinterpret_cast<const char*>(field.getValues()),
        field.getNum() * static_cast<qsizetype>(sizeof(double)));
}

/// One random edit of rows, executed.
Command randomEdit(KnMFDouble& field, QRandomGenerator& random)
{
    const int count = field.getNum();
    const int row = random.bounded(count + 1);
    Command command = make<CrvMFAddRowsCommand>(row, 1 + random.bounded(3))(&field);
    const int kind = row < count ? random.bounded(4) : 0;
    if (kind == 1)
        command = make<CrvMFDeleteRowsCommand>(row, qMin(count - row, 4))(&field);
    if (kind == 2)
        command = make<CrvMFSwapRowsCommand>(row, random.bounded(count))(&field);
    if (kind == 3) {
        command = std::make_unique<CrvMFSetFieldValueCommand>(&field, row);
        field.set1Value(row, random.generateDouble() * 1e9);
    }
    command->execute();
    return command;
}

} // namespace

class TestRowCommands : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void setValueTakesTheOldText_data()
    {
        QTest::addColumn<KbString>("oldValue");
        QTest::addColumn<QString>("afterUndo");
        QTest::newRow("null reads the row") << KbString() << "[ 1, 2, 3 ]";
        QTest::newRow("empty reads the row") << KbString("") << "[ 1, 2, 3 ]";
        QTest::newRow("another text is used up") << KbString("7") << "[ 1, 7, 3 ]";
    }

    void setValueTakesTheOldText()
    {
        QFETCH(KbString, oldValue);
        QFETCH(QString, afterUndo);
        KnMFInt32 field;
        field.set("[ 1, 2, 3 ]");
        CrvMFSetValueCommand command(&field, 1, oldValue);
        field.set1Value(1, 9);
        command.execute();
        command.undo();
        QCOMPARE(textOf(field), afterUndo);
        QVERIFY(!(oldValue == KbString("7")));
        command.redo();
        QCOMPARE(textOf(field), QStringLiteral("[ 1, 9, 3 ]"));
    }

    void rowsGoAndComeBack_data()
    {
        QTest::addColumn<MakeCommand>("makeCommand");
        QTest::addColumn<QString>("after");
        const auto row = [](const char* name, const MakeCommand& command, const char* after) {
            QTest::newRow(name) << command << after;
        };
        row("added behind", make<CrvMFAddRowsCommand>(3, 1), "[ \"a\", \"c\\n\\\"\", \"\", \"\" ]");
        row("added above", make<CrvMFAddRowsCommand>(0, 2),
            "[ \"\", \"\", \"a\", \"c\\n\\\"\", \"\" ]");
        row("first deleted", make<CrvMFDeleteRowsCommand>(0, 1), "[ \"c\\n\\\"\", \"\" ]");
        row("last deleted", make<CrvMFDeleteRowsCommand>(1, 2), "[ \"a\" ]");
        row("all deleted", make<CrvMFDeleteRowsCommand>(0, 3), "[]");
        row("swapped", make<CrvMFSwapRowsCommand>(0, 1), "[ \"c\\n\\\"\", \"a\", \"\" ]");
        row("swapped with itself", make<CrvMFSwapRowsCommand>(1, 1),
            "[ \"a\", \"c\\n\\\"\", \"\" ]");
    }

    void rowsGoAndComeBack()
    {
        QFETCH(MakeCommand, makeCommand);
        QFETCH(QString, after);
        KnMFString field;
        const QString before = QStringLiteral("[ \"a\", \"c\\n\\\"\", \"\" ]");
        field.set(before.toLatin1());
        const Command command = makeCommand(&field);
        command->execute();
        for (int pass = 0; pass < 2; ++pass) {
            QCOMPARE(textOf(field), after);
            command->undo();
            QCOMPARE(textOf(field), before);
            command->redo();
        }
    }

    void randomEditsGoBackAndForthBitForBit()
    {
        QRandomGenerator random(20240229);
        KnMFDouble field;
        const double odd[] = { -0.0, 0.1, std::numeric_limits<double>::denorm_min(), 1e300,
            std::numeric_limits<double>::infinity() };
        field.setValues(0, 5, odd);
        const QByteArray start = bitsOf(field);
        std::vector<Command> commands;
        for (int i = 0; i < 400; ++i)
            commands.push_back(randomEdit(field, random));
        const QByteArray end = bitsOf(field);
        for (int pass = 0; pass < 2; ++pass) {
            for (auto command = commands.rbegin(); command != commands.rend(); ++command)
                (*command)->undo();
            QVERIFY(bitsOf(field) == start);
            for (const Command& command : commands)
                command->redo();
            QVERIFY(bitsOf(field) == end);
        }
    }
};

QTEST_APPLESS_MAIN(TestRowCommands)
#include "test_row_commands.moc"
