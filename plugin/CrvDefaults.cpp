// SPDX-License-Identifier: BSD-3-Clause
#include "CrvDefaults.h"

CrvDefaults::CrvDefaults()
{
    m_name = "CrvDefaults";
    m_description = "Plug-in which loads Corvane default extensions.";
    m_author = "Orbel";
    m_version = "1.0.0";
}

void CrvDefaults::load()
{
    CrvExtension* const extensions[] = {
        &m_sfBoolWidget,
        &m_sfDoubleWidget,
        &m_sfFloatWidget,
        &m_sfInt32Widget,
        &m_sfLineWidget,
        &m_sfNameWidget,
        &m_sfShortWidget,
        &m_sfStringWidget,
        &m_sfUInt32Widget,
        &m_sfUShortWidget,
        &m_fieldEditorDockWin,
        &m_nodeEditor,
    };
    for (CrvExtension* extension : extensions)
        addExtension(extension);
    CrvPlugin::load();
}
