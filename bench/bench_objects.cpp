// SPDX-License-Identifier: BSD-3-Clause
#include "CrvObjects.h"
#include "KnDatabase.h"
#include "KnField.h"
#include "KnFieldSensor.h"
#include "KnGroup.h"
#include "KnNodePtr.h"
#include "RatioReporter.h"

#include <QCoreApplication>
#include <QPoint>
#include <QRect>
#include <QVariant>

#include <deque>

namespace {

constexpr int propertyCount = 300;
constexpr int treeWidth = 100; // so many children, with as many each

/// An object with properties of several types.
QObject& wideObject()
{
    static QObject object;
    for (int i = object.dynamicPropertyNames().size(); i < propertyCount; ++i) {
        const QVariant values[] = { i, 0.1 * i, QString::number(i), QPoint(i, i), QRect(0, 0, i, i),
            QVariant::fromValue(QList<int>({ i, i })) };
        object.setProperty(QByteArray("property" + QByteArray::number(i)), values[i % 6]);
    }
    return object;
}

QObject& tree()
{
    static QObject root;
    while (root.children().size() < treeWidth) {
        auto* const branch = new QObject(&root);
        for (int i = 0; i < treeWidth; ++i)
            (new QObject(branch))->setObjectName(QString::number(i));
    }
    return root;
}

/// As the list of fields does: a sensor on each field, and the text of each.
void openObject(benchmark::State& state)
{
    QObject& object = wideObject();
    for (auto _ : state) {
        const KnNodePtr node(crvObjectNode(&object));
        const KnFieldData* const table = node->getContainerFieldData();
        std::deque<KnFieldSensor> sensors;
        for (int i = 0; i < table->getNum(); ++i) {
            KnField* const field = table->getField(node.get(), i);
            sensors.emplace_back(nullptr, nullptr).attach(field);
            KbString text;
            field->get(text);
            benchmark::DoNotOptimize(text);
        }
    }
}

/// The rival: each property as Qt writes it.
void readObject(benchmark::State& state)
{
    const QObject& object = wideObject();
    for (auto _ : state) {
        for (const QByteArray& name : object.dynamicPropertyNames()) {
            const QString text = object.property(name).toString();
            benchmark::DoNotOptimize(text);
        }
    }
}

int count(const KnGroup& group)
{
    int nodes = 1;
    for (int i = 0; i < group.getNumChildren(); ++i)
        nodes += count(static_cast<const KnGroup&>(*group.getChild(i)));
    return nodes;
}

void openTree(benchmark::State& state)
{
    QObject& root = tree();
    for (auto _ : state) {
        const KnNodePtr node(crvObjectNode(&root));
        benchmark::DoNotOptimize(count(static_cast<const KnGroup&>(*node.get())));
    }
}

/// The rival: one item for each object, with its name.
void copyTree(benchmark::State& state)
{
    const QObject& root = tree();
    for (auto _ : state) {
        std::deque<QString> names;
        const QObjectList all = root.findChildren<QObject*>();
        for (const QObject* object : all)
            names.push_back(object->objectName());
        benchmark::DoNotOptimize(names);
    }
}

BENCHMARK(openObject)->Unit(benchmark::kMicrosecond)->Repetitions(5);
BENCHMARK(readObject)->Unit(benchmark::kMicrosecond)->Repetitions(5);
BENCHMARK(openTree)->Unit(benchmark::kMicrosecond)->Repetitions(5);
BENCHMARK(copyTree)->Unit(benchmark::kMicrosecond)->Repetitions(5);

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    KnDatabase::init();
    return runBenchmarks(argc, argv,
        { { "opening an object to reading it", "openObject", "readObject" },
            { "opening a tree to copying its names", "openTree", "copyTree" } });
}
