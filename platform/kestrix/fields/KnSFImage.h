// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbVec.h"
#include "KnSField.h"
#include "KnTypeMacros.h"

#include <vector>

class KnTextReader;

/// A picture of 1 to 8 bytes per pixel: grey, grey and alpha, RGB or RGBA; what more bytes mean is
/// up to the host. The row stored first is the lowest. As text it is `width height components` and
/// one `0x` number per pixel, whose highest byte is the first component. The text of an image
/// without pixels is `0 0 0`.
class KnSFImage : public KnSField {
    KN_TYPE(KnSFImage)
    static constexpr int maxComponents = 8;

    /// The pixels, row after row with `components` bytes each, or null when there are none. They
    /// are the field's own and hold until the next write.
    const unsigned char* getValue(KbVec2s& size, int& components) const;
    /// Copies `size[0] * size[1] * components` bytes; null stands for bytes of 0. A size or a
    /// component count of 0 empties the field; a negative one, or more than `maxComponents`,
    /// changes nothing and posts a KnDebugError.
    void setValue(const KbVec2s& size, int components, const unsigned char* bytes);

    using KnSField::set;
    void get(KbString& text) const override;
    bool set(const KbString& text) override;

private:
    struct Picture {
        KbVec2s size;
        int components = 0;
        std::vector<unsigned char> bytes;
    };

    static bool read(KnTextReader& reader, Picture& picture);

    Picture m_picture;
};
