// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleHarness.h"
#include "EditorFixture.h"
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"
#include "KnReadError.h"
#include "Pixmaps.h"

#include <QDirIterator>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

#include <iostream>
#include <thread>

namespace {

struct Source {
    const char* name;
    void (*report)();
    Qt::GlobalColor color;
    const char* button;
};

template <int severity>
void debugError()
{
    KnDebugError::post(severity, "text");
}

const Source sources[] = {
    { "cerr", [] { std::cerr << "text"; }, Qt::darkRed, "m_errorsButton" },
    { "cout", [] { std::cout << "text"; }, Qt::darkGreen, "m_infosButton" },
    { "a line of characters", [] { std::cout.put('t').put('e').put('x').put('t').put('\n'); },
        Qt::darkGreen, "m_infosButton" },
    { "debug error 0", debugError<0>, Qt::darkRed, "m_errorsButton" },
    { "debug error 1", debugError<1>, Qt::darkYellow, "m_warningsButton" },
    { "debug error 2", debugError<2>, Qt::darkGreen, "m_infosButton" },
    { "debug error 3", debugError<3>, Qt::darkRed, "m_errorsButton" },
    { "debug error -1", debugError<-1>, Qt::darkRed, "m_errorsButton" },
    { "error", [] { KnError::post("text"); }, Qt::darkRed, "m_errorsButton" },
    { "error stack", [] { KnErrorStack::post({ "text" }); }, Qt::darkRed, "m_errorsButton" },
    { "memory error", [] { KnMemoryError::post("text"); }, Qt::darkRed, "m_errorsButton" },
    { "read error", [] { KnReadError::post("text"); }, Qt::darkRed, "m_errorsButton" },
    { "another thread's cout", [] { std::thread([] { std::cout << "text"; }).join(); },
        Qt::darkGreen, "m_infosButton" },
    { "another thread's cerr", [] { std::thread([] { std::cerr << "text"; }).join(); }, Qt::darkRed,
        "m_errorsButton" },
    { "another thread's error", [] { std::thread(debugError<1>).join(); }, Qt::darkYellow,
        "m_warningsButton" },
};

const char* const buttons[] = { "m_errorsButton", "m_warningsButton", "m_infosButton" };

} // namespace

