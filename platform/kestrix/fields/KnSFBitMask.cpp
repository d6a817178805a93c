// SPDX-License-Identifier: BSD-3-Clause
#include "KnSFBitMask.h"

#include "KnFieldText.h"
#include "KnTextWriter.h"

KN_TYPE_SOURCE(KnSFBitMask, KnSFEnum)

KnSFBitMask& KnSFBitMask::operator=(int mask)
{
    setValue(mask);
    return *this;
}

void KnSFBitMask::get(KbString& text) const
{
    std::string out;
    {
        KnTextWriter writer(out);
        auto rest = static_cast<std::uint32_t>(m_value);
        const char* separator = "(";
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            const auto bits = static_cast<std::uint32_t>(m_values[i]);
            // All bits of a name must be set, and at least one not yet covered by an earlier name.
            if ((bits & static_cast<std::uint32_t>(m_value)) != bits || (bits & rest) == 0)
                continue;
            writer.put(separator);
            writer.put(m_names[i].getString().toUtf8());
            separator = " | ";
            rest &= ~bits;
        }
        if (rest != 0) {
            writer.put(separator);
            writer.hexadecimal(rest);
        }
        writer.put(m_value == 0 ? "()" : ")");
    }
    text = KbString(std::move(out));
}

bool KnSFBitMask::set(const KbString& text)
{
    const auto readTerm = [this](KnTextReader& reader, int& mask) {
        reader.skipBlanks();
        const char* const start = reader.position();
        const std::string_view term = reader.takeUpTo("|)");
        int bits = 0;
        if (!lookUp(term, bits)) {
            std::int64_t number = 0;
            KnTextReader termReader(term);
            if (!termReader.read(number) || !termReader.atEnd() || number < INT32_MIN
                || number > UINT32_MAX) {
                reader.setPosition(start);
                return reader.fail(describeNames());
            }
            bits = static_cast<int>(number);
        }
        mask |= bits;
        return true;
    };
    const auto read = [&](KnTextReader& reader, int& mask) {
        const bool bracket = reader.accept('(');
        if (bracket && reader.accept(')'))
            return true;
        do {
            if (!readTerm(reader, mask))
                return false;
        } while (reader.accept('|'));
        return !bracket || reader.accept(')') || reader.fail("| or a closing bracket");
    };
    aboutToWrite();
    if (!knReadWhole(*this, -1, text, m_value, read))
        return false;
    touch();
    return true;
}
