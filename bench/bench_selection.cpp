// SPDX-License-Identifier: BSD-3-Clause
// What it takes to select a field of another type, up to the last pixel of its editor, for all
// editors one after the other: in a window with nothing but the plug-in, and in the inspector's.
// The rival is a dock of the same size in a bare window that gets the same widgets, built anew for
// each field, and deletes those of the field before. Both hide the dock meanwhile, so that they
// draw the same pixels, once; what that drawing takes alone is said, too.
//
// Usage: bench_selection [turns]
#include "CrvDefaults.h"
#include "CrvFieldEditors.h"
#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "EditorMakers.h"
#include "KnNodePtr.h"
#include "KnSensorQueue.h"
#include "KnTestNode.h"
#include "MainWindow.h"
#include "TestShell.h"
#include "Timing.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDockWidget>
#include <QFrame>

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace {

constexpr double frame = 1e3 / 60; // milliseconds
constexpr int rows = 1'000; // of each array
constexpr QSize windowSize(1200, 800); // pixels

/// Notes whether a widget is painted.
class PaintWatch : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }
    bool isPainted() const { return m_painted; }

private:
    bool m_painted = false;
};

/// Until all is drawn: a table lays itself out in a turn of its own, and draws again in the next
/// one.
void settle()
{
    do
        QCoreApplication::sendPostedEvents();
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)
        || !KnSensorQueue::getInstance().isEmpty());
}

/// A node with a field for each editor.
class Fields {
public:
    Fields()
    {
        const KnFieldData& table = *m_node->getContainerFieldData();
        for (int i = 0; i < table.getNum(); ++i) {
            m_all.push_back(table.getField(m_node, i));
            if (auto* const array = dynamic_cast<KnMField*>(m_all.back()))
                array->setNum(rows);
        }
    }

    KnNodePtr node() const { return m_reference; }
    std::vector<KnField*>& all() { return m_all; }
    const std::vector<KnField*>& all() const { return m_all; }

private:
    KnTestNode* m_node = new KnTestNode;
    KnNodePtr m_reference { m_node };
    std::vector<KnField*> m_all;
};

/// Draws a widget that is complete once more, with all that is in it.
void redraw(QWidget& widget)
{
    widget.update();
    for (QWidget* part : widget.findChildren<QWidget*>())
        part->update();
    settle();
}

/// Ends the program if the editor isn't on the screen after `select`.
void require(const CrvFieldEditors& editor, const Work& select)
{
    PaintWatch watch;
    editor.getFrame()->installEventFilter(&watch);
    select();
    settle();
    if (!watch.isPainted())
        qFatal("the editor isn't shown");
}

/// A window with the editors of the plug-in.
class Host {
public:
    /// The window is that of the shell.
    Host(QMainWindow& window, Fields& fields)
    {
        CrvPluginsManager::getInstance()->useBuiltInProfiles();
        CrvPluginsManager::getInstance()->adoptPlugin(&m_plugin);
        CrvServices::getInstance()->setRoots({ fields.node() });
        window.resize(windowSize);
        window.show();
        std::set<CrvFieldEditors*> seen;
        // Two fields of one editor are no selection of another type.
        std::erase_if(fields.all(), [&](KnField* field) {
            CrvServices::getInstance()->selectField(field);
            settle();
            return !seen.insert(m_editors[field] = shownEditor()).second;
        });
    }
    ~Host()
    {
        CrvServices::getInstance()->selectNode(nullptr);
        CrvPluginsManager::getInstance()->unloadAll();
        CrvServices::getInstance()->setRoots({});
    }

    const CrvFieldEditors& editor(KnField* field) { return *m_editors.at(field); }
    QWidget& dock(KnField* field) { return *editor(field).getFrame()->parentWidget(); }
    void select(KnField* field)
    {
        require(editor(field), [field] { CrvServices::getInstance()->selectField(field); });
    }

private:
    CrvFieldEditors* shownEditor() const
    {
        for (CrvExtension* extension : m_plugin.getExtensions()) {
            auto* const editor = qobject_cast<CrvFieldEditors*>(extension);
            if (editor && editor->getEditedObject())
                return editor;
        }
        return nullptr;
    }

    CrvDefaults m_plugin;
    std::map<KnField*, CrvFieldEditors*> m_editors;
};

