// SPDX-License-Identifier: BSD-3-Clause
#include "Soak.h"

#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "KnFieldContainer.h"
#include "KnGraphWalk.h"
#include "MainWindow.h"
#include "Orrery.h"
#include "Player.h"
#include "SceneRoots.h"
#include "SceneSearch.h"
#include "WatchPanel.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPixmapCache>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int stepsInRound = 300;
constexpr int frameTime = 16; // milliseconds
constexpr int longestPaste = 500; // characters
constexpr double warmingUp = 0.25; // of the time, until all that is made once has been made

/// A window as after its start, whatever a person has left it like. What is kept on purpose until
/// somebody clears it would count as grown.
void tidyUp(Stage& stage)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* const dialog = qobject_cast<QDialog*>(window); dialog && dialog->isVisible())
            dialog->reject();
    }
    CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
    manager->setActiveProfile(manager->getProfilesList().front());
    CrvServices::getInstance()->setPaused(false);
    MainWindow& window = stage.window();
    window.resize(1280, 800);
    for (QLineEdit* filter : { window.findChild<QLineEdit*>(u"sceneFilter"_s),
             window.findChild<QLineEdit*>(u"fieldFilter"_s) }) {
        if (filter)
            filter->clear();
    }
    if (auto* const console = window.findChild<QTextEdit*>(u"m_consoleOutput"_s))
        console->clear();
    WatchList& watched = window.findChild<WatchPanel*>()->list();
    watched.removeRows(0, watched.rowCount());
}

/// A line keeps the room for the longest text that was ever pasted into it.
void cutShort(QClipboard::Mode mode)
{
    QClipboard* const clipboard = QGuiApplication::clipboard();
    const QString text = clipboard->text(mode);
    if (text.size() > longestPaste)
        clipboard->setText(text.left(longestPaste), mode);
}

void watchSome(Stage& stage)
{
    MainWindow& window = stage.window();
    window.findChild<QDockWidget*>(u"watchDock"_s)->show();
    for (const QString& place :
        { u"Earth place.rotation"_s, u"Mars place.rotation"_s, u"Desk lamp.intensity"_s }) {
        SceneSearch search(plainRoots(stage.roots()));
        if (search.find(place) && search.field())
            window.findChild<WatchPanel*>()->watch(search.field(), 0);
    }
}

/// Has each field shown once: editors make their widgets when they are first seen.
void visitAll(const Stage& stage, Player& player)
{
    KnGraphWalk walk;
    for (const KnNodePtr& root : stage.roots())
        walk.add(root.get());
    while (KnFieldContainer* const node = walk.next()) {
        const KnFieldData* const data = node->getContainerFieldData();
        for (int i = 0; i < data->getNum(); ++i) {
            CrvServices::getInstance()->selectField(data->getField(node, i));
            player.run(0, {});
        }
    }
}

} // namespace

bool Soak::run(double minutes)
{
    const qint64 duration = qint64(minutes * 60'000.0);
    std::vector<int> steps(stepsInRound);
    std::iota(steps.begin(), steps.end(), 0);

    // Qt's cache has a limit of its own, far above what may grow here. It isn't cleared instead:
    // Qt would keep the names of all pixmaps that it had.
    QPixmapCache::setCacheLimit(0);
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::changed, &cutShort);
    QElapsedTimer clock;
    clock.start();
    auto orrery = std::make_unique<Orrery>();
    Stage stage(Stage::Role::Guest);
    stage.replaceScene(orrery->root());
    stage.keepWindow();
    QTimer frames;
    QObject::connect(&frames, &QTimer::timeout, &frames,
        [&] { orrery->moveTo(double(clock.elapsed()) / 1000.0); });
    frames.start(frameTime);

    Player player(stage, Player::Cast::PersonAndScene);
    std::printf("soaking for %g minutes from seed %llu on\n", minutes,
        static_cast<unsigned long long>(m_seed));
    visitAll(stage, player);
    int rounds = 0;
    while (!clock.hasExpired(duration)) {
        watchSome(stage);
        player.run(m_seed + quint64(rounds), steps);
        // The steps have added to this one, too.
        orrery = std::make_unique<Orrery>();
        stage.replaceScene(orrery->root());
        tidyUp(stage);
        player.run(m_seed, {}); // handles what that has brought about
        const ResourceUse use = ResourceUse::now();
        std::fprintf(stderr, "%5.1f min, round %d: %s\n", double(clock.elapsed()) / 60'000.0,
            ++rounds, qPrintable(use.text()));
        if (double(clock.elapsed()) > warmingUp * double(duration))
            m_samples.push_back(use);
    }
    std::fprintf(stderr, "%d comparisons of an editor\n", player.comparisons());
    return judge() && player.comparisons() > 0;
}

bool Soak::judge() const
{
    bool isFlat = true;
    std::fprintf(stderr, "\ngrown over %zu rounds behind the warming up:\n", m_samples.size());
    for (std::size_t i = 0; i < ResourceUse::count; ++i) {
        const ResourceUse::Kind& kind = ResourceUse::kinds()[i];
        const double growth = ResourceUse::growth(m_samples, i);
        const bool isWithin = growth <= kind.bound;
        isFlat = isFlat && isWithin;
        std::fprintf(stderr, "  %-9s %9.1f %s (at most %g)%s\n", kind.name, growth, kind.unit,
            kind.bound, isWithin ? "" : "  TOO MUCH");
    }
    return isFlat;
}
