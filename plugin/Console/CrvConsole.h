// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvExtension.h"
#include "KnError.h"
#include "MessageFeed.h"
#include "PrintBrake.h"
#include "StdStreamRedirector.h"
#include "ui_CrvConsole.h"

#include <QColor>
#include <QEvent>

class QDockWidget;

/// A dock at the bottom of the host's window that shows what the process writes to `std::cout` and
/// `std::cerr` while the console is active, and what the kernel reports through its error classes
/// from `load` to `unload`. Each message is a paragraph in the colour of its class; three buttons
/// decide which classes are let in when a message arrives.
///
/// The view is touched on the user interface thread only. What that thread prints is shown at once.
/// A message from another thread crosses as a ConsoleEvent. When more arrive than a turn of the
/// event loop has time for, the rest waits and is shown in slices, between which the window takes
/// input; threads that print wait a little for a view that is far behind (see PrintBrake), those
/// that report an error never do. The messages of one thread keep their order, except that
/// what the user interface thread prints overtakes errors that it has just reported. None is lost
/// except those still on their way at `unload`. `deactivate` drops nothing: the view lives on, and
/// what was printed before appears in later slices.
class CrvConsole : public CrvExtension, public Ui::m_consoleFrame {
    Q_OBJECT
public:
    /// A message on its way to the user interface thread. Qt's event queue owns it.
    class ConsoleEvent : public QEvent {
    public:
        explicit ConsoleEvent(const QString& text);

        QString getText() const { return m_text; }
        /// 0 for an error, 1 for an info, 2 for a warning. To be set before the event is posted.
        int getOutputType() const { return m_outputType; }
        void setOutputType(int outputType) { m_outputType = outputType; }

    private:
        QString m_text;
        int m_outputType = 0;
    };

    CrvConsole();
    ~CrvConsole() override;

    /// Takes the text of a ConsoleEvent.
    bool event(QEvent* e) override;

    /// Captures the standard streams, unless the setting CORVANE_STDOUT_CAPTURE says no.
    void activate() override;
    void deactivate() override;
    void hide() override;
    /// Takes the kernel's error handlers over; `unload` gives them back.
    void load() override;
    void show() override;
    void unload() override;

public Q_SLOTS:
    /// Empties the view. Messages that wait are shown afterwards, since nobody has seen them yet.
    void clear();
    // Each turns its class of messages on or off. That goes for messages that wait as well, so a
    // person can stop a flood this way.
    void outputErrors();
    void outputInfos();
    void outputWarnings();
    /// Writes the view's plain text, in Latin-1, to a file that the user chooses.
    void save();

private:
    static constexpr int errorClassCount = 6;

    static void takeError(const KnError* error, void* data);
    template <int Type>
    static void takeStreamText(const char* text, std::streamsize count, void* userData);

    class PrintEvent;

    void addMessage(const MessageFeed::Message& message);

    bool m_showErrors = true;
    bool m_showInfos = true;
    bool m_showWarnings = true;
    QDockWidget* m_dock = nullptr; // owned, from load to unload
    QFrame* m_frame = nullptr; // owned, from load to unload; child of the dock
    QColor m_errorColor;
    QColor m_infoColor;
    QColor m_warningColor;
    KnErrorCallback m_previousHandlers[errorClassCount] = {};
    void* m_previousHandlerData[errorClassCount] = {}; // not owned
    StdStreamRedirector<char>* m_cerrRedirector = nullptr; // given back to releaseStream
    StdStreamRedirector<char>* m_coutRedirector = nullptr; // given back to releaseStream
    PrintBrake m_brake; // before the feed, whose messages hold places of it
    MessageFeed m_feed;
};
