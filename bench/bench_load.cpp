// SPDX-License-Identifier: BSD-3-Clause
// What it takes to load the plug-in with all its widgets and to unload it again, against bare
// widgets of the same classes of Qt's, in the same trees, that are made and deleted; and whether
// the memory stays flat over many rounds.
//
// Usage: bench_load [rounds]
#include "CrvPluginsManager.h"
#include "TestShell.h"
#include "Timing.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

#include <cstdio>

namespace {

using Maker = QWidget* (*)(QWidget* parent);

template <class Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

struct KnownClass {
    const QMetaObject* type;
    Maker maker;
    bool hasOwnParts; // whose children are Qt's, and come with it
};

const KnownClass knownClasses[] = {
    { &QLabel::staticMetaObject, &make<QLabel>, true },
    { &QPushButton::staticMetaObject, &make<QPushButton>, false },
    { &QToolButton::staticMetaObject, &make<QToolButton>, true },
    { &QCheckBox::staticMetaObject, &make<QCheckBox>, true },
    { &QComboBox::staticMetaObject, &make<QComboBox>, true },
    { &QLineEdit::staticMetaObject, &make<QLineEdit>, true },
    { &QSpinBox::staticMetaObject, &make<QSpinBox>, true },
    { &QSlider::staticMetaObject, &make<QSlider>, true },
    { &QTableWidget::staticMetaObject, &make<QTableWidget>, true },
    { &QTextEdit::staticMetaObject, &make<QTextEdit>, true },
    { &QScrollArea::staticMetaObject, &make<QScrollArea>, false },
    { &QDockWidget::staticMetaObject, &make<QDockWidget>, false },
    { &QToolBar::staticMetaObject, &make<QToolBar>, false },
    { &QFrame::staticMetaObject, &make<QFrame>, false },
    { &QWidget::staticMetaObject, &make<QWidget>, false },
};

/// A tree of bare widgets, as a plan.
struct Plan {
    Maker maker = nullptr;
    std::vector<Plan> children;

    int count() const
    {
        int all = 1;
        for (const Plan& child : children)
            all += child.count();
        return all;
    }
    // NOLINTNEXTLINE(misc-no-recursion): as deep as the widgets are
    QWidget* build(QWidget* parent) const
    {
        QWidget* const widget = maker(parent);
        for (const Plan& child : children)
            child.build(widget);
        return widget;
    }
};

// NOLINTNEXTLINE(misc-no-recursion): as deep as the widgets are
Plan planOf(const QWidget& widget)
{
    const QMetaObject* type = widget.metaObject();
    const KnownClass* known = nullptr;
    for (; !known; type = type->superClass()) {
        for (const KnownClass& each : knownClasses) {
            if (each.type == type)
                known = &each;
        }
    }
    Plan plan { known->maker, {} };
    if (!known->hasOwnParts) {
        for (const QObject* child : widget.children()) {
            if (child->isWidgetType() && !child->objectName().startsWith(QLatin1String("qt_")))
                plan.children.push_back(planOf(static_cast<const QWidget&>(*child)));
        }
    }
    return plan;
}

class Bench {
public:
    Bench()
    {
        m_shell.window().show();
        const QWidgetList all = QApplication::allWidgets();
        const QSet<QWidget*> before(all.begin(), all.end());
        load();
        for (const QWidget* widget : QApplication::allWidgets()) {
            if (!before.contains(const_cast<QWidget*>(widget))
                && (!widget->parentWidget() || before.contains(widget->parentWidget())))
                m_plans.push_back(planOf(*widget));
        }
        unload();
    }

    int widgets() const
    {
        int all = 0;
        for (const Plan& plan : m_plans)
            all += plan.count();
        return all;
    }
    void load()
    {
        CrvPluginsManager::getInstance()->useBuiltInProfiles();
        QString error;
        if (!CrvPluginsManager::getInstance()->loadPlugin(
                QStringLiteral(CORVANE_MODULE_FILE), &error))
            qFatal("%s", qPrintable(error));
        TestShell::settle();
    }
    void unload()
    {
        CrvPluginsManager::getInstance()->unloadAll();
        TestShell::settle();
        m_shell.calls().clear();
        // An event loop that runs would do this by itself.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void buildBare()
    {
        for (const Plan& plan : m_plans)
            m_bare.emplace_back(plan.build(nullptr));
        TestShell::settle();
    }
    void deleteBare()
    {
        m_bare.clear();
        TestShell::settle();
    }

private:
    TestShell m_shell;
    std::vector<Plan> m_plans;
    std::vector<std::unique_ptr<QWidget>> m_bare;
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int rounds = numberArgument(argc, argv, 1, 1'000);
    // Qt's cache would keep pixmaps of icons that are gone, up to a limit of its own. It isn't
    // cleared instead: Qt would keep the names of all pixmaps that it had.
    QPixmapCache::setCacheLimit(0);
    Bench bench;
    std::printf("%d widgets of the plug-in\n", bench.widgets());

    std::vector<double> loads;
    std::vector<double> unloads;
    std::vector<double> builds;
    std::vector<double> deletes;
    double heap = 0;
    long resident = 0;
    const int settled = (rounds + 9) / 10; // caches are full by then
    for (int round = 0; round < rounds; ++round) {
        if (round == settled) {
            heap = heapInUse();
            resident = residentMemory();
        }
        loads.push_back(milliseconds([&] { bench.load(); }));
        unloads.push_back(milliseconds([&] { bench.unload(); }));
        if (round >= settled)
            continue;
        builds.push_back(milliseconds([&] { bench.buildBare(); }));
        deletes.push_back(milliseconds([&] { bench.deleteBare(); }));
    }
    const TimePair load { median(loads), median(builds) };
    const TimePair unload { median(unloads), median(deletes) };
    printTimes("load", load);
    printTimes("unload", unload);
    printTimes("both", { load.ours + unload.ours, load.rival + unload.rival });
    std::printf(
        "  memory after %d more rounds: heap %+.0f bytes (%+.1f a round), resident %+ld KiB\n",
        rounds - settled, heapInUse() - heap, (heapInUse() - heap) / (rounds - settled),
        residentMemory() - resident);
    return 0;
}
