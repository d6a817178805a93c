// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleFixture.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"

#include <QDockWidget>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

struct ErrorClass {
    const char* name;
    KnErrorCallback (*callback)();
    void* (*data)();
    void (*set)(KnErrorCallback callback, void* data);
};
template <class Error>
constexpr ErrorClass errorClass(const char* name)
{
    return { name, &Error::getHandlerCallback, &Error::getHandlerData, &Error::setHandlerCallback };
}
const ErrorClass errorClasses[]
    = { errorClass<KnDebugError>("KnDebugError"), errorClass<KnError>("KnError"),
          errorClass<KnErrorStack>("KnErrorStack"), errorClass<KnGLError>("KnGLError"),
          errorClass<KnMemoryError>("KnMemoryError"), errorClass<KnReadError>("KnReadError") };

/// Every second class has no handler, and each one its own data.
KnErrorCallback ownCallback(qsizetype i)
{
    const KnErrorCallback callback = [](const KnError*, void*) {};
    return i % 2 ? nullptr : callback;
}
void* ownData(qsizetype i) { return const_cast<ErrorClass*>(&errorClasses[i]); }

/// A line for each class: whose callback and whose data its handler has.
QStringList handlers()
{
    QStringList lines;
    for (qsizetype i = 0; i < std::ssize(errorClasses); ++i) {
        const auto& [name, callback, data, set] = errorClasses[i];
        lines << QLatin1String(name) + (callback() == ownCallback(i) ? u" own"_s : u" other"_s)
                + (data() == ownData(i) ? u" own"_s : u" other"_s);
    }
    return lines;
}

/// Writes down in what state the console is when it calls.
class WatchingShell : public TestShell {
public:
    std::function<QString()> state = [] { return QString(); };

    void addDockWidget(QDockWidget* dock, int area) override
    {
        noted([&] { TestShell::addDockWidget(dock, area); });
    }
    void removeDockWidget(QDockWidget* dock) override
    {
        noted([&] { TestShell::removeDockWidget(dock); });
    }
    void registerExtension(CrvExtension* extension, int kind) override
    {
        noted([&] { TestShell::registerExtension(extension, kind); });
    }
    void unregisterExtension(CrvExtension* extension) override
    {
        noted([&] { TestShell::unregisterExtension(extension); });
    }

private:
    void noted(const auto& call)
    {
        const QString before = state();
        call();
        calls().last() += before;
    }
};

} // namespace

/// What the console takes over, shows and gives back from one step of its life to the next.
class TestConsole : public ConsoleFixture {
    Q_OBJECT
private Q_SLOTS:
    void theEvent()
    {
        CrvConsole::ConsoleEvent message(u"text"_s);
        QCOMPARE(int(message.type()), 1000);
        QEvent none(QEvent::None);
        QObject object;
        QCOMPARE(m_console->event(&none), object.event(&none));
        QCOMPARE(m_console->event(&message), object.event(&message));
        QCOMPARE(text(), u"text"_s);

        // An error takes the event's road on this thread as well.
        KnReadError::post("later");
        QCOMPARE(text(), u"text"_s);
        QTRY_COMPARE(text(), u"text\nlater"_s);
    }

    void unloadGivesEveryHandlerBack()
    {
        m_console->deactivate();
        m_console->unload();
        for (qsizetype i = 0; i < std::ssize(errorClasses); ++i)
            errorClasses[i].set(ownCallback(i), ownData(i));
        const QStringList own = handlers();
        m_console->unload();
        CrvConsole().unload();
        QCOMPARE(handlers(), own);
        m_console->load();
        QCOMPARE(handlers(), QStringList(own).replaceInStrings(u"own"_s, u"other"_s));
        m_console->unload();
        QCOMPARE(handlers(), own);
        for (const ErrorClass& error : errorClasses)
            error.set(nullptr, nullptr);
    }

