// SPDX-License-Identifier: BSD-3-Clause
#include "KnTextWriter.h"

void KnTextWriter::putQuoted(std::string_view text)
{
    put('"');
    flush();
    for (const char c : text) {
        if (c == '"' || c == '\\' || c == '\n') {
            m_out += '\\';
            m_out += c == '\n' ? 'n' : c;
        } else {
            m_out += c;
        }
    }
    put('"');
}
