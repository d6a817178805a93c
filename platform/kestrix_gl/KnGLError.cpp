// SPDX-License-Identifier: BSD-3-Clause
#include "KnGLError.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

struct Code {
    unsigned int number;
    const char* name;
};

constexpr std::array codes {
    Code { 0x0500, "GL_INVALID_ENUM" },
    Code { 0x0501, "GL_INVALID_VALUE" },
    Code { 0x0502, "GL_INVALID_OPERATION" },
    Code { 0x0503, "GL_STACK_OVERFLOW" },
    Code { 0x0504, "GL_STACK_UNDERFLOW" },
    Code { 0x0505, "GL_OUT_OF_MEMORY" },
    Code { 0x0506, "GL_INVALID_FRAMEBUFFER_OPERATION" },
    Code { 0x0507, "GL_CONTEXT_LOST" },
};

KbString describe(unsigned int number, const KbString& where)
{
    const auto found = std::find_if(
        codes.begin(), codes.end(), [number](const Code& code) { return code.number == number; });
    std::array<char, 16> hex {};
    std::snprintf(hex.data(), hex.size(), "0x%04x", number);
    std::string text = where.toUtf8();
    text += text.empty() ? "" : ": ";
    text += found == codes.end() ? "unknown OpenGL error" : found->name;
    return KbString(text + " (" + hex.data() + ")");
}

} // namespace

KN_ERROR_SOURCE(KnGLError, KnError)

KnGLError::KnGLError(unsigned int code, const KbString& where)
    : KnError(describe(code, where))
    , m_code(code)
{
}

void KnGLError::post(unsigned int code, const KbString& where)
{
    handler().call(KnGLError(code, where));
}
