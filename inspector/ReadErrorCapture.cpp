// SPDX-License-Identifier: BSD-3-Clause
#include "ReadErrorCapture.h"

#include "SceneText.h"

ReadErrorCapture::ReadErrorCapture()
    : m_formerCallback(KnReadError::getHandlerCallback())
    , m_formerData(KnReadError::getHandlerData())
{
    KnReadError::setHandlerCallback(keepText, this);
}

ReadErrorCapture::~ReadErrorCapture()
{
    KnReadError::setHandlerCallback(m_formerCallback, m_formerData);
}

void ReadErrorCapture::keepText(const KnError* error, void* data)
{
    static_cast<ReadErrorCapture*>(data)->m_text = toQString(error->getDebugString());
}
