// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "StdStreamRedirector.h"

/// Captures a stream. The redirector is not the caller's: it is given back by releaseStream and
/// then kept for the next capture of that stream until the library goes. That is not a leak. A
/// thread may have taken the buffer from the stream and not have entered it yet; no lock can tell,
/// since the stream itself has none, and deleting the buffer would pull it from under that thread.
/// Kept, it passes the late text on to the stream's own buffer. There are never more redirectors
/// than there were captures at one time. Both functions are called on the user interface thread.
StdStreamRedirector<char>* captureStream(
    std::ostream& stream, StdStreamRedirector<char>::Callback callback, void* userData);

/// Ends a capture; null is allowed. The callback no longer runs on any other thread then.
void releaseStream(StdStreamRedirector<char>* redirector);
