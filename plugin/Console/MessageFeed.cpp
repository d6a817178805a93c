// SPDX-License-Identifier: BSD-3-Clause
#include "MessageFeed.h"

#include "ConsoleText.h"

#include <QScopedValueRollback>
#include <QTextDocument>
#include <QTextEdit>

namespace {

// What takes up to 100 ms feels instant. A slice, its layout and the drawing stay below that.
constexpr int sliceMilliseconds = 20;
// Inserting text takes next to no time, laying it out some 0.1 us a character.
constexpr qsizetype sliceCharacters = 100000;
// A slow machine shows this much in any case, so that a handful of messages comes in one turn.
constexpr qsizetype sliceLeast = 4096;
constexpr qsizetype charactersPerMessage = 64; // for what a message costs by itself

} // namespace

void MessageFeed::Slice::start()
{
    m_clock.start();
    m_characters = 0;
}

void MessageFeed::Slice::count(const QString& text)
{
    m_characters += text.size() + charactersPerMessage;
}

bool MessageFeed::Slice::isSpent() const
{
    return m_characters >= sliceCharacters
        || (m_characters >= sliceLeast && m_clock.elapsed() >= sliceMilliseconds);
}

MessageFeed::MessageFeed(Show show)
    : m_show(std::move(show))
{
    m_nextSlice.setSingleShot(true);
    QObject::connect(&m_nextSlice, &QTimer::timeout, &m_nextSlice, [this] { showSlice(); });
}

void MessageFeed::setView(QTextEdit* view)
{
    m_view = view;
    m_nextSlice.stop();
    m_backlog.clear();
    m_echoes.clear();
}

void MessageFeed::print(Message message)
{
    if (!m_view)
        return;
    // What the view itself prints while it takes a message (a host's message handler may write to
    // a stream) waits, since a document can't be changed from inside its own layout. It stays in
    // front of what this thread prints later.
    if (m_changing) {
        m_echoes.push_back(std::move(message));
        return;
    }
    changeView([&] {
        showEchoes();
        m_show(message);
    });
}

void MessageFeed::take(Message message)
{
    if (!m_view)
        return;
    // Qt delivers posted events until there is none left, before it looks at input.
    goOnLater();
    if (m_changing || !m_backlog.empty() || m_slice.isSpent()) {
        m_backlog.push_back(std::move(message));
        return;
    }
    m_slice.count(message.text);
    changeView([&] { m_show(message); });
}

void MessageFeed::goOnLater()
{
    // A timer of no length, unlike a posted event, lets input in first.
    if (m_nextSlice.isActive())
        return;
    m_slice.start();
    m_nextSlice.start();
}

void MessageFeed::showSlice()
{
    // One of the view's signals runs an event loop; changeView goes on when it returns.
    if (m_changing)
        return;
    m_slice.start();
    changeView([this] {
        showEchoes();
        showBacklog();
    });
}

template <class Work>
void MessageFeed::changeView(Work work)
{
    {
        const QScopedValueRollback<bool> changing(m_changing, true);
        const KeepPlace keepPlace(*m_view);
        work();
    }
    if (!m_backlog.empty() || !m_echoes.empty())
        goOnLater();
}

void MessageFeed::showEchoes()
{
    // Only those that wait now: showing one may bring the next.
    for (auto count = m_echoes.size(); count > 0; --count)
        showFirst(m_echoes);
}

void MessageFeed::showBacklog()
{
    if (m_backlog.empty())
        return;
    // It may change the wrap mode, which needs an up-to-date layout and so no edit block.
    const auto isLong = [this] { return m_backlog.front().text.size() >= longWord; };
    if (isLong()) {
        showFirst(m_backlog);
        return;
    }
    // One layout for all of them: one for each message takes several times as long.
    QTextCursor all(m_view->document());
    all.beginEditBlock();
    while (!m_backlog.empty() && !isLong() && !m_slice.isSpent())
        showFirst(m_backlog);
    all.endEditBlock();
}

void MessageFeed::showFirst(std::deque<Message>& messages)
{
    const Message message = std::move(messages.front());
    messages.pop_front();
    m_slice.count(message.text);
    m_show(message);
}
