// SPDX-License-Identifier: BSD-3-Clause
#include "EditorMakers.h"

#include "CrvDefaults.h"

namespace {

template <class... Editors>
std::map<std::string, EditorMaker> makersOf()
{
    std::map<std::string, EditorMaker> makers;
    ((makers[Editors().getName().toUtf8()]
         = [] { return std::unique_ptr<CrvFieldEditors>(std::make_unique<Editors>()); }),
        ...);
    return makers;
}

} // namespace

std::map<std::string, EditorMaker> editorMakers()
{
    return makersOf<WfMFColorWidget, WfMFColorRGBAWidget, WfMFDefaultFieldWidget, WfMFDoubleWidget,
        WfMFFloatWidget, WfMFInt32Widget, WfMFMatrixWidget, WfMFPlaneWidget, WfMFRotationWidget,
        WfMFShortWidget, WfMFStringWidget, WfMFUInt32Widget, WfMFUShortWidget, WfMFVec2fWidget,
        WfMFVec2i32Widget, WfMFVec2sWidget, WfMFVec3fWidget, WfMFVec4fWidget, WfSFBitMaskWidget,
        WfSFBoolWidget, WfSFBox2fWidget, WfSFBox3sWidget, WfSFColorWidget, WfSFColorRGBAWidget,
        WfSFEnumWidget, WfSFDoubleWidget, WfSFFilePathStringWidget, WfSFFloatWidget,
        WfSFImageWidget, WfSFInt32Widget, WfSFLineWidget, WfSFMatrixWidget, WfSFNameWidget,
        WfSFPlaneWidget, WfSFRotationWidget, WfSFShortWidget, WfSFStringWidget, WfSFUInt32Widget,
        WfSFUShortWidget, WfSFVec2fWidget, WfSFVec2i32Widget, WfSFVec2sWidget, WfSFVec3fWidget,
        WfSFVec4fWidget>();
}
