// SPDX-License-Identifier: BSD-3-Clause

// What an array of up to a million rows costs in its editor, against four tables of Qt's own in the
// same run: one that is only told the row count, which is the least that any table widget can cost,
// one over a hand-made model, one that is filled with items, and the first one again with a text in
// each visible cell.
//
// Usage: bench_arrays [repeats]

#include "ArrayContenders.h"
#include "Timing.h"

#include <QApplication>
#include <QTableView>

#include <cstdio>

namespace {

constexpr int rowCounts[] = { 1'000, 100'000, 1'000'000 };
int repeats = 9;

/// Median of the times that `run` takes up to the last pixel, in milliseconds; `prepare` isn't
/// timed.
double medianOf(const ArrayContender& table, const Work& prepare, const Work& run)
{
    std::vector<double> times;
    for (int i = 0; i < repeats; ++i) {
        prepare();
        table.paint();
        times.push_back(milliseconds([&] {
            run();
            table.paint();
        }));
    }
    return median(std::move(times));
}

void show(ArrayContender& table, int rows)
{
    table.prepare(rows);
    table.select();
}

struct Measurement {
    const char* name;
    double (*measure)(ArrayContender& table, int rows);
};

constexpr Measurement measurements[] = {
    { "select, from 3 rows",
        [](ArrayContender& table, int rows) {
            const auto prepare = [&] {
                show(table, 3);
                table.prepare(rows);
            };
            return medianOf(table, prepare, [&] { table.select(); });
        } },
    { "select, from as many rows",
        [](ArrayContender& table, int rows) {
            return medianOf(
                table, [&] { table.prepare(rows); }, [&] { table.select(); });
        } },
    { "refresh after a change",
        [](ArrayContender& table, int) {
            return medianOf(
                table, [] {}, [&] { table.refresh(); });
        } },
    { "jump",
        [](ArrayContender& table, int rows) {
            return medianOf(
                table, [&] { table.jump(0); }, [&] { table.jump(rows / 2); });
        } },
    { "edit one cell",
        [](ArrayContender& table, int rows) {
            return medianOf(
                table, [] {}, [&] { table.edit(rows / 2); });
        } },
    { "edit one cell and undo",
        [](ArrayContender& table, int rows) {
            const auto editAndUndo = [&] {
                table.edit(rows / 2);
                table.paint();
                table.undo();
            };
            return medianOf(
                table, [] {}, editAndUndo);
        } },
    { "add in front",
        [](ArrayContender& table, int) {
            return medianOf(
                table, [&] { table.jump(0); }, [&] { table.add(); });
        } },
    { "delete in front",
        [](ArrayContender& table, int) {
            return medianOf(
                table, [&] { table.jump(0); }, [&] { table.remove(); });
        } },
    { "add at the end",
        [](ArrayContender& table, int rows) {
            return medianOf(
                table, [&] { table.jump(rows - 1); }, [&] { table.add(); });
        } },
    { "delete at the end",
        [](ArrayContender& table, int rows) {
            return medianOf(
                table, [&] { table.jump(rows - 1); }, [&] { table.remove(); });
        } },
};

using Contenders = std::vector<std::unique_ptr<ArrayContender>>;

void printTimes(const Contenders& tables, int rows)
{
    std::printf("\n%d rows: milliseconds, and in brackets how many times the bare table's\n%-26s",
        rows, "");
    for (const auto& table : tables)
        std::printf("%20s", table->name());
    std::printf("\n");
    for (const Measurement& measurement : measurements) {
        std::printf("%-26s", measurement.name);
        double first = 0;
        for (const auto& table : tables) {
            const double time = measurement.measure(*table, rows);
            first = first == 0 ? time : first;
            std::printf("%11.3f (%6.2f)", time, time / first);
            std::fflush(stdout);
        }
        std::printf("\n");
    }
}

void printMemory(const Contenders& tables, int rows)
{
    std::printf("\nbytes a row, beyond the values, at %d rows\n", rows);
    for (const auto& table : tables) {
        table->show();
        show(*table, 3);
        table->paint();
        table->prepare(rows);
        const double before = heapInUse();
        table->select();
        table->paint();
        std::printf("%-26s%8.1f\n", table->name(), (heapInUse() - before) / rows);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    repeats = numberArgument(argc, argv, 1, repeats);
    std::printf("Qt %s\n", qVersion());
    for (const auto make : { &makeContenders, &makeEditors }) {
        {
            const Contenders tables = make();
            for (const auto& table : tables)
                table->show();
            for (const int rows : rowCounts)
                printTimes(tables, rows);
        }
        printMemory(make(), rowCounts[2]);
    }
    return 0;
}
