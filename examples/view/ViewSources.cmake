# SPDX-License-Identifier: BSD-3-Clause

# The sources of the view, for the viewer too, which is also built on its own.
set(CORVANE_VIEW_SOURCES)
foreach(unit ConvexPolygon DrawList LabelPainter NodeKind NodeMatrix OrbitCamera Rasterizer
        SceneRenderer SceneTraversal SceneView SceneWatch Shading)
    list(APPEND CORVANE_VIEW_SOURCES
        "${CMAKE_CURRENT_LIST_DIR}/${unit}.cpp" "${CMAKE_CURRENT_LIST_DIR}/${unit}.h")
endforeach()
list(APPEND CORVANE_VIEW_SOURCES "${CMAKE_CURRENT_LIST_DIR}/HalfSpace.h")
