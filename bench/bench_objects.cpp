// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspector.h"
#include "CrvObjects.h"
#include "CrvServices.h"
#include "KnDatabase.h"
#include "KnField.h"
#include "KnFieldSensor.h"
#include "KnGroup.h"
#include "KnNodePtr.h"
#include "RatioReporter.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMetaProperty>
#include <QPoint>
#include <QRect>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeView>
#include <QVariant>

#include <deque>
#include <memory>
#include <vector>

namespace {

constexpr int propertyCount = 300;
constexpr int treeWidth = 100; // so many children, with as many each

/// Gives an object properties of several types.
void fillWide(QObject& object)
{
    const auto filled = static_cast<int>(object.dynamicPropertyNames().size());
    for (int i = filled; i < propertyCount; ++i) {
        const QVariant values[] = { i, 0.1 * i, QString::number(i), QPoint(i, i), QRect(0, 0, i, i),
            QVariant::fromValue(QList<int>({ i, i })) };
        object.setProperty(QByteArray("property" + QByteArray::number(i)), values[i % 6]);
    }
}

QObject& wideObject()
{
    static QObject object;
    fillWide(object);
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

/// A window as programs have them, with a file dialog.
QWidget& program()
{
    static QMainWindow window;
    if (window.centralWidget())
        return window;
    auto* const dialog = new QFileDialog(&window);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->show(); // makes its parts
    dialog->hide();
    window.setCentralWidget(new QTextEdit);
    for (int i = 0; i < 4; ++i) {
        auto* const dock = new QDockWidget(QString::number(i));
        dock->setWidget(new QTreeView);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        QMenu* const menu = window.menuBar()->addMenu(QString::number(i));
        for (int j = 0; j < 10; ++j)
            menu->addAction(QString::number(j));
    }
    window.addToolBar(QStringLiteral("tools"))->addWidget(new QComboBox);
    window.statusBar();
    return window;
}

/// Each property of each object as the list shows it, for the first time.
void openProgram(benchmark::State& state)
{
    const auto open = [](auto& self, KnFieldContainer& node) -> void {
        const KnFieldData* const table = node.getContainerFieldData();
        for (int i = 0; i < table->getNum(); ++i) {
            KbString text;
            table->getField(&node, i)->get(text);
            benchmark::DoNotOptimize(text);
        }
        const auto& group = static_cast<KnGroup&>(node);
        for (int i = 0; i < group.getNumChildren(); ++i)
            self(self, *group.getChild(i));
    };
    QWidget& window = program();
    for (auto _ : state) {
        const KnNodePtr node(crvObjectNode(&window));
        open(open, *node.get());
    }
}

/// The rival: the bare values.
void readProgram(benchmark::State& state)
{
    QWidget& window = program();
    for (auto _ : state) {
        QObjectList all = window.findChildren<QObject*>();
        all.append(&window);
        for (const QObject* object : all) {
            const QMetaObject* const meta = object->metaObject();
            for (int i = 0; i < meta->propertyCount(); ++i) {
                const QVariant value = meta->property(i).read(object);
                benchmark::DoNotOptimize(value);
            }
        }
    }
}

/// From the selection of an object to the painted list, in the inspector's window.
void openInWindow(benchmark::State& state)
{
    QObject root;
    const KnNodePtr node(crvObjectNode(&root));
    CrvInspector inspector(node.get());
    inspector.show();
    inspector.window()->resize(1600, 1000);
    auto* const list = inspector.window()->findChild<QTreeView*>(QStringLiteral("fieldList"));
    std::vector<std::unique_ptr<QObject>> objects;
    for (auto _ : state) {
        state.PauseTiming();
        objects.push_back(std::make_unique<QObject>());
        fillWide(*objects.back());
        const KnNodePtr fresh(crvObjectNode(objects.back().get()));
        QCoreApplication::processEvents();
        state.ResumeTiming();
        CrvServices::getInstance()->selectNode(fresh.get());
        QCoreApplication::processEvents();
        list->viewport()->repaint();
    }
    if (list->model()->rowCount() < propertyCount)
        state.SkipWithError("the list doesn't show the object");
}

/// What an object costs the program for each of its events, while somebody looks into it.
void sendToSeen(benchmark::State& state)
{
    QObject object;
    const KnNodePtr node(crvObjectNode(&object));
    benchmark::DoNotOptimize(count(static_cast<const KnGroup&>(*node.get())));
    QEvent event(QEvent::User);
    for (auto _ : state)
        QCoreApplication::sendEvent(&object, &event);
}

/// The rival: one that nobody has looked into.
void sendToOther(benchmark::State& state)
{
    QObject object;
    const KnNodePtr node(crvObjectNode(&object));
    QEvent event(QEvent::User);
    for (auto _ : state)
        QCoreApplication::sendEvent(&object, &event);
}

// clazy:excludeall=non-pod-global-static the library keeps a benchmark in a static object
BENCHMARK(openObject)->Unit(benchmark::kMicrosecond);
BENCHMARK(readObject)->Unit(benchmark::kMicrosecond);
BENCHMARK(openTree)->Unit(benchmark::kMicrosecond);
BENCHMARK(copyTree)->Unit(benchmark::kMicrosecond);
BENCHMARK(openProgram)->Unit(benchmark::kMillisecond);
BENCHMARK(readProgram)->Unit(benchmark::kMillisecond);
BENCHMARK(openInWindow)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(sendToSeen);
BENCHMARK(sendToOther);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true); // its settings are no person's
    const QApplication application(argc, argv);
    KnDatabase::init();
    return runBenchmarks(argc, argv,
        { { "opening an object to reading it", "openObject", "readObject" },
            { "opening a tree to copying its names", "openTree", "copyTree" },
            { "opening a program's window to reading it", "openProgram", "readProgram" },
            { "an event of an object that is seen to another", "sendToSeen", "sendToOther" } });
}
