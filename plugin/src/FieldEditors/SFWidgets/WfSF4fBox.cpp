// SPDX-License-Identifier: BSD-3-Clause
#include "WfSF4fBox.h"

namespace {

constexpr ColumnBoxStyle style { "SF4fBoxHSpacing", "SF4fBoxHMargin", "SF4fBoxVSpacing",
    "SF4FvLayout", "SF4flabel", "SF4fine" };

} // namespace

WfSF4fBox::WfSF4fBox(const char* name)
    : WfSFLineBox(4, style, Qt::AlignLeft, name)
{
    if (!name)
        setObjectName(QStringLiteral("WfSF4fBox"));
}
