// SPDX-License-Identifier: BSD-3-Clause
// What it costs to have an edit of a cell as a step, in arrays of 1,000 to 1,000,000 rows: the
// write without a command as an editor makes it, the step, its undo and its redo. The rival is the
// write alone, with nobody recording.
#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "KnMFields.h"
#include "KnText.h"
#include "RatioReporter.h"

#include <QApplication>
#include <QUndoStack>

namespace {

KnMFFloat& widths()
{
    static const KnNodePtr node(new KnText);
    return static_cast<KnText*>(node.get())->width;
}

const KbString texts[] = { KbString("0.25"), KbString("0.75") };

template <int Rows>
void writtenCell(benchmark::State& state)
{
    KnMFFloat& array = widths();
    array.setNum(Rows);
    int turn = 0;
    for (auto _ : state)
        array.set1(Rows / 2, texts[++turn % 2]);
}

template <int Rows>
void cellAsStep(benchmark::State& state)
{
    KnMFFloat& array = widths();
    array.setNum(Rows);
    CrvServices* const services = CrvServices::getInstance();
    services->selectField(&array);
    CrvUndoSteps& steps = *services->getUndoSteps();
    steps.setGrouping(CrvUndoSteps::Grouping::Gestures);
    array.set1(Rows / 2, texts[0]);
    int turn = 0;
    for (auto _ : state) {
        steps.beginGesture();
        steps.beginInput();
        array.set1(Rows / 2, texts[++turn % 2]);
        steps.endGesture();
        if (steps.stack()->index() != 1)
            state.SkipWithError("the edit made no step");
        steps.stack()->undo();
        steps.stack()->redo();
        steps.stack()->clear();
    }
    steps.setGrouping(CrvUndoSteps::Grouping::EachCommand);
    services->selectNode(nullptr);
}

BENCHMARK(writtenCell<1'000>)->Name("written1000");
BENCHMARK(writtenCell<1'000'000>)->Name("written1000000");
BENCHMARK(cellAsStep<1'000>)->Name("step1000");
BENCHMARK(cellAsStep<100'000>)->Name("step100000");
BENCHMARK(cellAsStep<1'000'000>)->Name("step1000000");

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatio(
        "A step in 1,000,000 rows, times one in 1,000 rows", "step1000000", "step1000");
    reporter.printRatio(
        "A step with undo and redo, times the bare write", "step1000", "written1000");
    return 0;
}