class TestConsole : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        failOnWarnings();
        m_harness = std::make_unique<ConsoleHarness>();
        // The dialog opens in the current folder.
        QVERIFY(QDir::setCurrent(m_dir.path()));
        QFile::remove(QStringLiteral("out.txt"));
    }
    void cleanup()
    {
        m_harness.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void theFormIsWhatItsUsersLookFor()
    {
        QStringList chain;
        for (const QWidget* widget = view(); !widget->isWindow(); widget = widget->parentWidget())
            chain << widget->objectName();
        QCOMPARE(chain.join(u' '),
            QStringLiteral("m_consoleOutput m_scrollAreaContents qt_scrollarea_viewport "
                           "m_consoleScrollArea m_scrollAreaContainer m_consoleFrame Console"));

        QStringList column;
        const QLayout* const layout = m_harness->console().m_buttonsLayout;
        for (int i = 0; i < layout->count(); ++i) {
            const QWidget* const widget = layout->itemAt(i)->widget();
            column << (widget ? widget->objectName() + u' ' + widget->toolTip() : QString());
        }
        QCOMPARE(column.join(u'|'),
            QStringLiteral("m_errorsButton Displays errors||m_warningsButton Displays warnings||"
                           "m_infosButton Displays informations||m_clearButton Clears the console|"
                           "m_saveButton Saves the content of the console"));

        QStringList slotNames;
        const QMetaObject& meta = CrvConsole::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            slotNames << QString::fromLatin1(meta.method(i).methodSignature());
        QCOMPARE(slotNames.join(u' '),
            QStringLiteral("clear() outputErrors() outputInfos() outputWarnings() save()"));
    }

    void theLibraryHoldsFiveIcons()
    {
        QStringList found;
        for (QDirIterator it(QStringLiteral(":/console_icons"), QDirIterator::Subdirectories);
             it.hasNext();) {
            const QImage image(it.next());
            if (!it.fileInfo().isDir())
                found << QStringLiteral("%1 %2").arg(it.filePath()).arg(image.width());
        }
        found.sort();
        QCOMPARE(found.join(u'|').remove(QStringLiteral(":/console_icons/Icons/")),
            QStringLiteral("clear.png 16|errors.png 14|infos.png 14|save.png 16|warnings.png 14"));
    }

    void theFieldIconsReadOnLightAndDark()
    {
        QSet<QByteArray> different;
        for (QPixmap (*icon)() : { defaultPixmap, ignorePixmap, editPixmap, addPixmap, deletePixmap,
                 upPixmap, downPixmap }) {
            const QImage image = icon().toImage().convertToFormat(QImage::Format_ARGB32);
            QCOMPARE(image.size(), QSize(16, 16));
            QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
            int sum = 0;
            int count = 0;
            for (int i = 0; i < 16 * 16; ++i) {
                const QRgb pixel = image.pixel(i % 16, i / 16);
                sum += qAlpha(pixel) ? qGray(pixel) : 0;
                count += qAlpha(pixel) ? 1 : 0;
            }
            QVERIFY(count > 30 && sum / count > 0x70 && sum / count < 0xa0);
            different << QByteArray(reinterpret_cast<const char*>(image.bits()), 16 * 16 * 4);
        }
        QCOMPARE(different.size(), 7);
    }

    void sourcesColoursAndFilters_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < static_cast<int>(std::size(sources)); ++i)
            QTest::newRow(sources[i].name) << i;
    }
    void sourcesColoursAndFilters()
    {
        QFETCH(int, number);
        const Source& source = sources[number];
        const auto report = [&source] {
            source.report();
            QCoreApplication::processEvents();
        };
        report();
        QCOMPARE(text(), QStringLiteral("text"));
        QCOMPARE(colors(), QList<QColor> { source.color });

        m_harness->click(source.button);
        report();
        QCOMPARE(text(), QStringLiteral("text"));

        m_harness->click(source.button);
        for (const char* button : buttons) {
            if (qstrcmp(button, source.button) != 0)
                m_harness->click(button);
        }
        report();
        QCOMPARE(text(), QStringLiteral("text\ntext"));
        QCOMPARE(colors(), QList<QColor> { source.color });
        m_harness->click("m_clearButton");
        QCOMPARE(text(), QString());
        m_harness->click("m_clearButton");
    }

    void textIsShownAndSavedAsPrinted_data()
    {
        QTest::addColumn<QString>("printed");
        const char* const texts[] = { "<b>bold</b>", "std::vector<int> v; std::map<a, b>",
            "a < b && c > d", "&lt;p&gt;", "<!doctype html>", "<?xml version=\"1.0\"?><p/>",
            "two\nlines", "<p>\n  <i>indented</i>\n", "  blanks \t and\ttabs  ", "<pre>  \t</pre>",
            "\u00fcber \u00e9" };
        for (const char* printed : texts)
            QTest::newRow(printed) << QString::fromUtf8(printed);
    }
    void textIsShownAndSavedAsPrinted()
    {
        QFETCH(QString, printed);
        for (int i = 0; i < 2; ++i) {
            std::cerr << "before";
            std::cout << printed.toStdString();
        }
        const QString expected
            = QStringLiteral("before\n") + printed + QStringLiteral("\nbefore\n") + printed;
        QCOMPARE(text(), expected);
        for (QTextBlock block = view()->document()->begin(); block.isValid(); block = block.next())
            QCOMPARE(colors(block),
                block.text() == QStringLiteral("before")
                    ? QList<QColor> { Qt::darkRed }
                    : QList<QColor>(block.text().isEmpty() ? 0 : 1, Qt::darkGreen));

        saveAs(QStringLiteral("out.txt"));
        QCOMPARE(contents(QStringLiteral("out.txt")), expected.toLatin1());
    }

    void utf8InPieces()
    {
        std::cout << "\xC3"
                  << "\xA9";
        QCOMPARE(text(), QStringLiteral("\uFFFD\n\uFFFD"));
        std::cout.put('\xC3').put('\xA9').put('\n');
        QVERIFY(text().endsWith(QStringLiteral("\n\u00e9")));
    }

    void aSelectionKeepsItsColour()
    {
        std::cout << "first";
        QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
        std::cerr << "second";
        QCOMPARE(text(), QStringLiteral("first\nsecond"));
        QCOMPARE(colors(), QList<QColor>({ Qt::darkGreen, Qt::darkRed }));
    }

    void savingReplacesTheWholeFile()
    {
        const QString name = QStringLiteral("out.txt");
        QFile longer(name);
        QVERIFY(longer.open(QIODevice::WriteOnly));
        longer.write(QByteArray(5000, 'x'));
        longer.close();
        std::cout << "outside Latin-1: \u2200.";
        saveAs(name);
        QCOMPARE(contents(name), QByteArray("outside Latin-1: ?."));

        saveAs(QString());
        QCOMPARE(QDir().entryList(QDir::Files).size(), 1);
    }

    void whatThePrintingOfAMessagePrintsComesBehindIt()
    {
        connect(view(), &QTextEdit::textChanged, this, [this] {
            disconnect(view(), nullptr, this, nullptr);
            std::cerr << "second";
        });
        std::cout << "first";
        QTRY_COMPARE(text(), QStringLiteral("first\nsecond"));
    }

    void textIsReadableUnderADarkPalette()
    {
        m_harness.reset();
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::black));
        m_harness = std::make_unique<ConsoleHarness>();
        const auto luminance = [](const QColor& color) {
            const auto linear = [](double v) { return std::pow(v, 2.2); };
            return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
                + 0.0722 * linear(color.blueF());
        };
        const double ground = luminance(view()->palette().color(QPalette::Base));
        for (const Source& source : sources)
            QVERIFY((ground + 0.05) / (luminance(source.color) + 0.05) > 4);
        m_harness.reset();
        QApplication::setPalette(before);
    }

