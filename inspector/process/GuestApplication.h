// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The application object of a program that doesn't know Qt.
class GuestApplication {
public:
    /// Makes it, on the thread that is the user interface's from then on. It lives until the
    /// process ends. Harmless if there is one already. Without a display it shows nothing, and says
    /// so on the standard error stream. The locale stays as it is.
    static void make();
};
