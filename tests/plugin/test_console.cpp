// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleFixture.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"

#include <QDockWidget>

#include <string_view>

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

using Handler = std::pair<KnErrorCallback, void*>;
struct ErrorClass {
    KnErrorCallback (*callback)();
    void* (*data)();
    void (*set)(KnErrorCallback callback, void* data);
};
template <class Error>
constexpr ErrorClass errorClass
    = { &Error::getHandlerCallback, &Error::getHandlerData, &Error::setHandlerCallback };
const ErrorClass errorClasses[]
    = { errorClass<KnDebugError>, errorClass<KnError>, errorClass<KnErrorStack>,
          errorClass<KnGLError>, errorClass<KnMemoryError>, errorClass<KnReadError> };

QList<Handler> handlers()
{
    QList<Handler> handlers;
    for (const ErrorClass& error : errorClasses)
        handlers << Handler(error.callback(), error.data());
    return handlers;
}

} // namespace

/// What the console takes over, shows and gives back from one step of its life to the next.
class TestConsole : public ConsoleFixture {
    Q_OBJECT
private Q_SLOTS:
    void theEvent()
    {
        CrvConsole::ConsoleEvent message(u"text"_s);
        QCOMPARE(int(message.type()), 1000);
        m_console->event(&message);
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
        QList<Handler> own;
        const KnErrorCallback callback = [](const KnError*, void*) {};
        for (const ErrorClass& error : errorClasses) {
            // Every second class has no handler, and each one its own data.
            own << Handler(own.size() % 2 ? nullptr : callback, const_cast<ErrorClass*>(&error));
            error.set(own.last().first, own.last().second);
        }
        m_console->unload();
        CrvConsole().unload();
        QCOMPARE(handlers(), own);
        m_console->load();
        const QList<Handler> taken = handlers();
        for (qsizetype i = 0; i < own.size(); ++i)
            QVERIFY(taken[i].first != own[i].first && taken[i].second != own[i].second);
        m_console->unload();
        QCOMPARE(handlers(), own);
        for (const ErrorClass& error : errorClasses)
            error.set(nullptr, nullptr);
    }

    void everythingIsBackAsItWas()
    {
        m_console->deactivate();
        m_console->unload();
        // l(oad), a(ctivate), h(ide), s(how), d(eactivate), u(nload): the calls of the shell, and
        // the state, where + stands for a capture.
        const QHash<char, std::pair<void (CrvConsole::*)(), const char*>> steps = {
            { 'l', { &CrvConsole::load, "; frame" } },
            { 'a',
                { &CrvConsole::activate,
                    "registerExtension Console 1, addDockWidget Console 8;"
                    " active+ shown dock frame view" } },
            { 'h', { &CrvConsole::hide, "; active+" } },
            { 's', { &CrvConsole::show, "; active+ shown dock frame view" } },
            { 'd',
                { &CrvConsole::deactivate,
                    "removeDockWidget Console, unregisterExtension Console;" } },
            { 'u', { &CrvConsole::unload, ";" } },
        };
        QStringList states;
        QStringList expected;
        QLatin1String capture(" out err");
        // The digits set the preference.
        for (const char name : "luladulashsdahdasdu1lulahsdadu0lahsdadadu"sv) {
            if (!steps.contains(name)) {
                qputenv("CORVANE_STDOUT_CAPTURE", QByteArray(1, name));
                capture = QLatin1String(name == '0' ? "" : " out err");
                continue;
            }
            m_shell->calls().clear();
            (*m_console.*steps[name].first)();
            states << m_shell->calls().join(u", "_s) + u';';
            expected << QString::fromLatin1(steps[name].second).replace(u'+', capture);
            if (name == 'u')
                continue;
            // The kernel's messages arrive from load to unload, whatever the dock does.
            m_console->clear();
            KnReadError::post("read");
            KnGLError::post(1, "gl");
            QTRY_COMPARE(text(), u"read\ngl: unknown OpenGL error (0x0001)"_s);
            states.last() += state(*m_console);
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
        std::thread([] { std::cout << "late"; }).join();
        m_console->deactivate();
        m_console->unload();
        QCoreApplication::postEvent(m_console.get(), new CrvConsole::ConsoleEvent(u"late"_s));
        m_console->load();
        m_console->activate();
        // Not a message at all.
        QCoreApplication::postEvent(m_console.get(), new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        std::cout << "new";
        QCoreApplication::processEvents();
        QCOMPARE(text(), u"new"_s);
    }

private:
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
