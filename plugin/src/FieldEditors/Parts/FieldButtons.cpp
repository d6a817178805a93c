// SPDX-License-Identifier: BSD-3-Clause
#include "FieldButtons.h"

#include "PanelParts.h"

FieldButtons makeFieldButtons(QWidget* panel, const QPixmap& defaultIcon, const QPixmap& ignoreIcon)
{
    const FieldButtons buttons { makeIconButton(panel, "m_defaultButton", defaultIcon),
        makeIconButton(panel, "m_ignoreButton", ignoreIcon) };
    buttons.ignoreButton->setCheckable(true);
    return buttons;
}

void setFieldButtonTexts(const FieldButtons& buttons)
{
    buttons.defaultButton->setText(QString());
    buttons.ignoreButton->setText(QString());
    buttons.defaultButton->setToolTip(QStringLiteral("Set to default"));
    buttons.ignoreButton->setToolTip(QStringLiteral("Ignore this field"));
}
