// SPDX-License-Identifier: BSD-3-Clause
#include "Player.h"

#include "CrvServices.h"
#include "KnSensorQueue.h"
#include "MainWindow.h"
#include "PanelOracle.h"
#include "StepKinds.h"
#include "StepRandom.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QThread>
#include <QUndoStack>

#include <cstdio>
#include <limits>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int outerLevel = 1; // the program's own loop
constexpr int deepest = 3; // loops in each other, before dialogs are closed
constexpr int longestQueue = 10000; // milliseconds until the queue must have run
constexpr int longestDelay = 2000; // milliseconds until a panel must show what the scene holds
constexpr int patience = 200; // turns until all dialogs must be closed

QEvent::Type turnType()
{
    static const int type = QEvent::registerEventType();
    return QEvent::Type(type);
}

bool isPerson(const StepKind& kind) { return kind.by == StepKind::By::Person; }

} // namespace

Player::Player(Stage& stage, Cast cast)
    : m_stage(stage)
    , m_cast(cast)
{
}

void Player::run(quint64 seed, std::vector<int> steps)
{
    m_seed = seed;
    m_steps = std::move(steps);
    m_next = 0;
    const QMetaObject::Connection turns = connect(QAbstractEventDispatcher::instance(),
        &QAbstractEventDispatcher::aboutToBlock, this, &Player::aboutToBlock);
    QApplication::exec();
    disconnect(turns);
}

void Player::fail(const QString& what)
{
    std::printf("FOUND %s\n", qPrintable(what));
    std::fflush(stdout);
    // What the process holds would be reported as leaks.
    _exit(foundStatus);
}

/// Before each wait of any loop, also while there is still something to do: the event comes last.
void Player::aboutToBlock()
{
    if (m_isPosted || QThread::currentThread()->loopLevel() <= m_busyLevel)
        return;
    m_isPosted = true;
    QCoreApplication::postEvent(this, new QEvent(turnType()), std::numeric_limits<int>::min());
}

bool Player::event(QEvent* event)
{
    if (event->type() != turnType())
        return QObject::event(event);
    m_isPosted = false;
    // Events are also handled in the middle of an input, which is no loop of the program's.
    const int level = QThread::currentThread()->loopLevel();
    if (level <= m_busyLevel)
        return true;
    const QScopedValueRollback busy(m_busyLevel, level);
    turn();
    return true;
}

void Player::turn()
{
    if (m_stage.hand().isBusy()) {
        m_stage.hand().goOn();
        return;
    }
    const bool inDialog = m_busyLevel > outerLevel;
    if (!inDialog) {
        if (!isSettled() || !check())
            return;
    }
    if (m_next == m_steps.size() || m_busyLevel > deepest)
        leaveDialogs();
    else
        play(m_steps[m_next++], inDialog || QApplication::activePopupWidget());
}

void Player::play(int step, bool inDialog)
{
    if (step == m_plantedStep)
        m_stage.roots().front()->setName("planted");
    StepRandom random(m_seed, step);
    const StepKind& kind = chooseStepKind(random);
    if (kind.by == StepKind::By::Scene && m_cast == Cast::PersonAlone)
        return;
    if (inDialog && !kind.inDialogs)
        return;
    std::printf("step %d: %s\n", step, kind.name);
    std::fflush(stdout);
    if (isPerson(kind) && answerFileDialog(random))
        return;
    kind.run(m_stage, random);
}

/// A file dialog deletes and renames files, so it gets nothing but a name in the folder.
bool Player::answerFileDialog(StepRandom& random)
{
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog)
        return false;
    auto* const line = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
    if (!line || random.oneIn(3)) {
        Stage::note(u"no file"_s);
        m_stage.hand().press(Qt::Key_Escape);
        return true;
    }
    const QString name = m_stage.fileName(random);
    Stage::note(u"file "_s + name);
    line->setFocus();
    m_stage.hand().press(Qt::Key_A, Qt::ControlModifier);
    m_stage.hand().type(name);
    m_stage.hand().press(Qt::Key_Return);
    return true;
}

void Player::leaveDialogs()
{
    const bool isOuter = m_busyLevel == outerLevel;
    QWidget* const popup = QApplication::activePopupWidget();
    if (isOuter && !popup && !QApplication::activeModalWidget()) {
        if (m_next == m_steps.size())
            end();
        m_leaving = 0;
        return;
    }
    if (++m_leaving > patience)
        fail(u"a dialog or a menu can't be left: "_s
            + Targets::path(popup ? popup : QApplication::activeModalWidget()));
    m_stage.hand().press(Qt::Key_Escape);
}

/// Whether the sensors have run. They don't during a pause.
bool Player::isSettled()
{
    if (KnSensorQueue::getInstance().isEmpty() || CrvServices::getInstance()->isPaused()) {
        m_waiting.invalidate();
        return true;
    }
    if (!m_waiting.isValid())
        m_waiting.start();
    if (m_waiting.hasExpired(longestQueue))
        fail(u"the queue of sensors doesn't get empty"_s);
    return false;
}

/// Whether what the panels show agrees with the scene by now.
bool Player::isFollowed()
{
    const QString error = PanelOracle::check(&m_stage.window());
    if (error.isEmpty()) {
        m_behind.invalidate();
        return true;
    }
    if (!m_behind.isValid())
        m_behind.start();
    if (m_behind.hasExpired(longestDelay))
        fail(error);
    return false;
}

/// Whether the next step may come.
bool Player::check()
{
    if (!m_stage.window().isVisible())
        m_stage.reopen();
    if (m_knownBeginnings != m_stage.beginnings()) {
        m_knownBeginnings = m_stage.beginnings();
        m_undoOracle.begin(m_stage);
    }
    if (!QApplication::activeWindow())
        m_stage.window().activateWindow();
    if (CrvServices::getInstance()->isPaused())
        return true;
    const QString error = m_editorOracle.check(&m_stage.window());
    if (!error.isEmpty())
        fail(error);
    return isFollowed();
}

void Player::end()
{
    if (m_cast == Cast::PersonAlone) {
        const QString error = m_undoOracle.check(m_stage);
        if (!error.isEmpty())
            fail(error);
    }
    QCoreApplication::exit(); // without closing windows, which may ask
}
