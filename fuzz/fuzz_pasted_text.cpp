// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "FieldLines.h"
#include "FieldPaste.h"
#include "FuzzTarget.h"
#include "KnMField.h"
#include "KnNodePtr.h"
#include "KnReadError.h"
#include "KnTestNode.h"

#include <QUndoStack>

namespace {

QString toText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string linesOf(KnFieldContainer& node) { return fieldLines(fieldsOf(node)).toStdString(); }

/// What a node holds, copied and pasted onto a fresh one, is there to the letter.
void requireCopy(KnFieldContainer& node)
{
    const KnNodePtr fresh(new KnTestNode);
    const std::string lines = linesOf(node);
    const QString message = pasteOntoNodes({ fresh.get() }, toText(lines));
    require(message.isEmpty(), "a copy is refused", message.toStdString());
    require(linesOf(*fresh.get()) == lines, "a copy is different", lines);
}

} // namespace

/// The first line names a field and says how to paste: "SFBool" onto this one, "MFInt32 insert" or
/// "MFInt32 overwrite" as rows; onto the node if there is no such field. The rest is the text.
/// Whatever it is, one step takes all of it back, and brings it again.
void fuzzInput(std::string_view input)
{
    KnReadError::setHandlerCallback(nullptr, nullptr);
    const std::size_t line = input.find('\n');
    if (line == std::string_view::npos)
        return;
    const KnNodePtr node(new KnTestNode);
    const QStringList target = toText(input.substr(0, line)).split(QLatin1Char(' '));
    const QString text = toText(input.substr(line + 1));
    KnField* const field = fieldNamed(*node.get(), target.constFirst());
    const std::string before = linesOf(*node.get());
    if (field && field->isOfType(KnMField::getClassTypeId()) && target.size() > 1) {
        auto& array = static_cast<KnMField&>(*field);
        array.insertValues(0, 3);
        const std::string rowsBefore = linesOf(*node.get());
        const auto how = target.constLast() == QLatin1String("overwrite")
            ? FieldStep::Rows::Overwrite
            : FieldStep::Rows::Insert;
        pasteRows(array, 1, how, text, false);
        CrvServices::getInstance()->getUndoStack()->undo();
        require(linesOf(*node.get()) == rowsBefore, "undo doesn't give the rows back");
        CrvServices::getInstance()->getUndoStack()->redo();
    } else {
        const std::vector<KnField*> chosen
            = field ? std::vector<KnField*> { field } : std::vector<KnField*>();
        pasteOntoFields({ node.get() }, chosen, text, false);
    }
    const std::string after = linesOf(*node.get());
    QUndoStack& stack = *CrvServices::getInstance()->getUndoStack();
    require(stack.count() <= 1, "several steps");
    stack.undo();
    require(target.size() > 1 || linesOf(*node.get()) == before, "undo doesn't give it back");
    stack.redo();
    require(linesOf(*node.get()) == after, "redo doesn't bring it again", after);
    requireCopy(*node.get());
    stack.clear();
}