/// The rival.
class BareHost {
public:
    /// For a dock of that size; if it has no width, as wide as the editors are.
    explicit BareHost(QSize dockSize)
    {
        m_window.setCentralWidget(new QWidget);
        m_window.addDockWidget(Qt::RightDockWidgetArea, &m_dock);
        m_window.resize(windowSize.width(), dockSize.height());
        if (dockSize.width() > 0)
            m_dock.setFixedWidth(dockSize.width());
        m_window.show();
    }
    ~BareHost() { drop(m_editor); }

    void select(KnField* field, const CrvFieldEditors& like)
    {
        std::unique_ptr<CrvFieldEditors> former
            = std::exchange(m_editor, m_makers.at(like.getName().toUtf8())());
        m_editor->load();
        m_editor->setEditedObject(field);
        require(*m_editor, [&] {
            m_dock.hide();
            drop(former);
            m_dock.setWidget(m_editor->getFrame());
            m_editor->activate();
            m_dock.show();
        });
    }
    QSize dockSize() const { return m_dock.size(); }

private:
    void drop(std::unique_ptr<CrvFieldEditors>& editor)
    {
        if (!editor)
            return;
        editor->deactivate();
        // The frame belongs to the editor, so the dock gives it back.
        m_dock.setWidget(nullptr);
        editor->getFrame()->setParent(nullptr);
        editor->unload();
        editor.reset();
    }

    QMainWindow m_window;
    QDockWidget m_dock;
    const std::map<std::string, EditorMaker> m_makers = editorMakers();
    std::unique_ptr<CrvFieldEditors> m_editor;
};

using Times = std::map<KnField*, std::vector<double>>;

/// The size of the dock for all editors, without a width if that isn't the same for all of them.
QSize commonDockSize(Host& host, const Fields& fields)
{
    std::set<int> widths;
    int height = 0;
    for (KnField* field : fields.all()) {
        host.select(field);
        widths.insert(host.dock(field).width());
        height = host.dock(field).height();
    }
    return { widths.size() == 1 ? *widths.begin() : 0, height };
}

void compare(const char* where, QMainWindow& window, int turns)
{
    Fields fields;
    Host host(window, fields);
    BareHost rival(commonDockSize(host, fields));
    Times ourTimes;
    Times rivalTimes;
    Times drawTimes;
    for (int turn = 0; turn < turns; ++turn) {
        for (KnField* field : fields.all()) {
            ourTimes[field].push_back(milliseconds([&] { host.select(field); }));
            QWidget& dock = host.dock(field);
            drawTimes[field].push_back(milliseconds([&] { redraw(dock); }));
            const QSize size = dock.size();
            const CrvFieldEditors& like = host.editor(field);
            rivalTimes[field].push_back(milliseconds([&] { rival.select(field, like); }));
            if (rival.dockSize() != size)
                qFatal("the rival draws %dx%d instead of %dx%d", rival.dockSize().width(),
                    rival.dockSize().height(), size.width(), size.height());
        }
        CrvServices::getInstance()->selectField(nullptr);
        settle();
    }
    std::printf("%s: %zu editors, arrays of %d rows, medians of %d turns\n", where,
        fields.all().size(), rows, turns);
    TimePair sum;
    TimePair longest;
    double drawing = 0;
    double leastGain = 1e9;
    for (KnField* field : fields.all()) {
        const TimePair times { median(ourTimes[field]), median(rivalTimes[field]) };
        printTimes(field->getObjectType().getName().getString().toUtf8().c_str(), times);
        sum = { sum.ours + times.ours, sum.rival + times.rival };
        longest = { std::max(longest.ours, times.ours), std::max(longest.rival, times.rival) };
        drawing += median(drawTimes[field]);
        leastGain = std::min(leastGain, times.rival / times.ours);
    }
    printTimes("all, one after the other", sum);
    printTimes("the longest", longest);
    std::printf("  The longest takes %.2f of a frame of 1/60 s. All are %.1f times faster than "
                "building anew, each at least %.1f times.\n",
        longest.ours / frame, sum.rival / sum.ours, leastGain);
    std::printf("  Drawing the docks alone takes %.3f ms of both; the rest is done %.1f times "
                "faster.\n",
        drawing, (sum.rival - drawing) / (sum.ours - drawing));
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int turns = numberArgument(argc, argv, 1, 15);
    {
        TestShell shell;
        compare("the plug-in alone", shell.window(), turns);
    }
    MainWindow window(nullptr);
    compare("in the inspector", window, turns);
    return 0;
}
