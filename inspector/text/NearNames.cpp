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
    std::vector<std::pair<int, QString>> near;
    for (const QString& name : names) {
        const bool isLike = std::abs(name.size() - text.size()) <= maxDistance;
        const int distance = isLike ? editDistance(text, name) : maxDistance + 1;
        // Behind those that are like it as a whole.
        const bool isPart = text.size() >= minPart && name.contains(text, Qt::CaseInsensitive);
        if (distance > maxDistance && !isPart)
            continue;
        const std::pair candidate(std::min(distance, maxDistance + 1), name);
        if (std::find(near.begin(), near.end(), candidate) == near.end())
            near.push_back(candidate);
    }
    std::stable_sort(near.begin(), near.end(),
        [](const auto& one, const auto& other) { return one.first < other.first; });
    near.resize(std::min(near.size(), maxNames));
    QStringList nearest;
    for (const auto& [distance, name] : near)
        nearest += name;
    return nearest;
}
