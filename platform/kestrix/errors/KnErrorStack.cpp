// SPDX-License-Identifier: BSD-3-Clause
#include "KnErrorStack.h"

namespace {

KbString joinLines(const std::vector<KbString>& texts)
{
    std::string joined;
    for (const KbString& text : texts) {
        if (!joined.empty())
            joined += '\n';
        joined += text.toUtf8();
    }
    return KbString(std::move(joined));
}

} // namespace

KN_ERROR_SOURCE(KnErrorStack, KnError)

KnErrorStack::KnErrorStack(const std::vector<KbString>& texts)
    : KnError(joinLines(texts))
{
}

void KnErrorStack::post(const std::vector<KbString>& texts) { handler().call(KnErrorStack(texts)); }
