// SPDX-License-Identifier: BSD-3-Clause
#include "UndoOracle.h"

#include "CrvServices.h"
#include "CrvUndoSteps.h"
#include "FileDialogs.h"
#include "KnGroup.h"
#include "KnSFBitMask.h"
#include "MainWindow.h"
#include "SceneReader.h"
#include "SceneText.h"
#include "SceneWriter.h"
#include "Stage.h"

#include <QUndoStack>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A click on a box of a bit mask is no undo step, by design, so these fields are left out.
bool isUndoable(const KnField* field) { return !dynamic_cast<const KnSFBitMask*>(field); }

void append(QByteArray& text, KnFieldContainer* node, int level)
{
    const QByteArray indent(2 * level, ' ');
    const QString title
        = typeName(node->getObjectType()) + u' ' + toQString(node->getName().getString());
    text += indent + title.toUtf8() + '\n';
    const KnFieldData* const data = node->getContainerFieldData();
    for (int i = 0; i < data->getNum(); ++i) {
        const KnField* const field = data->getField(node, i);
        if (!isUndoable(field))
            continue;
        KbString value;
        field->get(value);
        text += indent + " ." + fieldName(*field).toUtf8() + ' ' + toQString(value).toUtf8()
            + (field->isIgnored() ? " ignored\n" : "\n");
    }
    if (auto* const group = dynamic_cast<KnGroup*>(node)) {
        for (int i = 0; i < group->getNumChildren(); ++i)
            append(text, group->getChild(i), level + 1);
    }
}

QString compare(const QString& when, const QByteArray& wanted, const QByteArray& found)
{
    if (wanted == found)
        return {};
    const QByteArrayList before = wanted.split('\n');
    const QByteArrayList after = found.split('\n');
    qsizetype line = 0;
    while (before.value(line) == after.value(line))
        ++line;
    return u"after %1 the scene has %2 in line %3 where it had %4"_s.arg(when,
        QString::fromUtf8(after.value(line).trimmed().left(200)), QString::number(line + 1),
        QString::fromUtf8(before.value(line).trimmed().left(200)));
}

} // namespace

QByteArray UndoOracle::sceneText()
{
    QByteArray text;
    for (const KnNodePtr& root : CrvServices::getInstance()->getRoots())
        append(text, root.get(), 0);
    return text;
}

void UndoOracle::begin(Stage& stage)
{
    disconnect(m_replaced);
    if (stage.role() == Stage::Role::Program) {
        m_replaced = connect(&stage.window().document(), &SceneDocument::fileNameChanged, this,
            &UndoOracle::sceneReplaced);
    }
    m_first = sceneText();
}

/// The name also changes when the scene is saved under another one.
void UndoOracle::sceneReplaced()
{
    if (CrvServices::getInstance()->getUndoStack()->count() == 0)
        m_first = sceneText();
}

QString UndoOracle::check(Stage& stage)
{
    // What an editor writes because its field goes would be a step among those that are undone.
    FileDialogs::commitTyping(&stage.window());
    CrvServices::getInstance()->selectNode(nullptr);
    CrvServices::getInstance()->getUndoSteps()->endGesture();
    QUndoStack* const stack = CrvServices::getInstance()->getUndoStack();
    const int place = stack->index();
    const int count = stack->count();
    while (stack->canRedo())
        stack->redo();
    std::vector<QByteArray> texts; // from the last state to the first
    std::vector<QString> names;
    for (;;) {
        texts.push_back(sceneText());
        names.push_back(stack->undoText());
        if (!stack->canUndo())
            break;
        stack->undo();
    }
    QString error = compare(u"undoing everything"_s, m_first, texts.back());
    for (int i = count - 1; i >= 0 && error.isEmpty(); --i) {
        stack->redo();
        const std::size_t before = std::size_t(i);
        error = compare(u"redoing \"%1\""_s.arg(names[before]), texts[before], sceneText());
    }
    if (error.isEmpty() && stack->count() != count)
        error = u"undo and redo made %1 steps of %2"_s.arg(stack->count()).arg(count);
    stack->setIndex(place);
    return error.isEmpty() ? checkSaving() : error;
}

QString UndoOracle::checkSaving()
{
    const std::vector<KnNodePtr>& scene = CrvServices::getInstance()->getRoots();
    if (scene.empty())
        return {};
    const QByteArray text = SceneWriter().toJson(scene);
    SceneReader reader;
    std::vector<KnNodePtr> roots { reader.readText(text, u"the saved scene"_s) };
    if (!roots.front())
        return u"the saved scene isn't read: "_s + reader.errorText();
    for (KnNodePtr& root : reader.takeFurtherRoots())
        roots.push_back(std::move(root));
    return compare(u"saving and reading"_s, text, SceneWriter().toJson(roots));
}
