// SPDX-License-Identifier: BSD-3-Clause
#include "Texts.h"

#include "KnField.h"
#include "SceneText.h"
#include "StepRandom.h"

#include <QRegularExpression>

#include <iterator>

using namespace Qt::StringLiterals;

namespace {

const char* const texts[] = { "0", "1", "-1", "0.5", "-0", "3", "42", "127", "255", "32767",
    "-32768", "65535", "65536", "2147483647", "-2147483648", "4294967295", "0xff", "0xFFFFFFFF",
    "1e38", "1e39", "1e-45", "-1e308", "1e309", "nan", "inf", "-inf", "1.5.2", "1,5", "e", "--", "",
    " ", "TRUE", "false", "\"", "\"\"", "\\", "\"a\\\"b\"", "[", "]", "[ ]", "[ 1, 2, 3 ]",
    "( A | B )", "1 2 3", "0 0 1 3.14159274", "a name", "Oak", "<b>bold</b>", "%1 %n", "../../etc",
    "\xc3\xa4\xc3\xb6\xc3\xbc", "\xe6\xbc\xa2\xe5\xad\x97", "\xf0\x9f\x90\x92", "a\tb",
    "type:Material", "diffuseColor=1", "*", "0.1000000014901161193847656" };

const char* const numbers[] = { "0", "1", "-1", "0.25", "7", "100", "1e20", "-0.001", "3.4e38" };

template <std::size_t Count>
QString oneOf(const char* const (&list)[Count], StepRandom& random)
{
    return QString::fromUtf8(list[random.below(int(Count))]);
}

} // namespace

QString hostileText(StepRandom& random) { return oneOf(texts, random); }

QString textFor(const KnField& field, StepRandom& random)
{
    if (random.oneIn(8))
        return u"\"\""_s; // the default value of every type
    if (random.oneIn(8))
        return hostileText(random);
    KbString held;
    field.get(held);
    QString text = toQString(held);
    static const QRegularExpression number(u"(?<![\\w\"])[-+]?\\d+(\\.\\d+)?(e[-+]?\\d+)?"_s);
    QRegularExpressionMatchIterator found = number.globalMatch(text);
    QString changed;
    qsizetype end = 0;
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        changed += text.mid(end, match.capturedStart() - end);
        changed += random.oneIn(2) ? oneOf(numbers, random) : match.captured();
        end = match.capturedEnd();
    }
    return changed + text.mid(end);
}
