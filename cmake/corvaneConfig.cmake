# SPDX-License-Identifier: BSD-3-Clause

# find_package(corvane) gives corvane::ubn_corvane_extender, which brings the kernel along,
# corvane::ubn_kestrix_gl, and corvane::inspector, for programs with the inspector in their process.
include(CMakeFindDependencyMacro)
find_dependency(Qt6 6.4 COMPONENTS Core Gui Widgets)
include("${CMAKE_CURRENT_LIST_DIR}/corvaneTargets.cmake")
