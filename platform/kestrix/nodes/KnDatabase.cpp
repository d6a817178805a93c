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

namespace {

// Asking a class for its type registers it, and its ancestors before it.

void registerFields()
{
#define KN_REGISTER_SFIELD(Name, ValueType) KnSF##Name::getClassTypeId();
#define KN_REGISTER_MFIELD(Name, ValueType) KnMF##Name::getClassTypeId();
    KN_SFIELD_TYPES(KN_REGISTER_SFIELD)
    KN_SPECIAL_SFIELD_TYPES(KN_REGISTER_SFIELD)
    KN_MFIELD_TYPES(KN_REGISTER_MFIELD)
#undef KN_REGISTER_SFIELD
#undef KN_REGISTER_MFIELD
}

void registerNodesAndErrors()
{
    using TypeId = KnType (*)();
    static constexpr TypeId all[] = {
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
    for (const TypeId typeId : all)
        typeId();
}

} // namespace

void KnDatabase::init()
{
    static const bool done = [] {
        registerFields();
        registerNodesAndErrors();
        return true;
    }();
    static_cast<void>(done);
}
