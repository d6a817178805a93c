// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvFieldEditorDockWin.h"
#include "CrvNodeEditor.h"
#include "CrvPlugin.h"
#include "WfSFBoolWidget.h"
#include "WfSFDoubleWidget.h"
#include "WfSFFloatWidget.h"
#include "WfSFInt32Widget.h"
#include "WfSFLineWidget.h"
#include "WfSFNameWidget.h"
#include "WfSFShortWidget.h"
#include "WfSFStringWidget.h"
#include "WfSFUInt32Widget.h"
#include "WfSFUShortWidget.h"

/// The plug-in object. It owns one instance of every extension, as plain members in the order in
/// which they are built, and registers them with the host; no extension is made or destroyed
/// later.
class CrvDefaults : public CrvPlugin {
public:
    CrvDefaults();

    void load() override;

private:
    WfSFBoolWidget m_sfBoolWidget;
    WfSFDoubleWidget m_sfDoubleWidget;
    WfSFFloatWidget m_sfFloatWidget;
    WfSFInt32Widget m_sfInt32Widget;
    WfSFLineWidget m_sfLineWidget;
    WfSFNameWidget m_sfNameWidget;
    WfSFShortWidget m_sfShortWidget;
    WfSFStringWidget m_sfStringWidget;
    WfSFUInt32Widget m_sfUInt32Widget;
    WfSFUShortWidget m_sfUShortWidget;
    CrvFieldEditorDockWin m_fieldEditorDockWin;
    CrvNodeEditor m_nodeEditor;
};
