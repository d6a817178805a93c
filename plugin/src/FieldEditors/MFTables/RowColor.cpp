// SPDX-License-Identifier: BSD-3-Clause
#include "RowColor.h"

#include "ColorChannels.h"
#include "ValueComponents.h"
#include "WfMFieldWidget.h"

RowColor rowColor(WfMFieldWidget& widget, int row)
{
    const QString alpha = widget.getCellText(row, 4);
    const bool hasAlpha = !alpha.isEmpty();
    const float channels[] = { componentNumber<float>(widget.getCellText(row, 1)),
        componentNumber<float>(widget.getCellText(row, 2)),
        componentNumber<float>(widget.getCellText(row, 3)), componentNumber<float>(alpha) };
    return { channelColor(channels, hasAlpha ? 4 : 3), hasAlpha };
}
