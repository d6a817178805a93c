// SPDX-License-Identifier: BSD-3-Clause
#include "CrvConsole.h"
#include "EditorFixture.h"
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"
#include "KnReadError.h"
#include "OwnBuffer.h"

#include <QBoxLayout>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

#include <functional>
#include <iostream>
#include <thread>

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
        const QString before = state();
        TestShell::addDockWidget(dock, area);
        calls().last() += before;
    }
    void removeDockWidget(QDockWidget* dock) override
    {
        const QString before = state();
        TestShell::removeDockWidget(dock);
        calls().last() += before;
    }
    void registerExtension(CrvExtension* extension, int kind) override
    {
        const QString before = state();
        TestShell::registerExtension(extension, kind);
        calls().last() += before;
    }
    void unregisterExtension(CrvExtension* extension) override
    {
        const QString before = state();
        TestShell::unregisterExtension(extension);
        calls().last() += before;
    }
};

} // namespace

/// An active console in the window of a dark desktop.
class TestConsole : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setPalette(QPalette(Qt::black));
    }
    void init()
    {
        failOnWarnings();
        m_shell = std::make_unique<WatchingShell>();
        m_shell->window().show();
        m_console = std::make_unique<CrvConsole>();
        m_console->load();
        m_shell->state = [this] { return state(); };
        m_console->activate();
    }
    void cleanup()
    {
        qunsetenv("CORVANE_STDOUT_CAPTURE");
        m_shell->state = [] { return QString(); };
        // Its host forgot to unload it.
        m_console.reset();
        QVERIFY(std::cout.rdbuf() == &m_ownOut && std::cerr.rdbuf() == &m_ownErr);
        m_shell.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void sourcesColoursAndFilters()
    {
        const struct {
            void (*report)();
            char output; // e(rror), w(arning), i(nfo)
        } sources[] = {
            { [] { std::cerr << "text"; }, 'e' },
            { [] { std::cout << "text"; }, 'i' },
            { [] { std::cout.put('t').put('e').put('x').put('t').put('\n'); }, 'i' },
            { [] { std::thread([] { std::cout << "text"; }).join(); }, 'i' },
            { [] { KnDebugError::post(-1, "text"); }, 'e' },
            { [] { KnDebugError::post(0, "text"); }, 'e' },
            { [] { KnDebugError::post(1, "text"); }, 'w' },
            { [] { KnDebugError::post(2, "text"); }, 'i' },
            { [] { KnDebugError::post(3, "text"); }, 'e' },
            { [] { KnError::post("text"); }, 'e' },
            { [] { KnErrorStack::post({ "text" }); }, 'e' },
            { [] { KnMemoryError::post("text"); }, 'e' },
            { [] { std::thread([] { KnReadError::post("text"); }).join(); }, 'e' },
        };
        const QHash<char, QPair<QPushButton*, QString>> classes
            = { { 'e', { m_console->m_errorsButton, u"#800000:text"_s } },
                  { 'w', { m_console->m_warningsButton, u"#808000:text"_s } },
                  { 'i', { m_console->m_infosButton, u"#008000:text"_s } } };
        for (const char off : { ' ', 'e', 'w', 'i' }) {
            QStringList expected;
            click(classes.value(off).first);
            for (const auto& [report, output] : sources) {
                report();
                QCoreApplication::processEvents();
                if (output != off)
                    expected << classes[output].second;
            }
            click(classes.value(off).first);
            QCOMPARE(transcript(), expected.join(u'\n'));
            click(m_console->m_clearButton);
            QCOMPARE(text(), QString());
        }
        QCOMPARE(view()->palette().color(QPalette::Base), QColor(Qt::white));
    }

    void theForm()
    {
        QFrame frame;
        Ui::m_consoleFrame form;
        form.setupUi(&frame);
        QStringList lines;
        describe(lines, &frame);
        QCOMPARE(lines.join(u'\n'), uR"(QFrame m_consoleFrame 843x238 min 0x0 frame 38
QVBoxLayout verticalLayout
QWidget m_scrollAreaContainer min 0x0
QVBoxLayout sacLayout
QScrollArea m_consoleScrollArea min 0x0 resizable
QWidget m_scrollAreaContents min 0x0
QHBoxLayout horizontalLayout
QTextEdit m_consoleOutput min 0x0 read-only
QVBoxLayout m_buttonsLayout
QPushButton m_errorsButton min 64x0 checked icon 14x14 Displays errors
spacer 20x40 1 7
QPushButton m_warningsButton min 64x0 checked icon 14x14 Displays warnings
spacer 20x40 1 7
QPushButton m_infosButton min 64x0 checked icon 14x14 Displays informations
spacer 20x40 1 7
QPushButton m_clearButton min 64x0 icon 16x16 Clears the console
QPushButton m_saveButton min 64x0 icon 16x16 Saves the content of the console)"_s);
    }

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

    void textIsShownAndSavedAsPrinted()
    {
        QStringList shown;
        QStringList plain;
        const auto print = [&shown, &plain](const char* printed) {
            std::cerr << "error";
            std::cout << printed;
            plain << u"error"_s << QString::fromUtf8(printed);
            shown << u"#800000:error"_s;
            for (const QString& line : plain.last().split(u'\n'))
                shown << (line.isEmpty() ? line : u"#008000:"_s + line);
        };
        // The last two are the halves of one character.
        for (const char* printed : { "<b>bold</b>", "a < b && c > d", "&lt;p&gt;",
                 "<!doctype html>", "<?xml?><p/>", "two\nlines", "<p>\n  <i>indented</i>\n",
                 "  blanks \t and\ttabs  ", "\xC3\xBC \xE2\x88\x80", "\xC3", "\xBC" })
            print(printed);
        QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
        const QString selected = view()->textCursor().selectedText();
        for (const char* printed : { "text behind a selection", "<i>mark-up</i> behind it" })
            print(printed);
        std::thread([&print] { print("another thread's"); }).join();
        QTRY_COMPARE(transcript(), shown.join(u'\n'));
        QCOMPARE(view()->textCursor().selectedText(), selected);

        const QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path())); // where the dialog opens
        QFile file(u"out.txt"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        saveAs(QString());
        QCOMPARE(file.size(), 5000);
        saveAs(file.fileName());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), plain.join(u'\n').toLatin1());
        QCOMPARE(QDir().entryList(QDir::Files), QStringList(file.fileName()));
    }

    void whatThePrintingOfAMessagePrintsComesBehindIt()
    {
        // Inside of the change, where the document takes no other.
        QObject once;
        connect(view()->document(), &QTextDocument::contentsChange, &once, [this, &once] {
            disconnect(view()->document(), nullptr, &once, nullptr);
            const QString before = text();
            std::cerr << "second";
            QCOMPARE(text(), before);
        });
        std::cout << "first";
        std::cout << "third";
        QCOMPARE(text(), u"first\nsecond\nthird"_s);
        connect(view(), &QTextEdit::textChanged, &once, [this, &once] {
            disconnect(view(), nullptr, &once, nullptr);
            std::cerr << "fifth";
        });
        std::cout << "fourth";
        QTRY_VERIFY(text().endsWith(u"\nfourth\nfifth"));
    }

    /// Threads print and report so much that the view is far behind: the user interface may wait
    /// for them all the same, takes input between two slices, and shows each message in its order.
    void aFloodLeavesRoomForInput()
    {
        constexpr int messageCount = 5000;
        std::vector<std::thread> threads;
        for (const char thread : { 'A', 'B' }) {
            threads.emplace_back([thread] {
                for (int i = 0; i < messageCount; ++i) {
                    const std::string message = thread + std::to_string(i);
                    if (i % 4 == 0)
                        std::cout << message;
                    else
                        KnReadError::post(message.c_str());
                }
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QList<int> shown;
        QTimer input;
        connect(&input, &QTimer::timeout, this, [this, &shown] {
            if (shown.isEmpty())
                KnReadError::post("last");
            shown << view()->document()->blockCount();
        });
        input.start();
        QTRY_COMPARE(view()->document()->blockCount(), 2 * messageCount + 1);
        QVERIFY2(
            shown.size() > 2 && shown[1] < messageCount, qPrintable(QString::number(shown[0])));
        QStringList lines = text().split(u'\n');
        QCOMPARE(lines.takeLast(), u"last"_s);
        QHash<QChar, int> next;
        for (const QString& line : lines)
            QCOMPARE(line.mid(1).toInt(), next[line[0]]++);

        // Somebody has seen enough.
        for (int i = 0; i < messageCount; ++i)
            KnReadError::post("error");
        click(m_console->m_clearButton);
        connect(&input, &QTimer::timeout, m_console->m_errorsButton, [this, &input] {
            if (view()->document()->blockCount() > 1) {
                input.stop();
                click(m_console->m_errorsButton);
                std::thread([] { std::cout << "info"; }).join();
            }
        });
        QTRY_VERIFY(text().endsWith(u"info"_s));
        QVERIFY(view()->document()->blockCount() < messageCount);
    }

    void aWordThatFillsManyLinesIsShownAtOnceAndWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("anywhere");
        QTest::newRow("long text of short words") << u"eight is "_s.repeated(30000) << false;
        QTest::newRow("lines") << u"line\n"_s.repeated(5000) << false;
        QTest::newRow("a word for a few lines") << QString(1000, u'x') << false;
        QTest::newRow("a long word") << QString(300000, u'x') << true;
        QTest::newRow("a long word in the middle")
            << u"some text "_s + QString(300000, u'x') + u" and more"_s << true;
        QTest::newRow("blanks that don't break") << u"1\u00a0"_s.repeated(150000) << true;
    }
    void aWordThatFillsManyLinesIsShownAtOnceAndWhole()
    {
        QFETCH(QString, text);
        QFETCH(bool, anywhere);
        const std::string printed = text.toStdString();
        std::cout << "before";
        std::thread([&printed] { std::cout << printed << "behind"; }).join();
        std::cerr << printed;
        const auto mode = [this] { return view()->wordWrapMode(); };
        QTRY_VERIFY(view()->toPlainText().endsWith(u"behind"));
        // A view's plain text has ordinary blanks.
        text.replace(u'\u00a0', u' ');
        QVERIFY(view()->toPlainText() == u"before\n"_s + text + u'\n' + text + u"\nbehind"_s);
        QCOMPARE(mode() == QTextOption::WrapAnywhere, anywhere);
        click(m_console->m_clearButton);
        QCOMPARE(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
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
            states << name + callsSoFar() + u';' + state();
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
        m_console->deactivate();
        m_console->activate();
        QCOMPARE(text(), u"new"_s);
    }

    /// Threads report and print while the user interface thread filters, clears, deactivates and
    /// activates: each message comes out once, in the view or on the stream's own buffer, and those
    /// of one thread in the view in their order.
    void everyMessageOfEveryThreadIsCounted()
    {
        constexpr int messageCount = 600;
        m_ownOut.writes.clear();
        m_ownErr.writes.clear();
        std::atomic<int> rounds = 0;
        const auto print = [](const std::string& thread, int i) {
            const std::string message = thread + ' ' + std::to_string(i);
            std::cout << "out " + message;
            std::cerr << "err " + message;
            KnReadError::post(("read " + message).c_str());
            KnDebugError::post(1, ("warning " + message).c_str());
        };
        std::vector<std::thread> threads;
        for (const char* thread : { "A", "B", "C" }) {
            threads.emplace_back([&rounds, print, thread] {
                for (int i = 0; i < messageCount; ++i) {
                    print(thread, i);
                    // Not done before this thread has been through all of its steps.
                    while (rounds < i)
                        std::this_thread::yield();
                }
            });
        }

        QStringList seen;
        QHash<QString, int> next;
        const auto takeView = [&] {
            QCoreApplication::processEvents();
            for (const QString& line : text().split(u'\n', Qt::SkipEmptyParts)) {
                const int number = line.section(u' ', 2).toInt();
                QVERIFY(number >= std::exchange(next[line.section(u' ', 0, 1)], number + 1));
                seen << line;
            }
            click(m_console->m_clearButton);
        };
        for (; rounds < messageCount; ++rounds) {
            print("own", rounds);
            if (rounds % 50 == 0)
                m_console->m_warningsButton->toggle();
            if (rounds % 40 == 0 && m_console->isActive())
                takeView();
            if (rounds % 30 == 0)
                m_console->isActive() ? m_console->deactivate() : m_console->activate();
        }
        for (std::thread& thread : threads)
            thread.join();
        if (!m_console->isActive())
            m_console->activate();
        QCoreApplication::postEvent(m_console.get(), new CrvConsole::ConsoleEvent(u"end"_s));
        QTRY_VERIFY(text().endsWith(u"end"));
        takeView();
        QCOMPARE(seen.takeLast(), u"end"_s);

        QVERIFY(!m_ownOut.writes.empty() && !m_ownErr.writes.empty());
        m_ownOut.writes.insert(
            m_ownOut.writes.end(), m_ownErr.writes.begin(), m_ownErr.writes.end());
        for (const std::string& line : m_ownOut.writes)
            seen << QString::fromStdString(line);
        // Some of the class that was filtered by turns are missing.
        seen.removeIf([](const QString& line) { return line.startsWith("warning"_L1); });
        QCOMPARE(seen.removeDuplicates(), 0);
        QCOMPARE(seen.size(), 3 * 4 * messageCount);
    }

private:
    QTextEdit* view() const { return m_console->m_consoleOutput; }
    QString text() const { return view()->toPlainText(); }
    /// What stands open or captured, in words; the console is loaded.
    QString state() const
    {
        const QWidget* const frame = m_console->m_scrollAreaContainer->parentWidget();
        const auto* const dock = qobject_cast<const QDockWidget*>(frame->parentWidget());
        QString words;
        for (const auto& [word, is] : std::initializer_list<std::pair<const char*, bool>> {
                 { "active", m_console->isActive() }, { "out", std::cout.rdbuf() != &m_ownOut },
                 { "err", std::cerr.rdbuf() != &m_ownErr }, { "shown", m_console->isShown() },
                 { "dock", dock && !dock->isHidden() }, { "frame", !frame->isHidden() },
                 { "view", view()->isVisible() } })
            words += is ? u' ' + QLatin1String(word) : QString();
        return words;
    }
    /// A line for each widget, layout and spacer.
    static void describe(QStringList& lines, QWidget* widget)
    {
        const auto size = [](QSize is) { return u"%1x%2"_s.arg(is.width()).arg(is.height()); };
        const auto name = [](const QObject* object) {
            return QLatin1String(object->metaObject()->className()) + u' ' + object->objectName();
        };
        QString line = name(widget);
        if (!widget->parentWidget())
            line += u' ' + size(widget->size());
        line += u" min "_s + size(widget->minimumSize());
        if (widget->maximumSize() != QSize(16777215, 16777215))
            line += u" max "_s + size(widget->maximumSize());
        if (widget->inherits("QFrame") && !widget->inherits("QAbstractScrollArea"))
            line += u" frame %1"_s.arg(static_cast<QFrame*>(widget)->frameStyle());
        if (const auto* const view = qobject_cast<QTextEdit*>(widget))
            line += view->isReadOnly() ? u" read-only"_s : QString();
        auto* const area = qobject_cast<QScrollArea*>(widget);
        if (area && area->widgetResizable())
            line += u" resizable"_s;
        if (const auto* const button = qobject_cast<QPushButton*>(widget)) {
            line += button->isCheckable() && button->isChecked() ? u" checked"_s : QString();
            for (const QSize is : button->icon().availableSizes())
                line += u" icon "_s + size(is);
            line += u' ' + button->toolTip() + button->text();
        }
        lines << line;
        if (area)
            describe(lines, area->widget());
        if (!area && widget->layout())
            describe(lines, widget->layout());
    }
    static void describe(QStringList& lines, QLayout* layout)
    {
        lines << QLatin1String(layout->metaObject()->className()) + u' ' + layout->objectName();
        for (int i = 0; i < layout->count(); ++i) {
            QLayoutItem* const item = layout->itemAt(i);
            if (item->widget()) {
                describe(lines, item->widget());
            } else if (item->layout()) {
                describe(lines, item->layout());
            } else {
                const QSizePolicy policy = item->spacerItem()->sizePolicy();
                const QSize size = item->sizeHint();
                lines << u"spacer %1x%2 %3 %4"_s.arg(size.width())
                             .arg(size.height())
                             .arg(policy.horizontalPolicy())
                             .arg(policy.verticalPolicy());
            }
        }
    }
    /// A line for each paragraph: the pieces of one colour behind its name.
    QString transcript() const
    {
        QStringList lines;
        for (QTextBlock block = view()->document()->begin(); block.isValid();
             block = block.next()) {
            lines << QString();
            for (auto it = block.begin(); !it.atEnd(); ++it)
                lines.last() += it.fragment().charFormat().foreground().color().name() + u':'
                    + it.fragment().text();
        }
        return lines.join(u'\n');
    }
    static void click(QPushButton* button)
    {
        if (button)
            QTest::mouseClick(button, Qt::LeftButton);
    }
    /// Clicks the button and types a file's name into the dialog; an empty one cancels.
    void saveAs(const QString& fileName)
    {
        QTimer::singleShot(0, this, [fileName] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle() + u'|' + dialog->nameFilters().join(u'|'),
                u"Save the content of the console|Console outputs (*.txt)"_s);
            auto* const line = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
            line->setCompleter(nullptr);
            QTest::keyClicks(line, fileName);
            // The question whether to replace the file is asked from within the key press.
            QTimer::singleShot(
                0, dialog, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Y); });
            QTest::keyClick(dialog, fileName.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        click(m_console->m_saveButton);
    }

    OwnBuffer m_ownOut { std::cout };
    OwnBuffer m_ownErr { std::cerr };
    std::unique_ptr<WatchingShell> m_shell;
    std::unique_ptr<CrvConsole> m_console;
};

QTEST_MAIN(TestConsole)
#include "test_console.moc"
