// SPDX-License-Identifier: BSD-3-Clause
#include "NodeAddress.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr QChar backslash(u'\\');

// What can't stand in one line, and the letters for it.
constexpr std::array<std::pair<char16_t, char16_t>, 3> controls { { { u'\n', u'n' },
    { u'\r', u'r' }, { u'\t', u't' } } };

/// The position behind the character at `position`, and behind the one that a backslash there
/// takes.
qsizetype behind(QStringView text, qsizetype position)
{
    return std::min(position + (text[position] == backslash ? 2 : 1), text.size());
}

QString unescaped(QStringView text)
{
    QString label;
    for (qsizetype i = 0; i < text.size(); i = behind(text, i)) {
        const QChar character = text[behind(text, i) - 1];
        const auto* const control = std::find_if(controls.begin(), controls.end(),
            [&](const auto& each) { return text[i] == backslash && each.second == character; });
        label += control == controls.end() ? character : QChar(control->first);
    }
    return label;
}

/// Takes a number in brackets off the end of a step; -1 if there is none.
int takeIndex(QStringView& text)
{
    const qsizetype bracket = NodeAddress::lastIndexOf(text, u'[');
    if (bracket < 0 || !text.endsWith(u']'))
        return -1;
    const QStringView number = text.mid(bracket + 1).chopped(1);
    bool isNumber = false;
    const int index = number.toInt(&isNumber);
    if (!isNumber || index < 0 || !number.front().isDigit())
        return -1;
    text.truncate(bracket);
    return index;
}

} // namespace

std::optional<NodeAddress> NodeAddress::parse(QStringView text, QString* error)
{
    NodeAddress address;
    QStringView rest = text;
    address.fromRoot = rest.startsWith(u'/');
    if (address.fromRoot)
        rest = rest.mid(1);
    for (bool isLast = false; !isLast;) {
        const qsizetype slash = indexOf(rest, u'/');
        isLast = slash < 0;
        QStringView step = isLast ? rest : rest.left(slash);
        rest = rest.mid(slash + 1);
        const int index = takeIndex(step);
        if (step.isEmpty()) {
            *error = tr("\"%1\" lacks a name").arg(text);
            return std::nullopt;
        }
        address.steps.push_back({ unescaped(step), index });
    }
    return address;
}

QString NodeAddress::escaped(const QString& label)
{
    QString text;
    for (const QChar character : label) {
        const auto* const control = std::find_if(controls.begin(), controls.end(),
            [character](const auto& each) { return each.first == character; });
        if (control != controls.end() || QStringView(u"\\/[=").contains(character))
            text += backslash;
        text += control == controls.end() ? character : QChar(control->second);
    }
    return text;
}

QString NodeAddress::stepText(const Step& step)
{
    return step.index < 0 ? escaped(step.label)
                          : QStringLiteral("%1[%2]").arg(escaped(step.label)).arg(step.index);
}

qsizetype NodeAddress::indexOf(QStringView text, QChar character)
{
    for (qsizetype i = 0; i < text.size(); i = behind(text, i)) {
        if (text[i] == character)
            return i;
    }
    return -1;
}

qsizetype NodeAddress::lastIndexOf(QStringView text, QChar character)
{
    qsizetype last = -1;
    for (qsizetype i = 0; i < text.size(); i = behind(text, i)) {
        if (text[i] == character)
            last = i;
    }
    return last;
}
