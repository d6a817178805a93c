// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class KnSFImage;
class QImage;

// Pictures of Qt's as those of the kernel and back. The kernel has 8 bits for each component and
// the lowest row first. A picture without transparency and colours has one component, others have
// three or four. What a picture holds beyond that is lost on the way.

/// Writes the picture into the field. One that is larger than a field can hold empties it.
void writePicture(KnSFImage& field, const QImage& picture);
/// A picture as a field gives it back, which has what the kernel can hold and nothing beyond.
QImage plainPicture(const QImage& picture);
/// The field's picture; a null image if it has no pixels. Grey with alpha becomes colours.
QImage readPicture(const KnSFImage& field);
