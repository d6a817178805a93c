// SPDX-License-Identifier: BSD-3-Clause
#include "Stage.h"
#include "StepKinds.h"
#include "StepRandom.h"
#include "Texts.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QKeySequence>
#include <QMenuBar>

#include <iterator>

using namespace Qt::StringLiterals;
using By = StepKind::By;

namespace {

Qt::KeyboardModifiers someModifiers(StepRandom& random)
{
    const Qt::KeyboardModifiers modifiers[]
        = { Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier };
    return random.oneIn(6) ? modifiers[random.below(int(std::size(modifiers)))]
                           : Qt::KeyboardModifiers();
}

/// Done with any place that can be reached, and told.
template <class Act>
void at(const Target& target, const char* what, Act act)
{
    if (!target.widget)
        return;
    Stage::note(QLatin1String(what) + u' ' + target.name);
    act(target);
}

void click(Stage& stage, StepRandom& random)
{
    const Qt::KeyboardModifiers modifiers = someModifiers(random);
    at(Targets().any(random), "click",
        [&](const Target& target) { stage.hand().click(target, Qt::LeftButton, modifiers); });
}

void doubleClick(Stage& stage, StepRandom& random)
{
    at(Targets().any(random), "double click",
        [&](const Target& target) { stage.hand().doubleClick(target); });
}

void otherButton(Stage& stage, StepRandom& random)
{
    const Qt::MouseButton button = random.oneIn(4) ? Qt::MiddleButton : Qt::RightButton;
    at(Targets().any(random), button == Qt::RightButton ? "right click" : "middle click",
        [&](const Target& target) { stage.hand().click(target, button); });
}

void turnWheel(Stage& stage, StepRandom& random)
{
    const int turns = random.oneIn(2) ? 1 + random.below(3) : -1 - random.below(3);
    const Qt::KeyboardModifiers modifiers = someModifiers(random);
    at(Targets().any(random), "wheel",
        [&](const Target& target) { stage.hand().wheel(target, turns, modifiers); });
}

void drag(Stage& stage, StepRandom& random)
{
    const Targets targets;
    const Target from = targets.any(random);
    if (!from.widget)
        return;
    // Within one widget a drag moves a handle or selects; to another one it carries something.
    const Target to = random.oneIn(3) ? targets.any(random) : Targets::in(from.widget, random);
    at(from, "drag", [&](const Target&) {
        Stage::note(u"to "_s + to.name);
        stage.hand().drag(from, to, someModifiers(random));
    });
}

void hover(Stage& stage, StepRandom& random)
{
    at(Targets().any(random), "hover", [&](const Target& target) { stage.hand().moveTo(target); });
}

void typeText(Stage& stage, StepRandom& random)
{
    const QString text = hostileText(random);
    Stage::note(u"type "_s + text);
    stage.hand().type(text);
    const Qt::Key ends[] = { Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape };
    if (random.oneIn(2))
        stage.hand().press(ends[random.below(int(std::size(ends)))]);
}

void pressKey(Stage& stage, StepRandom& random)
{
    // The keys of the menus are among them. A start of the program ends with Ctrl+Q, too.
    static const char* const keys[] = { "Tab", "Tab", "Tab", "Shift+Tab", "Return", "Return", "Esc",
        "Esc", "Up", "Down", "Down", "Left", "Right", "Home", "End", "PgUp", "PgDown", "Del", "Ins",
        "Backspace", "Space", "F1", "F2", "F4", "F5", "F6", "Shift+F6", "F10", "Ctrl+A", "Ctrl+C",
        "Ctrl+V", "Ctrl+X", "Ctrl+D", "Ctrl+F", "Ctrl+N", "Ctrl+S", "Ctrl+O", "Ctrl+R", "Ctrl+W",
        "Ctrl+P", "Ctrl+Home", "Ctrl+End", "Ctrl+Up", "Ctrl+Down", "Alt+Up", "Alt+Down", "Alt+Left",
        "Alt+Right", "Shift+Down", "Shift+Up", "Shift+F10", "Ctrl+Space", "Ctrl+Shift+C", "Menu",
        "+", "-", "*", "Alt+F", "Alt+E", "Alt+V" };
    const char* const name = keys[random.below(int(std::size(keys)))];
    Stage::note(u"press "_s + QLatin1String(name));
    const QKeyCombination key = QKeySequence(QLatin1String(name))[0];
    stage.hand().press(key.key(), key.keyboardModifiers());
}

void openMenu(Stage& stage, StepRandom& random)
{
    at(Targets().any<QMenuBar>(random), "menu",
        [&](const Target& target) { stage.hand().click(target); });
}

void clickHeader(Stage& stage, StepRandom& random)
{
    at(Targets().any<QHeaderView>(random), "header", [&](const Target& target) {
        auto* const header = qobject_cast<QHeaderView*>(target.widget);
        const Target from = Targets::in(header->viewport(), random);
        if (random.oneIn(2))
            stage.hand().click(from);
        else
            stage.hand().drag(from, Targets::in(header->viewport(), random));
    });
}

void undo(Stage& stage, StepRandom& random)
{
    const int times = 1 + random.below(4);
    Stage::note(u"undo %1 times"_s.arg(times));
    for (int i = 0; i < times; ++i)
        stage.hand().press(Qt::Key_Z, Qt::ControlModifier);
}

void redo(Stage& stage, StepRandom& random)
{
    const int times = 1 + random.below(4);
    Stage::note(u"redo %1 times"_s.arg(times));
    for (int i = 0; i < times; ++i)
        stage.hand().press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

} // namespace

std::vector<StepKind> inputSteps()
{
    return {
        { "click", 20, By::Person, true, click },
        { "double click", 6, By::Person, true, doubleClick },
        { "other button", 5, By::Person, true, otherButton },
        { "wheel", 6, By::Person, true, turnWheel },
        { "drag", 6, By::Person, true, drag },
        { "hover", 2, By::Person, true, hover },
        { "type", 8, By::Person, true, typeText },
        { "key", 14, By::Person, true, pressKey },
        { "menu", 3, By::Person, false, openMenu },
        { "header", 1, By::Person, false, clickHeader },
        { "undo", 5, By::Person, false, undo },
        { "redo", 3, By::Person, false, redo },
    };
}
