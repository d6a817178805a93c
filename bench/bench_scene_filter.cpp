// SPDX-License-Identifier: BSD-3-Clause
// What a key in the filter line of the scene's tree costs, up to the last pixel, against a line
// above a tree with a recursive QSortFilterProxyModel over the same rows: the longest of all keys
// of a word that is typed and taken away again.
//
// Usage: bench_scene_filter [turns]

#include "CrvServices.h"
#include "KnGroup.h"
#include "KnMaterial.h"
#include "ScenePanel.h"
#include "Timing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int nodeCount = 100'000;

/// A group of groups, each with the same number of leaves.
KnNodePtr makeScene(int groups)
{
    auto* const root = new KnGroup;
    KnNodePtr scene(root);
    for (int g = 0; g < groups; ++g) {
        auto* const group = new KnGroup;
        group->setName(KbName(("Room " + std::to_string(g)).c_str()));
        root->addChild(group);
        for (int i = g; i < nodeCount; i += groups) {
            auto* const leaf = new KnMaterial;
            leaf->setName(KbName(("Material " + std::to_string(i)).c_str()));
            group->addChild(leaf);
        }
    }
    return scene;
}

/// The longest of the keys, in milliseconds.
double typeAndTakeAway(QWidget& window, QLineEdit& line, const QString& word)
{
    double longest = 0;
    const auto press = [&](int key, const QString& text) {
        const double time = milliseconds([&] {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(&line, &event);
            QCoreApplication::processEvents();
            window.grab();
        });
        longest = std::max(longest, time);
    };
    for (const QChar character : word)
        press(Qt::Key_unknown, QString(character));
    for (qsizetype i = 0; i < word.size(); ++i)
        press(Qt::Key_Backspace, QString());
    return longest;
}

void compare(int groups, const QString& word, int turns)
{
    CrvServices::getInstance()->setRoots({ makeScene(groups) });
    ScenePanel panel;
    panel.resize(400, 600);
    panel.show();
    auto* const ourLine = panel.findChild<QLineEdit*>();

    SceneModel rows;
    rows.setRoots(CrvServices::getInstance()->getRoots());
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&rows);
    proxy.setRecursiveFilteringEnabled(true);
    proxy.setFilterKeyColumn(-1);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    QWidget rival;
    auto* const theirLine = new QLineEdit;
    auto* const tree = new QTreeView;
    tree->setUniformRowHeights(true);
    tree->setModel(&proxy);
    auto* const layout = new QVBoxLayout(&rival);
    layout->addWidget(theirLine);
    layout->addWidget(tree);
    QObject::connect(
        theirLine, &QLineEdit::textChanged, tree, [tree, filtered = &proxy](const QString& text) {
            filtered->setFilterFixedString(text);
            tree->expandAll();
        });
    rival.resize(400, 600);
    rival.show();

    std::vector<double> ours;
    std::vector<double> theirs;
    for (int turn = 0; turn < turns; ++turn) {
        ours.push_back(typeAndTakeAway(panel, *ourLine, word));
        theirs.push_back(typeAndTakeAway(rival, *theirLine, word));
    }
    std::printf("%5d groups, \"%s\": longest key %8.2f ms, rival %8.2f ms, ratio %.3f\n", groups,
        qPrintable(word), median(ours), median(theirs), median(ours) / median(theirs));
    std::fflush(stdout);
    CrvServices::getInstance()->setRoots({});
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int turns = numberArgument(argc, argv, 1, 5);
    std::printf("Qt %s, %d nodes\n", qVersion(), nodeCount);
    for (const int groups : { 1, 100 }) {
        for (const char* const word : { "material 99", "transparency=0", "type:mat" })
            compare(groups, QString::fromLatin1(word), turns);
    }
    return 0;
}
