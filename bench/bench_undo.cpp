// SPDX-License-Identifier: BSD-3-Clause
// What it costs to have an edit of a cell as a step, in arrays of 1,000 to 1,000,000 rows: the
// write without a command as an editor makes it, the step, its undo and its redo. The rival is the
// write alone, with nobody recording. And what it costs to go through a long history, against a
// bare stack of commands that write the same cells.
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

void writtenCell(benchmark::State& state)
{
    const int rows = int(state.range());
    KnMFFloat& array = widths();
    array.setNum(rows);
    int turn = 0;
    for (auto _ : state)
        array.set1(rows / 2, texts[++turn % 2]);
}

/// Makes a gesture with one cell written a step of the stack.
void edit(CrvUndoSteps& steps, int row, const KbString& text)
{
    steps.beginGesture();
    steps.beginInput();
    widths().set1(row, text);
    steps.endGesture();
}

/// The steps of an editor that shows the array.
class Editing {
public:
    explicit Editing(int rows)
        : m_steps(*CrvServices::getInstance()->getUndoSteps())
    {
        widths().setNum(0); // so that all rows are fresh ones
        widths().setNum(rows);
        CrvServices::getInstance()->selectField(&widths());
        m_steps.setGrouping(CrvUndoSteps::Grouping::Gestures);
    }
    ~Editing()
    {
        m_steps.stack()->clear();
        m_steps.setGrouping(CrvUndoSteps::Grouping::EachCommand);
        CrvServices::getInstance()->selectNode(nullptr);
    }

    CrvUndoSteps& steps() { return m_steps; }

private:
    CrvUndoSteps& m_steps;
};

void cellAsStep(benchmark::State& state)
{
    const int rows = int(state.range());
    Editing editing(rows);
    QUndoStack& stack = *editing.steps().stack();
    widths().set1(rows / 2, texts[0]);
    int turn = 0;
    for (auto _ : state) {
        edit(editing.steps(), rows / 2, texts[++turn % 2]);
        if (stack.index() != 1)
            state.SkipWithError("the edit made no step");
        stack.undo();
        stack.redo();
        stack.clear();
    }
}

void throughHistory(benchmark::State& state, QUndoStack& stack)
{
    if (stack.count() != state.range())
        state.SkipWithError("not each edit made a step");
    for (auto _ : state) {
        while (stack.canUndo())
            stack.undo();
        while (stack.canRedo())
            stack.redo();
    }
}

constexpr int historyRows = 1'000;

void history(benchmark::State& state)
{
    Editing editing(historyRows);
    for (int i = 0; i < state.range(); ++i)
        edit(editing.steps(), i % historyRows, texts[(i / historyRows) % 2]);
    throughHistory(state, *editing.steps().stack());
}

class BareEdit : public QUndoCommand {
public:
    BareEdit(int row, KbString text)
        : m_row(row)
        , m_text(std::move(text))
    {
        widths().get1(row, m_former);
    }
    void redo() override { widths().set1(m_row, m_text); }
    void undo() override { widths().set1(m_row, m_former); }

private:
    int m_row;
    KbString m_text;
    KbString m_former;
};

void bareHistory(benchmark::State& state)
{
    widths().setNum(0);
    widths().setNum(historyRows);
    QUndoStack stack;
    for (int i = 0; i < state.range(); ++i)
        stack.push(new BareEdit(i % historyRows, texts[(i / historyRows) % 2]));
    throughHistory(state, stack);
}

// clazy:excludeall=non-pod-global-static the library keeps a benchmark in a static object
BENCHMARK(writtenCell)->Arg(1'000)->Arg(100'000)->Arg(1'000'000);
BENCHMARK(cellAsStep)->Arg(1'000)->Arg(100'000)->Arg(1'000'000);
BENCHMARK(history)->Unit(benchmark::kMillisecond)->Arg(100)->Arg(1'000)->Arg(10'000);
BENCHMARK(bareHistory)->Unit(benchmark::kMillisecond)->Arg(100)->Arg(1'000)->Arg(10'000);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    return runBenchmarks(argc, argv,
        { { "A step with undo and redo in 1,000,000 rows, times the bare write", "cellAsStep",
              "writtenCell" },
            { "10,000 undos and as many redos, times a bare stack", "history", "bareHistory" } });
}
