// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvConsole.h"
#include "CrvFieldEditorDockWin.h"
#include "CrvNodeEditor.h"
#include "CrvPlugin.h"
#include "CrvProfileSelectorExtension.h"
#include "WfMFColorRGBAWidget.h"
#include "WfMFColorWidget.h"
#include "WfMFDefaultFieldWidget.h"
#include "WfMFDoubleWidget.h"
#include "WfMFFloatWidget.h"
#include "WfMFInt32Widget.h"
#include "WfMFMatrixWidget.h"
#include "WfMFPlaneWidget.h"
#include "WfMFRotationWidget.h"
#include "WfMFShortWidget.h"
#include "WfMFStringWidget.h"
#include "WfMFUInt32Widget.h"
#include "WfMFUShortWidget.h"
#include "WfMFVec2fWidget.h"
#include "WfMFVec2i32Widget.h"
#include "WfMFVec2sWidget.h"
#include "WfMFVec3fWidget.h"
#include "WfMFVec4fWidget.h"
#include "WfSFBitMaskWidget.h"
#include "WfSFBoolWidget.h"
#include "WfSFBox2fWidget.h"
#include "WfSFBox3sWidget.h"
#include "WfSFColorRGBAWidget.h"
#include "WfSFColorWidget.h"
#include "WfSFDoubleWidget.h"
#include "WfSFEnumWidget.h"
#include "WfSFFilePathStringWidget.h"
#include "WfSFFloatWidget.h"
#include "WfSFImageWidget.h"
#include "WfSFInt32Widget.h"
#include "WfSFLineWidget.h"
#include "WfSFMatrixWidget.h"
#include "WfSFNameWidget.h"
#include "WfSFPlaneWidget.h"
#include "WfSFRotationWidget.h"
#include "WfSFShortWidget.h"
#include "WfSFStringWidget.h"
#include "WfSFUInt32Widget.h"
#include "WfSFUShortWidget.h"
#include "WfSFVec2fWidget.h"
#include "WfSFVec2i32Widget.h"
#include "WfSFVec2sWidget.h"
#include "WfSFVec3fWidget.h"
#include "WfSFVec4fWidget.h"

/// The plug-in object. It owns one instance of every extension, as plain members in the order in
/// which they are built, and registers them with the host; no extension is made or destroyed
/// later.
class CrvDefaults : public CrvPlugin {
public:
    CrvDefaults();

    void load() override;

private:
    CrvProfileSelectorExtension m_profileSelectorExtension;
    CrvConsole m_console;
    WfMFColorWidget m_mfColorWidget;
    WfMFColorRGBAWidget m_mfColorRGBAWidget;
    WfMFDefaultFieldWidget m_mfDefaultFieldWidget;
    WfMFDoubleWidget m_mfDoubleWidget;
    WfMFFloatWidget m_mfFloatWidget;
    WfMFInt32Widget m_mfInt32Widget;
    WfMFMatrixWidget m_mfMatrixWidget;
    WfMFPlaneWidget m_mfPlaneWidget;
    WfMFRotationWidget m_mfRotationWidget;
    WfMFShortWidget m_mfShortWidget;
    WfMFStringWidget m_mfStringWidget;
    WfMFUInt32Widget m_mfUInt32Widget;
    WfMFUShortWidget m_mfUShortWidget;
    WfMFVec2fWidget m_mfVec2fWidget;
    WfMFVec2i32Widget m_mfVec2i32Widget;
    WfMFVec2sWidget m_mfVec2sWidget;
    WfMFVec3fWidget m_mfVec3fWidget;
    WfMFVec4fWidget m_mfVec4fWidget;
    WfSFBitMaskWidget m_sfBitMaskWidget;
    WfSFBoolWidget m_sfBoolWidget;
    WfSFBox2fWidget m_sfBox2fWidget;
    WfSFBox3sWidget m_sfBox3sWidget;
    WfSFColorWidget m_sfColorWidget;
    WfSFColorRGBAWidget m_sfColorRGBAWidget;
    WfSFEnumWidget m_sfEnumWidget;
    WfSFDoubleWidget m_sfDoubleWidget;
    WfSFFilePathStringWidget m_sfFilePathStringWidget;
    WfSFFloatWidget m_sfFloatWidget;
    WfSFImageWidget m_sfImageWidget;
    WfSFInt32Widget m_sfInt32Widget;
    WfSFLineWidget m_sfLineWidget;
    WfSFMatrixWidget m_sfMatrixWidget;
    WfSFNameWidget m_sfNameWidget;
    WfSFPlaneWidget m_sfPlaneWidget;
    WfSFRotationWidget m_sfRotationWidget;
    WfSFShortWidget m_sfShortWidget;
    WfSFStringWidget m_sfStringWidget;
    WfSFUInt32Widget m_sfUInt32Widget;
    WfSFUShortWidget m_sfUShortWidget;
    WfSFVec2fWidget m_sfVec2fWidget;
    WfSFVec2i32Widget m_sfVec2i32Widget;
    WfSFVec2sWidget m_sfVec2sWidget;
    WfSFVec3fWidget m_sfVec3fWidget;
    WfSFVec4fWidget m_sfVec4fWidget;
    CrvFieldEditorDockWin m_fieldEditorDockWin;
    CrvNodeEditor m_nodeEditor;
};
