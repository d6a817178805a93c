// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QImage>

/// The pixels of an image field as a Qt picture. `bytes` are `width * height * components` bytes,
/// row after row, and may be null. By the component count:
///   1  greys, the first row on top,
///   2  each pixel read as one 16-bit RGB pixel, the first row on top,
///   3  red, green, blue, opaque, the first row at the bottom,
///   4  red, green, blue, alpha, the first row at the bottom.
/// Any other count, a size of 0 and null bytes give a null picture.
QImage imageFromPixels(const unsigned char* bytes, int width, int height, int components);
