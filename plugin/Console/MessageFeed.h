// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PrintBrake.h"

#include <QElapsedTimer>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>

class QTextEdit;

/// Brings messages into the view, on the view's thread. What this thread prints is shown at once.
/// When more arrives from the event queue than a turn of the event loop has time for, the rest
/// waits and is shown in slices, between which the window takes input.
class MessageFeed {
public:
    struct Message {
        QString text;
        int outputType;
        PrintBrake::Place place;
    };
    /// Adds a message to the view, or drops it if its class isn't let in any more.
    using Show = std::function<void(const Message& message)>;

    explicit MessageFeed(Show show);

    /// Null while there is no view: what waits is dropped then, and so is what comes.
    void setView(QTextEdit* view);

    /// Shows what this thread prints.
    void print(Message message);
    /// Shows what the event queue delivers, or lets it wait behind what came before it.
    void take(Message message);

private:
    /// What is shown between two looks at the event loop.
    class Slice {
    public:
        void start();
        void count(const QString& text);
        bool isSpent() const;

    private:
        QElapsedTimer m_clock;
        qsizetype m_characters = 0;
    };

    void showSlice();
    void showEchoes();
    void showBacklog();
    void showFirst(std::deque<Message>& messages);
    template <class Work>
    void changeView(Work work);
    void goOnLater();

    const Show m_show;
    QTextEdit* m_view = nullptr; // not owned
    bool m_changing = false; // a message is going into the view
    std::deque<Message> m_backlog; // from the event queue
    std::deque<Message> m_echoes; // what this thread printed while a message went into the view
    QTimer m_nextSlice;
    Slice m_slice;
};
