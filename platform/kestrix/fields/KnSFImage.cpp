// SPDX-License-Identifier: BSD-3-Clause
#include "KnSFImage.h"

#include "KnDebugError.h"
#include "KnFieldText.h"
#include "KnTextWriter.h"

#include <algorithm>

KN_TYPE_SOURCE(KnSFImage, KnSField)

namespace {

constexpr int bitsPerByte = 8;
constexpr int maxSide = std::numeric_limits<std::int16_t>::max();

bool readLimited(KnTextReader& reader, int& value, const char* what, int max)
{
    reader.skipBlanks();
    const char* const start = reader.position();
    if (reader.read(value) && value >= 0 && value <= max)
        return true;
    reader.setPosition(start);
    return reader.fail(std::string(what) + " from 0 to " + std::to_string(max));
}

} // namespace

const unsigned char* KnSFImage::getValue(KbVec2s& size, int& components) const
{
    size = m_picture.size;
    components = m_picture.components;
    return m_picture.bytes.empty() ? nullptr : m_picture.bytes.data();
}

void KnSFImage::setValue(const KbVec2s& size, int components, const unsigned char* bytes)
{
    if (size[0] < 0 || size[1] < 0 || components < 0 || components > maxComponents) {
        KnDebugError::post(
            KnDebugError::Error, "An image has a size or a component count that isn't possible");
        return;
    }
    Picture picture;
    const std::size_t count = std::size_t(size[0]) * std::size_t(size[1]) * std::size_t(components);
    if (count > 0) {
        picture.size = size;
        picture.components = components;
        if (bytes)
            picture.bytes.assign(bytes, bytes + count);
        else
            picture.bytes.resize(count);
    }
    aboutToWrite();
    m_picture = std::move(picture);
    touch();
}

void KnSFImage::get(KbString& text) const
{
    std::string out;
    {
        KnTextWriter writer(out);
        writer.number(m_picture.size[0]);
        writer.put(' ');
        writer.number(m_picture.size[1]);
        writer.put(' ');
        writer.number(m_picture.components);
        for (auto byte = m_picture.bytes.begin(); byte != m_picture.bytes.end();) {
            std::uint64_t pixel = 0;
            for (int i = 0; i < m_picture.components; ++i)
                pixel = (pixel << bitsPerByte) | *byte++;
            writer.put(' ');
            writer.hexadecimal(pixel);
        }
    }
    text = KbString(std::move(out));
}

bool KnSFImage::read(KnTextReader& reader, Picture& picture)
{
    int width = 0;
    int height = 0;
    int components = 0;
    if (!readLimited(reader, width, "a width", maxSide)
        || !readLimited(reader, height, "a height", maxSide)
        || !readLimited(reader, components, "a number of components", maxComponents))
        return false;
    const std::int64_t count = components > 0 ? std::int64_t { width } * height : 0;
    if (count == 0)
        return true;
    picture.size = KbVec2s(width, height);
    picture.components = components;
    // Each pixel takes at least two characters, so the text limits how much is reserved.
    picture.bytes.reserve(std::min<std::size_t>(std::size_t(count), reader.remaining() / 2 + 1)
        * std::size_t(components));
    for (std::int64_t i = 0; i < count; ++i) {
        std::uint64_t pixel = 0;
        reader.skipBlanks();
        const char* const start = reader.position();
        const bool isRead = reader.read(pixel);
        if (!isRead || (components < maxComponents && pixel >> (components * bitsPerByte) != 0)) {
            reader.setPosition(start);
            return reader.fail("pixel " + std::to_string(i) + " of " + std::to_string(count)
                + ", a number of " + std::to_string(components) + " bytes");
        }
        for (int shift = (components - 1) * bitsPerByte; shift >= 0; shift -= bitsPerByte)
            picture.bytes.push_back(static_cast<unsigned char>(pixel >> shift));
    }
    return true;
}

bool KnSFImage::set(const KbString& text)
{
    aboutToWrite();
    if (!knReadWhole(*this, -1, text, m_picture, &KnSFImage::read))
        return false;
    touch();
    return true;
}
