// SPDX-License-Identifier: BSD-3-Clause
// What a scene that changes costs in the scene tree, against a QStandardItemModel with the same
// texts in the same view: a change up to the last pixel, a thousand changes between two frames, and
// the memory of a shown node. Then the filter, against a recursive QSortFilterProxyModel over the
// same tree. The tree is open, and the changes are in sight of nobody or at the top of the view.
//
// Usage: bench_scene_tree [turns]

#include "KnGroup.h"
#include "KnMaterial.h"
#include "KnSensorQueue.h"
#include "PaneTree.h"
#include "SceneFilterModel.h"
#include "Timing.h"

#include <QApplication>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int rowCounts[] = { 1'000, 10'000, 100'000 };
constexpr int burst = 1'000;

KnFieldContainer* newNode(int number)
{
    auto* const node = new KnMaterial;
    node->setName(KbName(("Material " + std::to_string(number)).c_str()));
    return node;
}

/// A tree in a window, all of it open.
class Contender {
public:
    virtual ~Contender() = default;

    virtual QAbstractItemModel& model() = 0;
    virtual void fill() = 0;
    virtual void insert(int row, int number) = 0;
    virtual void remove(int row) = 0;
    /// Lets the model know, if it doesn't already.
    virtual void settle() { }

    /// Gives the bytes that this takes, but for those of the window.
    double show()
    {
        m_view.setUniformRowHeights(true);
        m_view.setModel(&model());
        m_view.header()->setSectionResizeMode(QHeaderView::Stretch);
        m_view.resize(400, 600);
        m_view.show();
        paint();
        const double before = heapInUse();
        fill();
        m_view.expand(model().index(0, 0));
        paint();
        return heapInUse() - before;
    }
    void paint()
    {
        settle();
        QCoreApplication::processEvents();
        m_view.viewport()->repaint();
    }

private:
    QTreeView m_view;
};

class OurTree final : public Contender {
public:
    explicit OurTree(KnGroup* group)
        : m_group(group)
    {
    }

    QAbstractItemModel& model() override { return m_model; }
    void fill() override { m_model.setRoots({ KnNodePtr(m_group) }); }
    void insert(int row, int number) override { m_group->insertChild(newNode(number), row); }
    void remove(int row) override { m_group->removeChild(row); }
    void settle() override { KnSensorQueue::getInstance().process(); }

private:
    KnGroup* m_group; // the model holds a reference
    SceneModel m_model;
};

class ItemTree final : public Contender {
public:
    explicit ItemTree(int rows)
        : m_rows(rows)
    {
        m_model.setColumnCount(2);
    }

    QAbstractItemModel& model() override { return m_model; }
    void fill() override
    {
        m_group = new QStandardItem(QStringLiteral("Group"));
        for (int i = 0; i < m_rows; ++i)
            insert(i, i);
        m_model.appendRow(m_group);
    }
    void insert(int row, int number) override
    {
        m_group->insertRow(row,
            { new QStandardItem(QStringLiteral("Material %1").arg(number)),
                new QStandardItem(QStringLiteral("Material")) });
    }
    void remove(int row) override { m_group->removeRow(row); }

private:
    QStandardItemModel m_model;
    int m_rows;
    QStandardItem* m_group = nullptr; // the model's
};

void compare(const char* name, int turns, const Work& ours, const Work& rival)
{
    printTimes(name, compareInTurns(turns, ours, rival));
}

KnNodePtr makeScene(int rows)
{
    auto* const group = new KnGroup;
    KnNodePtr scene(group);
    for (int i = 0; i < rows; ++i)
        group->addChild(newNode(i));
    return scene;
}

void compareChanges(int rows, int turns)
{
    const KnNodePtr scene = makeScene(rows);
    OurTree ours(static_cast<KnGroup*>(scene.get()));
    const double ourBytes = ours.show();
    ItemTree theirs(rows);
    const double theirBytes = theirs.show();
    printSize(rows, "rows");
    std::printf("  %-34s %10.1f B,  rival %10.1f B,  ratio %.2f\n", "memory of a shown node",
        ourBytes / rows, theirBytes / rows, ourBytes / theirBytes);

    const auto change = [](Contender& tree, int row) {
        return [&tree, row] {
            tree.insert(row, row);
            tree.paint();
            tree.remove(row);
            tree.paint();
        };
    };
    compare("insert, paint, remove, paint: top", turns, change(ours, 0), change(theirs, 0));
    compare("the same in the middle", turns, change(ours, rows / 2), change(theirs, rows / 2));
    const auto many = [rows](Contender& tree) {
        return [&tree, rows] {
            for (int i = 0; i < burst / 2; ++i) {
                tree.insert((i * 7919) % rows, i);
                tree.remove((i * 104'729) % rows);
            }
            tree.paint();
        };
    };
    compare("1000 scattered changes, paint", turns, many(ours), many(theirs));
    const auto tail = [rows](Contender& tree) {
        return [&tree, rows] {
            for (int i = 0; i < burst / 2; ++i) {
                tree.insert(rows, i);
                tree.remove(rows - 1);
            }
            tree.paint();
        };
    };
    compare("1000 changes at the end, paint", turns, tail(ours), tail(theirs));
}

void compareFilters(int rows, int turns)
{
    const KnNodePtr scene = makeScene(rows);
    SceneFilterModel ours;
    ours.setRoots({ scene });
    SceneModel bare;
    bare.setRoots({ scene });
    QSortFilterProxyModel theirs;
    theirs.setSourceModel(&bare);
    theirs.setRecursiveFilteringEnabled(true);
    theirs.setFilterKeyColumn(-1);
    const auto countRows = [](const QAbstractItemModel& model) {
        if (model.rowCount(model.index(0, 0)) == 0)
            std::abort();
    };
    compare(
        "filter text set and taken away", turns,
        [&] {
            ours.setFilterText(QStringLiteral("99"));
            while (ours.isSearching())
                QCoreApplication::processEvents();
            countRows(ours);
            ours.setFilterText(QString());
        },
        [&] {
            theirs.setFilterFixedString(QStringLiteral("99"));
            countRows(theirs);
            theirs.setFilterFixedString(QString());
        });
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int turns = numberArgument(argc, argv, 1, 15);
    std::printf("Qt %s\n", qVersion());
    for (const int rows : rowCounts) {
        compareChanges(rows, turns);
        compareFilters(rows, turns);
    }
    return 0;
}
