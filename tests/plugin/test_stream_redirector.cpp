// SPDX-License-Identifier: BSD-3-Clause
#include "StreamCapture.h"

#include <QTest>

#include <memory>
#include <sstream>

using Redirector = StdStreamRedirector<char>;

namespace {

void takeText(const char* text, std::streamsize count, void* userData)
{
    *static_cast<QStringList*>(userData) << QString::fromLatin1(text, count);
}

} // namespace

class TestStreamRedirector : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void twoPaths_data()
    {
        // "p" writes one character, "b" a block, "f" flushes.
        QTest::addColumn<QStringList>("writes");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char* name, const char* writes, const char* calls) {
            const auto split = [](const char* text) {
                return *text ? QString::fromUtf8(text).split(u'|') : QStringList();
            };
            QTest::newRow(name) << split(writes) << split(calls);
        };
        row("a line of single characters", "pa|pb|p\n", "ab");
        row("flush of a partial line", "pa|f", "");
        row("partial line at the end", "pa|pb", "");
        row("block and newline", "bab|p\n", "ab|");
        row("block that ends in a newline", "bab\n", "ab\n");
        row("block of two lines", "ba\nb", "a\nb");
        row("characters wait for their newline", "pa|bxy|p\n", "xy|a");
        row("next line starts empty", "pa|p\n|pb|p\n", "a|b");
        row("not the end of the file", "p\u00ff|p\n", "\u00ff");
        QTest::newRow("empty block") << QStringList(QStringLiteral("b")) << QStringList(QString());
        QTest::newRow("empty line") << QStringList(QStringLiteral("p\n")) << QStringList(QString());
    }
    void twoPaths()
    {
        QFETCH(QStringList, writes);
        QFETCH(QStringList, calls);
        std::ostringstream stream;
        QStringList received;
        auto redirector = std::make_unique<Redirector>(stream, &takeText, &received);
        QCOMPARE(static_cast<std::streambuf*>(redirector.get()), stream.std::ostream::rdbuf());
        for (const QString& write : writes) {
            const std::string text = write.mid(1).toLatin1().toStdString();
            if (write.startsWith(u'p'))
                stream.put(text.front());
            else if (write.startsWith(u'b'))
                stream.write(text.data(), static_cast<std::streamsize>(text.size()));
            else
                stream.flush();
        }
        QVERIFY(stream.good());
        redirector.reset();
        QCOMPARE(received, calls);
        QCOMPARE(stream.std::ostream::rdbuf(), static_cast<std::streambuf*>(stream.rdbuf()));
        stream << "own";
        QCOMPARE(stream.str(), std::string("own"));
    }

    void aWriterThatStillHoldsTheBufferReachesTheStreamsOwn()
    {
        std::ostringstream stream;
        QStringList received;
        Redirector* const redirector = captureStream(stream, &takeText, &received);
        stream.put('x');
        releaseStream(redirector);
        redirector->sputn("late ", 5);
        redirector->sputc('c');
        QCOMPARE(stream.str(), std::string("late c"));

        // Somebody put the buffer back by mistake: the next capture still ends at the stream's own.
        stream.std::ostream::rdbuf(redirector);
        QCOMPARE(captureStream(stream, &takeText, &received), redirector);
        stream << "taken" << '\n';
        releaseStream(redirector);
        stream << '!';
        QCOMPARE(stream.str(), std::string("late c!"));
        QCOMPARE(received.first(), QStringLiteral("taken"));
    }

    void twoCapturesOfOneStreamNest()
    {
        std::ostringstream stream;
        QStringList outer;
        QStringList inner;
        Redirector* const first = captureStream(stream, &takeText, &outer);
        Redirector* const second = captureStream(stream, &takeText, &inner);
        stream << "inner";
        releaseStream(second);
        stream << "outer";
        releaseStream(first);
        releaseStream(nullptr);
        stream << "own";
        QCOMPARE(inner, QStringList(QStringLiteral("inner")));
        QCOMPARE(outer, QStringList(QStringLiteral("outer")));
        QCOMPARE(stream.str(), std::string("own"));
    }

    void theCallbackMayPrintAndRelease()
    {
        struct State {
            std::ostringstream stream;
            Redirector* redirector = nullptr;
            int calls = 0;
        } state;
        const auto callback = [](const char*, std::streamsize, void* userData) {
            auto* const self = static_cast<State*>(userData);
            if (++self->calls == 1)
                self->stream << "from inside";
            else
                releaseStream(self->redirector);
        };
        state.redirector = captureStream(state.stream, callback, &state);
        state.stream << "text";
        state.stream << "after";
        QCOMPARE(state.calls, 2);
        QCOMPARE(state.stream.str(), std::string("after"));
    }
};

QTEST_GUILESS_MAIN(TestStreamRedirector)
#include "test_stream_redirector.moc"
