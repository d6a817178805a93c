// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFAddRowsCommand.h"
#include "CrvMFDeleteRowsCommand.h"
#include "CrvMFSetFieldValueCommand.h"
#include "CrvMFSetValueCommand.h"
#include "CrvMFSwapRowsCommand.h"
#include "KnMFields.h"
#include "StringConversion.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

QString textOf(const KnField& field)
{
    KbString text;
    field.get(text);
    return toQString(text);
}

std::vector<unsigned char> bitsOf(const KnMFDouble& field)
{
    std::vector<unsigned char> bits(static_cast<std::size_t>(field.getNum()) * sizeof(double));
    std::memcpy(bits.data(), field.getValues(), bits.size());
    return bits;
}

/// One random edit of rows, executed.
std::unique_ptr<CrvCommand> randomEdit(KnMFDouble& field, QRandomGenerator& random)
{
    const int count = field.getNum();
    std::unique_ptr<CrvCommand> command;
    switch (count == 0 ? 0 : random.bounded(4)) {
    case 0:
        command = std::make_unique<CrvMFAddRowsCommand>(
            &field, random.bounded(count + 1), 1 + random.bounded(3));
        break;
    case 1: {
        const int first = random.bounded(count);
        command = std::make_unique<CrvMFDeleteRowsCommand>(
            &field, first, 1 + random.bounded(qMin(count - first, 4)));
        break;
    }
    case 2:
        command = std::make_unique<CrvMFSwapRowsCommand>(
            &field, random.bounded(count), random.bounded(count));
        break;
    default: {
        const int row = random.bounded(count);
        command = std::make_unique<CrvMFSetFieldValueCommand>(&field, row);
        field.set1Value(row, random.generateDouble() * 1e9);
        break;
    }
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
        QTest::addColumn<QString>("saved");
        QTest::addColumn<QString>("afterUndo");
        QTest::newRow("null reads the row") << QString() << QStringLiteral("[ 1, 2, 3 ]");
        QTest::newRow("empty reads the row") << QStringLiteral("") << QStringLiteral("[ 1, 2, 3 ]");
        QTest::newRow("a text is used up") << QStringLiteral("7") << QStringLiteral("[ 1, 7, 3 ]");
    }
    void setValueTakesTheOldText()
    {
        QFETCH(QString, saved);
        QFETCH(QString, afterUndo);
        KnMFInt32 field;
        field.set("[ 1, 2, 3 ]");
        KbString oldValue;
        if (!saved.isNull())
            oldValue = toKbString(saved);
        CrvMFSetValueCommand command(&field, 1, oldValue);
        QCOMPARE(oldValue.isNull(), saved.isNull() || !saved.isEmpty());
        field.set1Value(1, 9);
        command.execute();
        command.undo();
        QCOMPARE(textOf(field), afterUndo);
        command.redo();
        QCOMPARE(textOf(field), QStringLiteral("[ 1, 9, 3 ]"));
    }

    void addGivesDefaultRowsAndTakesThemAway()
    {
        KnMFString field;
        field.set("[ \"a\", \"b\" ]");
        CrvMFAddRowsCommand command(&field, 2, 2);
        command.execute();
        const QString longer = QStringLiteral("[ \"a\", \"b\", \"\", \"\" ]");
        QCOMPARE(textOf(field), longer);
        // A redo gives the default text again, whatever the row held when it was undone.
        field.set1Value(2, KbString("changed"));
        command.undo();
        QCOMPARE(textOf(field), QStringLiteral("[ \"a\", \"b\" ]"));
        command.redo();
        QCOMPARE(textOf(field), longer);
    }

    void deleteBringsEveryRowBackToItsPlace_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("shorter");
        QTest::newRow("one in front") << 0 << 1 << QStringLiteral("[ \"b\", \"c d\", \"e\" ]");
        QTest::newRow("the last two") << 2 << 2 << QStringLiteral("[ \"a\", \"b\" ]");
        QTest::newRow("all") << 0 << 4 << QStringLiteral("[]");
    }
    void deleteBringsEveryRowBackToItsPlace()
    {
        QFETCH(int, first);
        QFETCH(int, count);
        QFETCH(QString, shorter);
        KnMFString field;
        field.set("[ \"a\", \"b\", \"c d\", \"e\" ]");
        const QString before = textOf(field);
        CrvMFDeleteRowsCommand command(&field, first, count);
        for (int pass = 0; pass < 2; ++pass) {
            pass == 0 ? command.execute() : command.redo();
            QCOMPARE(textOf(field), shorter);
            command.undo();
            QCOMPARE(textOf(field), before);
        }
    }

    void swapIsItsOwnInverse()
    {
        KnMFString field;
        field.set("[ \"a \\\" b\", \"\", \"c\" ]");
        const QString before = textOf(field);
        CrvMFSwapRowsCommand same(&field, 1, 1);
        same.execute();
        QCOMPARE(textOf(field), before);
        CrvMFSwapRowsCommand command(&field, 0, 2);
        command.execute();
        QCOMPARE(textOf(field), QStringLiteral("[ \"c\", \"\", \"a \\\" b\" ]"));
        command.undo();
        QCOMPARE(textOf(field), before);
        command.redo();
        command.redo();
        QCOMPARE(textOf(field), before);
    }

    void randomEditsGoBackAndForthBitForBit()
    {
        QRandomGenerator random(20240229);
        KnMFDouble field;
        const double odd[] = { -0.0, 0.1, std::numeric_limits<double>::denorm_min(), 1e300,
            std::numeric_limits<double>::infinity() };
        field.setValues(0, 5, odd);
        const auto start = bitsOf(field);

        std::vector<std::unique_ptr<CrvCommand>> commands;
        for (int i = 0; i < 400; ++i)
            commands.push_back(randomEdit(field, random));
        const auto end = bitsOf(field);
        QVERIFY(start != end);
        for (int pass = 0; pass < 2; ++pass) {
            for (auto command = commands.rbegin(); command != commands.rend(); ++command)
                (*command)->undo();
            QVERIFY(bitsOf(field) == start);
            for (const auto& command : commands)
                command->redo();
            QVERIFY(bitsOf(field) == end);
        }
    }
};

QTEST_APPLESS_MAIN(TestRowCommands)
#include "test_row_commands.moc"
