// SPDX-License-Identifier: BSD-3-Clause
#include "MainWindow.h"
#include "Stage.h"
#include "StepKinds.h"
#include "StepRandom.h"
#include "Texts.h"

#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QTableView>
#include <QTreeView>

#include <iterator>

// What a person does on purpose. Chance alone would seldom get as far as a changed field.

using namespace Qt::StringLiterals;
using By = StepKind::By;

namespace {

/// A widget of the window, by name; null if it can't be seen.
QWidget* seen(Stage& stage, const QString& name)
{
    auto* const widget = stage.window().findChild<QWidget*>(name);
    return widget && widget->isVisible() ? widget : nullptr;
}

void clickRowIn(Stage& stage, const QString& name, StepRandom& random)
{
    auto* const view = qobject_cast<QTreeView*>(seen(stage, name));
    if (!view || !view->model()->rowCount() || view->viewport()->visibleRegion().isEmpty())
        return;
    const Target row = Targets::in(view->viewport(), random);
    Stage::note(u"click "_s + row.name);
    stage.hand().click(row);
}

void end(Stage& stage, StepRandom& random)
{
    const Qt::Key ends[] = { Qt::Key_Return, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape };
    const int chosen = random.below(int(std::size(ends)) + 1);
    if (chosen < int(std::size(ends)))
        stage.hand().press(ends[chosen]);
}

void replaceText(Stage& stage, StepRandom& random)
{
    const QString text = hostileText(random);
    Stage::note(u"type "_s + text);
    stage.hand().press(Qt::Key_A, Qt::ControlModifier);
    stage.hand().type(text);
    end(stage, random);
}

void chooseNode(Stage& stage, StepRandom& random) { clickRowIn(stage, u"sceneTree"_s, random); }

void chooseField(Stage& stage, StepRandom& random)
{
    clickRowIn(stage, u"fieldList"_s, random);
    // Which brings the editor back whose dock was closed.
    if (random.oneIn(3))
        stage.hand().press(Qt::Key_Return);
}

void useEditor(Stage& stage, StepRandom& random)
{
    const QWidget* const dock = seen(stage, random.oneIn(6) ? u"Node Editor"_s : u"Field Editor"_s);
    if (!dock)
        return;
    const Target target = Targets(dock).any(random);
    if (!target.widget)
        return;
    Stage::note(u"click "_s + target.name);
    const bool isLine = qobject_cast<QLineEdit*>(target.widget);
    stage.hand().click(target);
    if (isLine)
        replaceText(stage, random);
}

void editCell(Stage& stage, StepRandom& random)
{
    const QWidget* const dock = seen(stage, u"Field Editor"_s);
    auto* const table = dock ? dock->findChild<QTableView*>() : nullptr;
    if (!table || !table->viewport()->isVisible() || table->viewport()->visibleRegion().isEmpty()
        || !table->isEnabled())
        return;
    const Target cell = Targets::in(table->viewport(), random);
    Stage::note(u"edit "_s + cell.name);
    stage.hand().doubleClick(cell);
    replaceText(stage, random);
}

void editInList(Stage& stage, StepRandom& random)
{
    clickRowIn(stage, u"fieldList"_s, random);
    stage.hand().press(Qt::Key_F2);
    replaceText(stage, random);
}

void filter(Stage& stage, StepRandom& random)
{
    std::vector<QLineEdit*> lines;
    for (const char* name : { "sceneFilter", "fieldFilter" }) {
        if (auto* const line = qobject_cast<QLineEdit*>(seen(stage, QLatin1String(name))))
            lines.push_back(line);
    }
    if (lines.empty())
        return;
    QWidget* const line = lines[std::size_t(random.below(int(lines.size())))];
    if (line->visibleRegion().isEmpty())
        return;
    Stage::note(u"filter "_s + line->objectName());
    stage.hand().click(Targets::in(line, random));
    stage.hand().press(Qt::Key_A, Qt::ControlModifier);
    const char* const queries[] = { "", "", "a", "Oak", "type:", "color", "=1", "node", "." };
    stage.hand().type(QLatin1String(queries[random.below(int(std::size(queries)))]));
}

} // namespace

std::vector<StepKind> editSteps()
{
    return {
        { "choose node", 8, By::Person, false, chooseNode },
        { "choose field", 10, By::Person, false, chooseField },
        { "use editor", 25, By::Person, false, useEditor },
        { "edit cell", 10, By::Person, false, editCell },
        { "edit in list", 4, By::Person, false, editInList },
        { "filter", 2, By::Person, false, filter },
    };
}
