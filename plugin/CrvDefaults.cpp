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
        &m_profileSelectorExtension,
        &m_console,
        &m_mfColorWidget,
        &m_mfColorRGBAWidget,
        &m_mfDefaultFieldWidget,
        &m_mfDoubleWidget,
        &m_sfFilePathStringWidget,
        &m_mfFloatWidget,
        &m_mfInt32Widget,
        &m_mfMatrixWidget,
        &m_mfPlaneWidget,
        &m_mfRotationWidget,
        &m_mfShortWidget,
        &m_mfStringWidget,
        &m_mfUInt32Widget,
        &m_mfUShortWidget,
        &m_mfVec2fWidget,
        &m_mfVec2i32Widget,
        &m_mfVec2sWidget,
        &m_mfVec3fWidget,
        &m_mfVec4fWidget,
        &m_sfBitMaskWidget,
        &m_sfBoolWidget,
        &m_sfBox2fWidget,
        &m_sfBox3sWidget,
        &m_sfColorWidget,
        &m_sfColorRGBAWidget,
        &m_sfEnumWidget,
        &m_sfDoubleWidget,
        &m_sfFloatWidget,
        &m_sfImageWidget,
        &m_sfInt32Widget,
        &m_sfLineWidget,
        &m_sfMatrixWidget,
        &m_sfNameWidget,
        &m_sfPlaneWidget,
        &m_sfRotationWidget,
        &m_sfShortWidget,
        &m_sfStringWidget,
        &m_sfUInt32Widget,
        &m_sfUShortWidget,
        &m_sfVec2fWidget,
        &m_sfVec2i32Widget,
        &m_sfVec2sWidget,
        &m_sfVec3fWidget,
        &m_sfVec4fWidget,
        &m_fieldEditorDockWin,
        &m_nodeEditor,
    };
    for (CrvExtension* extension : extensions)
        addExtension(extension);
    CrvPlugin::load();
}
