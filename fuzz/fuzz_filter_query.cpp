// SPDX-License-Identifier: BSD-3-Clause
#include "FuzzTarget.h"
#include "KnNodePtr.h"
#include "KnTestNode.h"
#include "NodeQuery.h"

#include <QString>

namespace {

QString toText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString withSwappedCase(QString text)
{
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if ((code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z'))
            character = QChar(static_cast<char16_t>(code ^ 0x20U));
    }
    return text;
}

} // namespace

/// The first line is the name of a node with fields of all types, the rest is what stands in the
/// filter line. A query is refused with a reason or has an answer, in which neither case nor
/// repetition counts.
void fuzzInput(std::string_view input)
{
    const std::size_t line = input.find('\n');
    if (line == std::string_view::npos)
        return;
    const KnNodePtr node(new KnTestNode);
    node->setName(KbName(KbString(input.substr(0, line))));
    const std::string_view text = input.substr(line + 1);
    const NodeQuery query(toText(text));
    const NodeQuery swapped(withSwappedCase(toText(text)));
    require(query.errorText().isEmpty() == swapped.errorText().isEmpty(), "case counts", text);
    if (!query.errorText().isEmpty())
        return;
    const bool matches = query.matches(*node.get());
    require(matches || !query.isEmpty(), "an empty query hides a node");
    require(swapped.matches(*node.get()) == matches, "case counts", text);
    const NodeQuery twice(toText(text) + QLatin1Char(' ') + toText(text));
    require(twice.errorText().isEmpty(), "the same terms once more are refused", text);
    require(twice.matches(*node.get()) == matches, "repetition counts", text);
}
