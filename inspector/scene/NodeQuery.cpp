// SPDX-License-Identifier: BSD-3-Clause
#include "NodeQuery.h"

#include "KnFieldContainer.h"

#include <algorithm>
#include <optional>

namespace {

using Relation = FieldCondition::Relation;

struct RelationSign {
    QLatin1String sign;
    Relation relation;
};

// The longer ones first.
constexpr RelationSign relationSigns[] = {
    { QLatin1String("<="), Relation::LessOrEqual },
    { QLatin1String(">="), Relation::GreaterOrEqual },
    { QLatin1String("!="), Relation::NotEqual },
    { QLatin1String("<"), Relation::Less },
    { QLatin1String(">"), Relation::Greater },
    { QLatin1String("="), Relation::Equal },
};

const RelationSign* signAt(QStringView text)
{
    const auto* const found = std::find_if(std::begin(relationSigns), std::end(relationSigns),
        [text](const RelationSign& each) { return text.startsWith(each.sign); });
    return found == std::end(relationSigns) ? nullptr : found;
}

} // namespace

NodeQuery::NodeQuery(const QString& text)
{
    // Quotes keep blanks and signs together with what stands around them.
    QString word;
    qsizetype plainLength = -1; // of the word, before its first quote
    bool quoted = false;
    bool hasWord = false;
    for (const QChar character : text) {
        if (character == QLatin1Char('"')) {
            quoted = !quoted;
            if (plainLength < 0)
                plainLength = word.size();
            hasWord = true;
        } else if (character.isSpace() && !quoted) {
            if (hasWord)
                addTerm(word, plainLength);
            word.clear();
            plainLength = -1;
            hasWord = false;
        } else {
            word += character;
            hasWord = true;
        }
    }
    if (quoted)
        m_error = tr("closing quote?");
    else if (hasWord)
        addTerm(word, plainLength);
}

/// What stands behind `plainLength` characters was in quotes, and means nothing but itself; -1 if
/// nothing was.
void NodeQuery::addTerm(const QString& word, qsizetype plainLength)
{
    const QStringView plain
        = plainLength < 0 ? QStringView(word) : QStringView(word).left(plainLength);
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (signAt(plain.mid(i))) {
            addComparison(word, i);
            return;
        }
        if (plain.at(i) != QLatin1Char(':'))
            continue;
        const QString key = plain.left(i).toString().toLower();
        const QString value = word.mid(i + 1);
        static const std::pair<QLatin1String, Subject> subjects[] = {
            { QLatin1String("name"), Subject::Name },
            { QLatin1String("type"), Subject::Type },
            { QLatin1String("class"), Subject::Class },
            { QLatin1String("field"), Subject::Field },
        };
        for (const auto& [name, subject] : subjects) {
            if (key != name)
                continue;
            if (value.isEmpty())
                m_error = tr("which %1?").arg(name);
            else
                m_terms.push_back({ subject, TextPattern(value), { Relation::Equal, QString() } });
            return;
        }
        m_error = tr("\"%1:\"?").arg(plain.left(i));
        return;
    }
    if (!word.isEmpty())
        m_terms.push_back(
            { Subject::NameOrType, TextPattern(word), { Relation::Equal, QString() } });
}

void NodeQuery::addComparison(const QString& word, qsizetype place)
{
    const RelationSign* const sign = signAt(QStringView(word).mid(place));
    const QString value = word.mid(place + sign->sign.size());
    FieldCondition condition(sign->relation, value);
    if (place == 0)
        m_error = tr("which field?");
    else if (value.isEmpty())
        m_error = tr("which value?");
    else if (!condition.isSound())
        m_error = tr("which number?");
    else
        m_terms.push_back({ Subject::Value, TextPattern(word.left(place)), condition });
}

bool NodeQuery::matches(KnFieldContainer& node) const
{
    const TypeVerdict& verdict = verdictOn(node);
    if (!verdict.possible)
        return false;
    for (std::size_t i = 0; i < m_terms.size(); ++i) {
        const Term& term = m_terms[i];
        if (verdict.met[i])
            continue;
        const bool fits = term.subject == Subject::Value
            ? term.condition.holds(*verdict.fields->getField(&node, verdict.fieldIndices[i]))
            : term.text.isIn(node.getName().getString().toUtf8());
        if (!fits)
            return false;
    }
    return true;
}

const NodeQuery::TypeVerdict& NodeQuery::verdictOn(const KnFieldContainer& node) const
{
    const KnType type = node.getObjectType();
    const KnFieldData* const fields = node.getContainerFieldData();
    const int fieldCount = fields ? fields->getNum() : 0;
    for (const TypeVerdict& verdict : m_verdicts) {
        if (verdict.type == type && verdict.fields == fields && verdict.fieldCount == fieldCount)
            return verdict;
    }
    m_verdicts.push_back(judge(node));
    return m_verdicts.back();
}

NodeQuery::TypeVerdict NodeQuery::judge(const KnFieldContainer& node) const
{
    const KnFieldData* const fields = node.getContainerFieldData();
    const int fieldCount = fields ? fields->getNum() : 0;
    TypeVerdict verdict { node.getObjectType(), fields, fieldCount, true, {}, {} };
    const auto findField = [&](const auto& fits) {
        for (int i = 0; i < fieldCount; ++i) {
            if (fits(verdict.fields->getName(i).getString().toUtf8()))
                return i;
        }
        return -1;
    };
    for (const Term& term : m_terms) {
        const bool typeFits = term.text.isIn(verdict.type.getName().getString().toUtf8());
        bool met = false;
        int field = -1;
        switch (term.subject) {
        case Subject::NameOrType:
            met = typeFits;
            break;
        case Subject::Name:
            break;
        case Subject::Type:
            met = typeFits;
            verdict.possible = verdict.possible && met;
            break;
        case Subject::Class:
            for (KnType type = verdict.type; !type.isBad() && !met; type = type.getParent())
                met = term.text.isIn(type.getName().getString().toUtf8());
            verdict.possible = verdict.possible && met;
            break;
        case Subject::Field:
            met = findField([&](const std::string& name) { return term.text.isIn(name); }) >= 0;
            verdict.possible = verdict.possible && met;
            break;
        case Subject::Value:
            field = findField([&](const std::string& name) { return term.text.equals(name); });
            verdict.possible = verdict.possible && field >= 0;
            break;
        }
        verdict.met.push_back(met);
        verdict.fieldIndices.push_back(field);
    }
    return verdict;
}
