// SPDX-License-Identifier: BSD-3-Clause
#include "StreamCapture.h"

#include <QTest>

#include <memory>
#include <sstream>

using Redirector = StdStreamRedirector<char>;

namespace {

/// Adds a bar to each text, by which the calls can be told apart.
void takeText(const char* text, std::streamsize count, void* userData)
{
    static_cast<std::string*>(userData)->append(text, static_cast<std::size_t>(count)) += '|';
}

} // namespace

class TestStreamRedirector : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void twoPaths()
    {
        // "p" writes one character, "b" a block, "f" flushes.
        const char* const rows[][2] = {
            { "pa|pb|p\n", "ab|" },
            { "pa|f", "" },
            { "bab|p\n", "ab||" },
            { "ba\nb\n|b", "a\nb\n||" },
            { "pa|bxy|p\n", "xy|a|" },
            { "pa|p\n|pb|p\n|p\n", "a|b||" },
            { "p\xff|p\n", "\xff|" },
        };
        for (const auto& [writes, calls] : rows) {
            std::ostringstream stream;
            std::string received;
            auto redirector = std::make_unique<Redirector>(stream, &takeText, &received);
            for (const QByteArray& write : QByteArray(writes).split('|')) {
                if (write.startsWith('p'))
                    stream.put(write[1]);
                else if (write.startsWith('b'))
                    stream.write(write.data() + 1, write.size() - 1);
                else
                    stream.flush();
            }
            QVERIFY(stream.good());
            redirector.reset();
            stream << "own";
            QCOMPARE(received + stream.str(), calls + std::string("own"));
        }
    }

    void aWriterThatStillHoldsTheBufferReachesTheStreamsOwn()
    {
        std::ostringstream stream;
        std::string received;
        Redirector* const redirector = captureStream(stream, &takeText, &received);
        stream.put('x');
        releaseStream(redirector);
        redirector->sputn("late ", 5);
        redirector->sputc('c');
        QCOMPARE(stream.str(), std::string("late c"));
        // Nor does the next capture begin with what was left of this one.
        captureStream(stream, &takeText, &received);
        stream.put('\n');
        QCOMPARE(received, std::string("|"));
        releaseStream(redirector);
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
