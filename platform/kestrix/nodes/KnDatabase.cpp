// SPDX-License-Identifier: BSD-3-Clause
#include "KnDatabase.h"

#include "KnAnimation.h"
#include "KnClipPlane.h"
#include "KnClipPlanes.h"
#include "KnComplexity.h"
#include "KnCoordinates.h"
#include "KnDebugError.h"
#include "KnDirectionalLight.h"
#include "KnDrawStyle.h"
#include "KnDrawing.h"
#include "KnErrorStack.h"
#include "KnGroup.h"
#include "KnHomogeneousCoordinates.h"
#include "KnIndexedFaceSet.h"
#include "KnLight.h"
#include "KnMFields.h"
#include "KnMaterial.h"
#include "KnMatrixTransform.h"
#include "KnMemoryError.h"
#include "KnNormals.h"
#include "KnPointLight.h"
#include "KnReadError.h"
#include "KnSFBitMask.h"
#include "KnSFImage.h"
#include "KnSFields.h"
#include "KnText.h"
#include "KnTexture.h"
#include "KnTextureCoordinates.h"
#include "KnTransform.h"
#include "KnViewpoint.h"
#include "KnVoxelGrid.h"

void KnDatabase::init()
{
    // Asking a class for its type registers it, and its ancestors before it.
    using TypeId = KnType (*)();
    static constexpr TypeId all[] = {
        &KnSFBool::getClassTypeId,
        &KnSFBox2f::getClassTypeId,
        &KnSFBox3s::getClassTypeId,
        &KnSFColor::getClassTypeId,
        &KnSFColorRGBA::getClassTypeId,
        &KnSFDouble::getClassTypeId,
        &KnSFFloat::getClassTypeId,
        &KnSFInt32::getClassTypeId,
        &KnSFMatrix::getClassTypeId,
        &KnSFName::getClassTypeId,
        &KnSFPlane::getClassTypeId,
        &KnSFRotation::getClassTypeId,
        &KnSFShort::getClassTypeId,
        &KnSFString::getClassTypeId,
        &KnSFTime::getClassTypeId,
        &KnSFUInt32::getClassTypeId,
        &KnSFUShort::getClassTypeId,
        &KnSFVec2f::getClassTypeId,
        &KnSFVec2i32::getClassTypeId,
        &KnSFVec2s::getClassTypeId,
        &KnSFVec3f::getClassTypeId,
        &KnSFVec4f::getClassTypeId,
        &KnSFFilePathString::getClassTypeId,
        &KnSFEnum::getClassTypeId,
        &KnSFBitMask::getClassTypeId,
        &KnSFImage::getClassTypeId,
        &KnMFColor::getClassTypeId,
        &KnMFColorRGBA::getClassTypeId,
        &KnMFDouble::getClassTypeId,
        &KnMFFloat::getClassTypeId,
        &KnMFInt32::getClassTypeId,
        &KnMFMatrix::getClassTypeId,
        &KnMFName::getClassTypeId,
        &KnMFPlane::getClassTypeId,
        &KnMFRotation::getClassTypeId,
        &KnMFShort::getClassTypeId,
        &KnMFString::getClassTypeId,
        &KnMFTime::getClassTypeId,
        &KnMFUInt32::getClassTypeId,
        &KnMFUShort::getClassTypeId,
        &KnMFVec2f::getClassTypeId,
        &KnMFVec2i32::getClassTypeId,
        &KnMFVec2s::getClassTypeId,
        &KnMFVec3f::getClassTypeId,
        &KnMFVec4f::getClassTypeId,
        &KnAnimation::getClassTypeId,
        &KnClipPlane::getClassTypeId,
        &KnClipPlanes::getClassTypeId,
        &KnComplexity::getClassTypeId,
        &KnCoordinates::getClassTypeId,
        &KnDirectionalLight::getClassTypeId,
        &KnDrawStyle::getClassTypeId,
        &KnDrawing::getClassTypeId,
        &KnGroup::getClassTypeId,
        &KnHomogeneousCoordinates::getClassTypeId,
        &KnIndexedFaceSet::getClassTypeId,
        &KnLight::getClassTypeId,
        &KnMaterial::getClassTypeId,
        &KnMatrixTransform::getClassTypeId,
        &KnNormals::getClassTypeId,
        &KnPointLight::getClassTypeId,
        &KnText::getClassTypeId,
        &KnTexture::getClassTypeId,
        &KnTextureCoordinates::getClassTypeId,
        &KnTransform::getClassTypeId,
        &KnViewpoint::getClassTypeId,
        &KnVoxelGrid::getClassTypeId,
        &KnDebugError::getClassTypeId,
        &KnErrorStack::getClassTypeId,
        &KnMemoryError::getClassTypeId,
        &KnReadError::getClassTypeId,
    };
    static const bool done = [] {
        for (const TypeId typeId : all)
            typeId();
        return true;
    }();
    static_cast<void>(done);
}
