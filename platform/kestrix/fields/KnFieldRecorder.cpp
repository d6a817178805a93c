// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldRecorder.h"

#include "KnWriteThread.h"

KnFieldRecorder* KnFieldRecorder::s_current = nullptr;
int KnFieldRecorder::s_pauses = 0;

KnFieldRecorder::~KnFieldRecorder() { stop(); }

void KnFieldRecorder::start() { s_current = this; }

void KnFieldRecorder::stop()
{
    if (isRecording())
        s_current = nullptr;
}

KnFieldRecorder* KnFieldRecorder::currentOfThread()
{
    return KnWriteThread::isCurrent() && s_pauses == 0 ? s_current : nullptr;
}