private:
    QTextEdit* view() const { return m_harness->console().m_consoleOutput; }
    QString text() const { return view()->toPlainText(); }
    static QList<QColor> colors(const QTextBlock& block)
    {
        QList<QColor> result;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QColor color = it.fragment().charFormat().foreground().color();
            if (!result.contains(color))
                result << color;
        }
        return result;
    }
    /// All colours of the text, in the order of their first paragraph.
    QList<QColor> colors() const
    {
        QList<QColor> result;
        for (QTextBlock block = view()->document()->begin(); block.isValid();
             block = block.next()) {
            for (const QColor& color : colors(block)) {
                if (!result.contains(color))
                    result << color;
            }
        }
        return result;
    }
    static QByteArray contents(const QString& fileName)
    {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("can't be read");
    }
    /// Clicks the button and types the name of a file in the current folder into the dialog; an
    /// empty one cancels.
    void saveAs(const QString& fileName)
    {
        QTimer::singleShot(0, this, [fileName] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Save the content of the console"));
            QCOMPARE(dialog->nameFilters(), QStringList(QStringLiteral("Console outputs (*.txt)")));
            auto* const line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            line->setCompleter(nullptr);
            QTest::keyClicks(line, fileName);
            // The question whether to replace the file is asked from within the key press.
            if (!fileName.isEmpty() && QFile::exists(fileName)) {
                QTimer::singleShot(0, dialog,
                    [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Y); });
            }
            QTest::keyClick(dialog, fileName.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        m_harness->click("m_saveButton");
    }

    QTemporaryDir m_dir;
    std::unique_ptr<ConsoleHarness> m_harness;
};

QTEST_MAIN(TestConsole)
#include "test_console.moc"
