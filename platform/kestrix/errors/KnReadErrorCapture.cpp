// SPDX-License-Identifier: BSD-3-Clause
#include "KnReadErrorCapture.h"

#include <utility>

namespace {

// Not owned. A plain pointer, since a thread may still post errors while its objects are destroyed.
thread_local KnReadErrorCapture* innermost = nullptr;

} // namespace

KnReadErrorCapture::KnReadErrorCapture()
    : m_outer(std::exchange(innermost, this))
{
}

KnReadErrorCapture::~KnReadErrorCapture() { innermost = m_outer; }

bool KnReadErrorCapture::keep(const KbString& text)
{
    if (!innermost)
        return false;
    innermost->m_text = text;
    return true;
}
