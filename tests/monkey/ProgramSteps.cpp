// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "KnGroup.h"
#include "KnMField.h"
#include "MainWindow.h"
#include "SceneText.h"
#include "Stage.h"
#include "StepKinds.h"
#include "StepRandom.h"
#include "Texts.h"

#include <QDockWidget>

#include <iostream>

using namespace Qt::StringLiterals;
using By = StepKind::By;

namespace {

void select(Stage& stage, StepRandom& random)
{
    CrvServices* const services = CrvServices::getInstance();
    if (random.oneIn(8)) {
        Stage::note(u"select nothing"_s);
        services->selectNode(nullptr);
    } else if (KnField* const field = stage.anyField(random)) {
        Stage::note(u"select "_s + nodeLabel(*field->getContainer()) + u'.' + fieldName(*field));
        services->selectField(field);
    }
}

void changeProfile(Stage&, StepRandom& random)
{
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    const std::list<CrvProfile*>& profiles = manager->getProfilesList();
    // Mostly the first one, which has everything.
    CrvProfile* const chosen = random.oneIn(2)
        ? profiles.front()
        : *std::next(profiles.begin(), random.below(int(profiles.size())));
    Stage::note(u"profile "_s + toQString(chosen->getName()));
    manager->setActiveProfile(chosen);
}

void reloadPlugins(Stage& stage, StepRandom&)
{
    Stage::note(u"unload and load the plug-ins"_s);
    stage.reloadPlugins();
}

void restart(Stage& stage, StepRandom&)
{
    Stage::note(u"start anew"_s);
    stage.restart();
}

void resize(Stage& stage, StepRandom& random)
{
    const QSize size(300 + random.below(1000), 200 + random.below(800));
    Stage::note(u"resize to %1x%2"_s.arg(size.width()).arg(size.height()));
    stage.window().resize(size);
}

void floatDock(Stage& stage, StepRandom& random)
{
    const QList<QDockWidget*> docks = stage.window().findChildren<QDockWidget*>();
    const int chosen
        = random.choose(docks, [](const QDockWidget* dock) { return dock->objectName(); });
    if (chosen < 0 || docks.at(chosen)->isHidden())
        return;
    QDockWidget* const dock = docks.at(chosen);
    Stage::note(u"float or dock "_s + dock->objectName());
    dock->setFloating(!dock->isFloating());
}

void print(Stage&, StepRandom& random)
{
    const QString text = hostileText(random);
    Stage::note(u"print "_s + text);
    (random.oneIn(2) ? std::cout : std::cerr) << text.toStdString() << '\n' << std::flush;
}

void write(Stage& stage, StepRandom& random)
{
    KnField* field = CrvServices::getInstance()->getSelectedField();
    if (!field || random.oneIn(2))
        field = stage.anyField(random);
    if (!field)
        return;
    const QString text = textFor(*field, random);
    Stage::note(u"write "_s + nodeLabel(*field->getContainer()) + u'.' + fieldName(*field) + u' '
        + text.left(60));
    field->set(toKbString(text));
}

void writeRows(Stage& stage, StepRandom& random)
{
    auto* array = dynamic_cast<KnMField*>(CrvServices::getInstance()->getSelectedField());
    if (!array)
        array = dynamic_cast<KnMField*>(stage.anyField(random));
    if (!array)
        return;
    const int row = random.below(array->getNum() + 1);
    const int count = 1 + random.below(4);
    Stage::note(u"change rows from %1 of %2"_s.arg(row).arg(fieldName(*array)));
    if (random.oneIn(2) && array->getNum() < 1000)
        array->insertValues(row, count);
    else
        array->removeValues(row, count);
}

void ignore(Stage& stage, StepRandom& random)
{
    if (KnField* const field = stage.anyField(random)) {
        Stage::note(u"ignore "_s + fieldName(*field));
        field->setIgnored(!field->isIgnored());
    }
}

void rename(Stage& stage, StepRandom& random)
{
    if (KnFieldContainer* const node = stage.anyNode(random)) {
        Stage::note(u"rename "_s + nodeLabel(*node));
        node->setName(KbName(toKbString(hostileText(random))));
    }
}

void addNode(Stage& stage, StepRandom& random)
{
    KnGroup* const group = stage.anyGroup(random);
    if (!group || group->getNumChildren() > 50)
        return;
    const std::vector<KnType> types = KnType::getCreatableTypes(KnNode::getClassTypeId());
    const KnType type = types[std::size_t(random.below(int(types.size())))];
    Stage::note(u"add "_s + typeName(type));
    const KnNodePtr node(dynamic_cast<KnFieldContainer*>(type.createInstance()));
    group->insertChild(node.get(), random.below(group->getNumChildren() + 1));
}

void removeNode(Stage& stage, StepRandom& random)
{
    KnGroup* const group = stage.anyGroup(random);
    if (!group || !group->getNumChildren())
        return;
    const int child = random.below(group->getNumChildren());
    Stage::note(u"remove "_s + nodeLabel(*group->getChild(child)));
    group->removeChild(child);
}

void moveNode(Stage& stage, StepRandom& random)
{
    KnGroup* const group = stage.anyGroup(random);
    if (!group || group->getNumChildren() < 2)
        return;
    Stage::note(u"move a child of "_s + nodeLabel(*group));
    const int from = random.below(group->getNumChildren());
    group->moveChild(from, random.below(group->getNumChildren()));
}

} // namespace

std::vector<StepKind> programSteps()
{
    return {
        { "select", 8, By::Host, true, select },
        { "profile", 2, By::Host, true, changeProfile },
        { "reload plug-ins", 1, By::Host, false, reloadPlugins },
        { "restart", 1, By::Host, false, restart },
        { "resize", 2, By::Host, true, resize },
        { "float", 2, By::Host, false, floatDock },
        { "print", 2, By::Host, true, print },
        { "write", 14, By::Scene, true, write },
        { "write rows", 8, By::Scene, true, writeRows },
        { "ignore", 2, By::Scene, true, ignore },
        { "rename", 2, By::Scene, true, rename },
        { "add node", 4, By::Scene, true, addNode },
        { "remove node", 3, By::Scene, true, removeNode },
        { "move node", 2, By::Scene, true, moveNode },
    };
}
