// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObjectList>

/// All objects of the process, by address: Qt calls a hook for each that comes and goes. The hook
/// is meant for tools and not for programs, so where Qt has none of the known kind, there is
/// nothing here. What comes costs an entry in a table, on whatever thread, and nothing is read of
/// it then.
namespace ObjectRegister {

/// To be called before there are any objects. What else hangs on the hook is called as well.
void start();
/// Forgets everything.
void stop();

/// Who is sent an event of the type User when objects have come, or one of those found at the last
/// look has gone: one event, up to the next look. Null for nobody.
void tell(QObject* receiver);

/// How far a look goes.
enum class Look {
    News, ///< at what has come since the last one, and what was found then
    All, ///< also for those that once had a parent
};

/// The objects of this thread that have no parent, neither widgets nor windows nor the application,
/// in no order.
QObjectList parentless(Look look);

/// While it lives, objects that this thread makes aren't noted.
class Pause {
public:
    Pause();
    ~Pause();
    Q_DISABLE_COPY_MOVE(Pause)
};

} // namespace ObjectRegister
