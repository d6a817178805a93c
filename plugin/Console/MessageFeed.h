// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PrintBrake.h"

#include <QElapsedTimer>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>

class QTextEdit;

/// Brings messages into the view and owns those that wait for it. All of it runs on the view's
/// thread, the one of the user interface. What that thread prints is shown at once. When more
/// arrives from the event queue than a turn of the event loop has time for, the rest waits and is
/// shown in slices, between which the window takes input.
class MessageFeed {
public:
    struct Message {
        QString text;
        int outputType; ///< as ConsoleEvent::getOutputType
        PrintBrake::Place place; ///< given up with the message
    };
    /// Adds a message to the view, or drops it if its class is turned off by now.
    using Show = std::function<void(const Message& message)>;

    explicit MessageFeed(Show show);

    /// The view isn't owned. Null while there is none: messages that wait or arrive are dropped.
    void setView(QTextEdit* view);

    /// Shows what the view's thread prints.
    void print(Message message);
    /// Shows what the event queue delivers, or lets it wait behind earlier messages.
    void take(Message message);

private:
    /// How much has been shown since the event loop last ran.
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
    std::deque<Message> m_echoes; // printed by the view's thread while m_changing
    QTimer m_nextSlice;
    Slice m_slice;
};
