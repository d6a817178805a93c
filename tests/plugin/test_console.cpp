// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleHarness.h"
#include "EditorFixture.h"
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"
#include "KnReadError.h"

#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

#include <iostream>
#include <thread>

using namespace Qt::StringLiterals;

class TestConsole : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        failOnWarnings();
        m_harness = std::make_unique<ConsoleHarness>();
    }
    void cleanup() { m_harness.reset(); }

    void sourcesColoursAndFilters()
    {
        CrvConsole& console = m_harness->console;
        const struct {
            QPushButton* button;
            const char* color;
            std::vector<void (*)()> reports;
        } classes[] = {
            { console.m_errorsButton, "#800000:text",
                {
                    [] { std::cerr << "text"; },
                    [] { std::thread([] { std::cerr << "text"; }).join(); },
                    [] { KnDebugError::post(0, "text"); },
                    [] { KnDebugError::post(3, "text"); },
                    [] { KnDebugError::post(-1, "text"); },
                    [] { KnError::post("text"); },
                    [] { KnErrorStack::post({ "text" }); },
                    [] { KnMemoryError::post("text"); },
                    [] { KnReadError::post("text"); },
                } },
            { console.m_warningsButton, "#808000:text",
                {
                    [] { KnDebugError::post(1, "text"); },
                    [] { std::thread([] { KnDebugError::post(1, "text"); }).join(); },
                } },
            { console.m_infosButton, "#008000:text",
                {
                    [] { std::cout << "text"; },
                    [] { std::thread([] { std::cout << "text"; }).join(); },
                    [] { KnDebugError::post(2, "text"); },
                } },
        };
        for (const auto& row : classes) {
            QVERIFY(!row.button->icon().isNull());
            QStringList all;
            for (void (*report)() : row.reports) {
                report();
                QCoreApplication::processEvents();
                QCOMPARE(transcript(), (all << QLatin1String(row.color)).join(u'\n'));
            }
            // With its own button off nothing arrives, and turning it on brings nothing back.
            ConsoleHarness::click(row.button);
            for (void (*report)() : row.reports)
                report();
            QCoreApplication::processEvents();
            ConsoleHarness::click(row.button);
            QCOMPARE(transcript(), all.join(u'\n'));
            ConsoleHarness::click(console.m_clearButton);
            QCOMPARE(m_harness->text(), QString());
        }
    }

    void textIsShownAndSavedAsPrinted()
    {
        QStringList shown;
        QStringList plain;
        for (const char* printed : { "<b>bold</b>", "a < b && c > d", "&lt;p&gt;",
                 "<!doctype html>", "<?xml?><p/>", "two\nlines", "<p>\n  <i>indented</i>\n",
                 "  blanks \t and\ttabs  ", "über é", "∀" }) {
            std::cerr << "error";
            std::cout << printed;
            plain << u"error"_s << QString::fromUtf8(printed);
            shown << u"#800000:error"_s;
            for (const QString& line : plain.last().split(u'\n'))
                shown << (line.isEmpty() ? line : u"#008000:"_s + line);
        }
        QCOMPARE(transcript(), shown.join(u'\n'));

        const QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path())); // where the dialog opens
        QFile file(u"out.txt"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        saveAs(QString());
        QCOMPARE(file.size(), 5000);
        saveAs(u"out.txt"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), plain.join(u'\n').toLatin1());
        QCOMPARE(QDir().entryList(QDir::Files), QStringList(u"out.txt"_s));
    }

    void utf8InPieces()
    {
        std::cout << "\xC3"
                  << "\xA9";
        std::cout.put('\xC3').put('\xA9').put('\n');
        QCOMPARE(m_harness->text(), u"\uFFFD\n\uFFFD\n\u00e9"_s);
    }

    void aSelectionKeepsItsColour()
    {
        std::cout << "first";
        QTest::keyClick(m_harness->view(), Qt::Key_A, Qt::ControlModifier);
        std::cerr << "second";
        QCOMPARE(transcript(), u"#008000:first\n#800000:second"_s);
    }

    void whatThePrintingOfAMessagePrintsComesBehindIt()
    {
        connect(m_harness->view(), &QTextEdit::textChanged, this, [this] {
            disconnect(m_harness->view(), nullptr, this, nullptr);
            std::cerr << "second";
        });
        std::cout << "first";
        QTRY_COMPARE(m_harness->text(), u"first\nsecond"_s);
    }

    void textIsReadableUnderADarkPalette()
    {
        m_harness.reset();
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::black));
        m_harness = std::make_unique<ConsoleHarness>();
        QCOMPARE(m_harness->view()->palette().color(QPalette::Base), QColor(Qt::white));
        QApplication::setPalette(before);
    }

private:
    /// A line for each paragraph: the pieces of one colour behind its name.
    QString transcript() const
    {
        QStringList lines;
        const QTextDocument& document = *m_harness->view()->document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            lines << QString();
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment piece = it.fragment();
                lines.last()
                    += piece.charFormat().foreground().color().name() + u':' + piece.text();
            }
        }
        return lines.join(u'\n');
    }
    /// Clicks the button and types a file's name into the dialog; an empty one cancels. The
    /// question whether to replace the file is answered.
    void saveAs(const QString& fileName)
    {
        QTimer::singleShot(0, this, [fileName] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle() + dialog->nameFilters().join(u'|'),
                u"Save the content of the consoleConsole outputs (*.txt)"_s);
            auto* const line = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
            line->setCompleter(nullptr);
            QTest::keyClicks(line, fileName);
            // The question is asked from within the key press.
            QTimer::singleShot(
                0, dialog, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Y); });
            QTest::keyClick(dialog, fileName.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        ConsoleHarness::click(m_harness->console.m_saveButton);
    }

    std::unique_ptr<ConsoleHarness> m_harness;
};

QTEST_MAIN(TestConsole)
#include "test_console.moc"
