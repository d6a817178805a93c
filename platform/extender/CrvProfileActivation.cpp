// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfileActivation.h"

#include "CrvExtension.h"
#include "CrvServices.h"

#include <algorithm>
#include <utility>

namespace {

bool contains(const std::vector<CrvExtension*>& extensions, const CrvExtension* extension)
{
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

} // namespace

CrvProfileActivation::CrvProfileActivation(Wanted wanted)
    : m_wanted(std::move(wanted))
{
}

bool CrvProfileActivation::update()
{
    if (m_busy) {
        m_interrupted = true;
        return false;
    }
    // A dock that goes hands the focus on, and who gets it may select something.
    const CrvServices::SelectionHold hold(*CrvServices::getInstance());
    m_busy = true;
    do {
        m_interrupted = false;
        runRound();
    } while (m_interrupted);
    m_busy = false;
    // The docks choose their editors among what is there now.
    if (!m_active.empty())
        CrvServices::getInstance()->announceSelection();
    return true;
}

void CrvProfileActivation::runRound()
{
    const std::vector<CrvExtension*> wanted = m_wanted();
    for (std::size_t i = m_active.size(); i-- > 0;) {
        CrvExtension* const extension = m_active[i];
        if (!m_renewAll && contains(wanted, extension))
            continue;
        m_active.erase(m_active.begin() + static_cast<std::ptrdiff_t>(i));
        extension->deactivate();
        if (m_interrupted)
            return;
    }
    m_renewAll = false;
    for (CrvExtension* extension : wanted) {
        if (contains(m_active, extension))
            continue;
        m_active.push_back(extension);
        extension->activate();
        if (m_interrupted)
            return;
    }
}

void CrvProfileActivation::shutDown(const std::function<void()>& unload)
{
    const CrvServices::SelectionHold hold(*CrvServices::getInstance());
    m_busy = true;
    while (!m_active.empty()) {
        CrvExtension* const extension = m_active.back();
        m_active.pop_back();
        extension->deactivate();
    }
    unload();
    m_interrupted = false;
    m_busy = false;
    // Whatever was chosen in the meantime.
    CrvServices::getInstance()->selectNode(nullptr);
}
