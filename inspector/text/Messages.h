// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QString;

/// One flushed line on `std::cout`, which the console dock shows as one message.
void say(const QString& line);
/// The same on `std::cerr`.
void complain(const QString& line);

/// One line on the process's own standard output or error, even while a console captures the
/// streams: for whoever started the program from a terminal or a script.
void sayToTerminal(const QString& line);
void complainToTerminal(const QString& line);
