// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldRecorder.h"

#include "KnWriteThread.h"

KnFieldRecorder* KnFieldRecorder::activeRecorder = nullptr;
int KnFieldRecorder::pauseCount = 0;

KnFieldRecorder::~KnFieldRecorder() { stop(); }

void KnFieldRecorder::start() { activeRecorder = this; }

void KnFieldRecorder::stop()
{
    if (isRecording())
        activeRecorder = nullptr;
}

KnFieldRecorder* KnFieldRecorder::currentOfThread()
{
    return KnWriteThread::isCurrent() && pauseCount == 0 ? activeRecorder : nullptr;
}
