// SPDX-License-Identifier: BSD-3-Clause
#include "NearNames.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

int editDistance(const QString& a, const QString& b)
{
    const QString first = a.toCaseFolded();
    const QString second = b.toCaseFolded();
    // Rows of the table of distances between the beginnings of both texts.
    const auto width = static_cast<std::size_t>(second.size()) + 1;
    std::vector<int> beforeLast(width);
    std::vector<int> last(width);
    std::vector<int> row(width);
    for (std::size_t j = 0; j < width; ++j)
        row[j] = static_cast<int>(j);
    for (qsizetype i = 1; i <= first.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j < width; ++j) {
            const auto at = static_cast<qsizetype>(j);
            const bool same = first[i - 1] == second[at - 1];
            row[j] = std::min({ last[j] + 1, row[j - 1] + 1, last[j - 1] + int { !same } });
            if (i > 1 && at > 1 && first[i - 1] == second[at - 2] && first[i - 2] == second[at - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row[width - 1];
}

QStringList nearNames(const QString& text, const QStringList& names)
{
    constexpr std::size_t maxNames = 3;
    constexpr qsizetype minPart = 3; // letters; fewer stand in nearly every name
    // A third of the letters may be wrong.
    const int maxDistance = std::max(1, static_cast<int>(text.size()) / 3);
    std::vector<std::pair<int, QString>> nearest; // never more than will be returned
    for (const QString& name : names) {
        const bool isLike = std::abs(name.size() - text.size()) <= maxDistance;
        // A part of a name stands behind whatever is like the text as a whole.
        const bool isPart = text.size() >= minPart && name.contains(text, Qt::CaseInsensitive);
        const int farthest = isPart ? maxDistance + 1 : maxDistance;
        const int distance
            = isLike ? std::min(editDistance(text, name), maxDistance + 1) : maxDistance + 1;
        const std::pair candidate(distance, name);
        if (distance > farthest
            || std::find(nearest.begin(), nearest.end(), candidate) != nearest.end())
            continue;
        const auto place = std::upper_bound(nearest.begin(), nearest.end(), distance,
            [](int each, const auto& other) { return each < other.first; });
        nearest.insert(place, candidate);
        if (nearest.size() > maxNames)
            nearest.pop_back();
    }
    QStringList result;
    for (const auto& [distance, name] : nearest)
        result += name;
    return result;
}
