// SPDX-License-Identifier: BSD-3-Clause
// The rival of bench_live: the same host, linked with the kernel alone. Prints the processor time
// of a frame in microseconds.
//
// Usage: bench_live_bare [frames]
#include "LiveHost.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    LiveHost host;
    const int frames = argc > 1 ? std::atoi(argv[1]) : 300;
    std::printf("%.2f\n", 1e6 * LiveHost::run(frames, [&host] { host.step(); }));
}
