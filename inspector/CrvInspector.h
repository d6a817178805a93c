// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

class KnFieldContainer;
class QWidget;

/// The inspector as a guest in a program that has a scene graph:
///
///     CrvInspector inspector(root);
///     inspector.show();
///
/// It shows the scene while the program runs, and a person may edit it. While it is closed it costs
/// nothing. Nothing of it concerns the program's own windows, settings, locale or style; its own
/// settings are those of the program `corvane`.
///
/// There may be one at a time: a second one complains on the standard error stream and does
/// nothing. All functions but `call` are for the thread of the user interface, which is the one of
/// the application object.
class CrvInspector {
public:
    /// Costs next to nothing; all that is seen is made by the first `show`.
    CrvInspector();
    /// For a scene of one root, which may be null.
    explicit CrvInspector(KnFieldContainer* root);
    CrvInspector(const CrvInspector&) = delete;
    CrvInspector& operator=(const CrvInspector&) = delete;
    /// Closes the window, unloads the plug-ins and leaves nothing behind. The application object
    /// may be gone by then, or never have been made.
    ~CrvInspector();

    /// What is shown, in place of all roots so far. The inspector holds a reference on each root
    /// until it is replaced, removed, or the inspector goes; null isn't taken, nor a root twice. A
    /// selected node that stands below no root any more is given up.
    void setRoot(KnFieldContainer* root);
    void setRoots(const std::vector<KnFieldContainer*>& roots);
    void addRoot(KnFieldContainer* root);
    void removeRoot(KnFieldContainer* root);

    /// Opens the window, or raises it if it is open. What was edited before the window was last
    /// closed can still be undone. Without an application object it complains on the standard error
    /// stream and does nothing.
    void show();
    /// Takes the window away, and any dialog of it without an answer. The person can do so, too.
    void close();
    /// Whether the window is there, be it minimized.
    bool isOpen() const;

    /// Loads a plug-in file beside the default extensions. False if it is refused, and `error`, if
    /// given, says why in UTF-8. Makes what `show` makes, so it needs an application object, too.
    bool loadPlugin(const std::string& file, std::string* error = nullptr);

    /// Null before the first `show`, and when the application object is gone. It belongs to the
    /// inspector.
    QWidget* window() const;

    /// Makes an application object for a program that has none, on the calling thread. It lives
    /// until the process ends; harmless if there is one already. Without a display nothing is seen,
    /// and a line on the standard error stream says so.
    static void makeApplication();
    /// For a program with a loop of its own, which calls it once in each frame: runs what waits for
    /// about so many milliseconds at most, and returns at once when nothing waits. It also returns
    /// while a dialog or a menu is open, and the next call goes on there. A single handler that
    /// takes longer is not interrupted, and neither are events that were posted in one go.
    ///
    /// Does nothing without an application object, and in a program whose event loop runs already.
    /// A program that polls can't start an event loop of its own later on.
    static void poll(int milliseconds);
    /// Runs a function on the thread of the user interface, where fields may be written and all the
    /// other functions called; at once if it is called there. From any other thread it returns at
    /// once, never waits, and the functions run in the order in which they came, from the event
    /// loop or from `poll`. Before there is an application object they wait for `makeApplication`,
    /// or else for the first `show` or `poll`. A function mustn't throw.
    static void call(std::function<void()> function);

private:
    struct Private;
    std::unique_ptr<Private> d; // null for one that was refused
};
