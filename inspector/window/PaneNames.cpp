// SPDX-License-Identifier: BSD-3-Clause
#include "PaneNames.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLineEdit>
#include <QVariant>

namespace {

// Set on a button whose tool tip was given here.
constexpr const char* givenTip = "corvaneGivenTip";

QString nameOf(const QWidget& control, const QString& title)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    if (button && qobject_cast<const QLineEdit*>(button->parentWidget()))
        return QCoreApplication::translate("PaneNames", "Clear");
    if (!control.toolTip().isEmpty())
        return control.toolTip();
    const auto* const line = qobject_cast<const QLineEdit*>(&control);
    return line && !line->placeholderText().isEmpty() ? line->placeholderText() : title;
}

} // namespace

void completeNames(QWidget* pane, const QString& title)
{
    for (QWidget* control : pane->findChildren<QWidget*>()) {
        auto* const button = qobject_cast<QAbstractButton*>(control);
        const bool isInner = control->focusPolicy() == Qt::NoFocus || control->focusProxy();
        if ((!button && isInner) || (button && !button->text().isEmpty()))
            continue;
        if (control->accessibleName().isEmpty())
            control->setAccessibleName(nameOf(*control, title));
        // An editor serves many fields in turn, and its names change with them.
        if (button && (button->toolTip().isEmpty() || button->property(givenTip).toBool())) {
            button->setToolTip(button->accessibleName());
            button->setProperty(givenTip, true);
        }
    }
}