    void everythingIsBackAsItWas()
    {
        m_console->deactivate();
        m_console->unload();
        static_cast<WatchingShell&>(*m_shell).state
            = [this, console = m_console.get()] { return state(*console); };
        // l(oad), a(ctivate), h(ide), s(how), d(eactivate), u(nload)
        const QHash<char, void (CrvConsole::*)()> steps = { { 'l', &CrvConsole::load },
            { 'a', &CrvConsole::activate }, { 'h', &CrvConsole::hide }, { 's', &CrvConsole::show },
            { 'd', &CrvConsole::deactivate }, { 'u', &CrvConsole::unload } };
        // The digits set the preference.
        const QByteArray order("luladulashsdahdasdu1lulahsdadu0lahsdadadu");
        QStringList states;
        QStringList expected;
        const auto callsSoFar = [this] { return m_shell->calls().join(u", "); };
        for (qsizetype i = 0; i < order.size(); ++i) {
            const char step = order[i];
            if (!steps.contains(step)) {
                qputenv("CORVANE_STDOUT_CAPTURE", QByteArray(1, step));
                continue;
            }
            const bool wasShown = m_console->isShown();
            m_shell->calls().clear();
            (*m_console.*steps[step])();
            const QString name = u"step %1, %2: "_s.arg(i).arg(QLatin1Char(step));
            const QString capture
                = qgetenv("CORVANE_STDOUT_CAPTURE") == "0" ? u""_s : u" out err"_s;
            if (step == 'u') {
                states << name + callsSoFar();
                expected << name;
                continue;
            }
            // The kernel's messages arrive from load to unload, whatever the dock does.
            m_console->clear();
            KnReadError::post("read");
            KnGLError::post(1, "gl");
            QTRY_COMPARE(text(), u"read\ngl: unknown OpenGL error (0x0001)"_s);
            states << name + callsSoFar() + u';' + state(*m_console);
            const QString visible = u" shown dock frame view"_s;
            switch (step) {
            case 'a':
                // A frame that was never shown is not hidden either, nor one that a dock got.
                expected << name + u"registerExtension Console 1"_s
                        + (order[i - 1] == 'l' ? u" frame"_s : QString())
                        + u", addDockWidget Console 8 active"_s + capture + u" frame; active"_s
                        + capture + visible;
                break;
            case 'd':
                expected << name + u"removeDockWidget Console"_s
                        + (wasShown ? u" shown dock"_s : QString())
                        + u", unregisterExtension Console;"_s;
                break;
            case 'l':
                expected << name + u"; frame"_s;
                break;
            default:
                expected << name + u"; active"_s + capture + (step == 's' ? visible : QString());
            }
        }
        QCOMPARE(states, expected);
        QVERIFY(std::cout.rdbuf() == &m_ownOut && std::cerr.rdbuf() == &m_ownErr);
    }

    void eachLoadLetsEverythingIn()
    {
        for (QPushButton* button :
            { m_console->m_errorsButton, m_console->m_warningsButton, m_console->m_infosButton })
            click(button);
        std::cerr << "unseen";
        m_console->deactivate();
        m_console->unload();
        m_console->load();
        m_console->activate();
        std::cerr << "error";
        std::cout << "info";
        KnDebugError::post(1, "warning");
        QTRY_COMPARE(text(), u"error\ninfo\nwarning"_s);
    }

    void whatStillWaitsAtUnloadShowsInNoView()
    {
        // More than a slice, so that some of it waits for the next one.
        for (int i = 0; i < 2000; ++i)
            KnReadError::post("late");
        QCoreApplication::sendPostedEvents(m_console.get(), QEvent::User);
        std::thread([] {
            KnReadError::post("late");
            std::cout << "late";
        }).join();
        m_console->deactivate();
        m_console->unload();
        for (int i = 0; i < 2; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::postEvent(m_console.get(), new CrvConsole::ConsoleEvent(u"late"_s));
        }
        m_console->load();
        m_console->activate();
        // Not a message at all.
        QCoreApplication::postEvent(m_console.get(), new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        std::cout << "new";
        QCoreApplication::processEvents();
        m_console->deactivate();
        m_console->activate();
        QCOMPARE(text(), u"new"_s);
    }

private:
    std::unique_ptr<TestShell> makeShell() override { return std::make_unique<WatchingShell>(); }
    /// What stands open or captured, in words; the console is loaded.
    QString state(CrvConsole& console) const
    {
        const QWidget* const frame = console.m_scrollAreaContainer->parentWidget();
        const auto* const dock = qobject_cast<const QDockWidget*>(frame->parentWidget());
        QString words;
        for (const auto& [word, is] : std::initializer_list<std::pair<const char*, bool>> {
                 { "active", console.isActive() }, { "out", std::cout.rdbuf() != &m_ownOut },
                 { "err", std::cerr.rdbuf() != &m_ownErr }, { "shown", console.isShown() },
                 { "dock", dock && !dock->isHidden() }, { "frame", !frame->isHidden() },
                 { "view", console.m_consoleOutput->isVisible() } })
            words += is ? u' ' + QLatin1String(word) : QString();
        return words;
    }
};

QTEST_MAIN(TestConsole)
#include "test_console.moc"
