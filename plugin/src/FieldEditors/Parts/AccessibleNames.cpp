// SPDX-License-Identifier: BSD-3-Clause
#include "AccessibleNames.h"

#include "CrvStrings.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "KnFieldData.h"

#include <QAbstractButton>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char* labelProperty = "corvaneInputLabel";

/// Empty for a field that stands alone.
QString nameOf(const KnField* field)
{
    const KnFieldContainer* const node = field ? field->getContainer() : nullptr;
    if (!node)
        return QString();
    const KnFieldData& fields = *node->getContainerFieldData();
    const int index = fields.getIndex(node, field);
    return index < 0 ? QString() : toQString(fields.getName(index));
}

void nameAll(const QList<QWidget*>& inputs, const QString& whole)
{
    for (QWidget* input : inputs) {
        const auto* const button = qobject_cast<const QAbstractButton*>(input);
        QString label = input->property(labelProperty).toString();
        if (label.isEmpty() && button)
            label = button->text().isEmpty() ? button->toolTip() : button->text();
        const bool isInput = input->focusPolicy() != Qt::NoFocus && !input->focusProxy();
        if (isInput || !label.isEmpty())
            input->setAccessibleName((whole + QLatin1Char(' ') + label).trimmed());
    }
}

} // namespace

void setInputLabel(QWidget* input, const QString& label)
{
    input->setProperty(labelProperty, label);
}

void nameInputs(QWidget* panel, const KnField* field)
{
    nameAll(panel->findChildren<QWidget*>(), nameOf(field));
}

void nameCellInputs(QWidget* editor, const QString& cell)
{
    nameAll(editor->findChildren<QWidget*>() << editor, cell);
}
