// SPDX-License-Identifier: BSD-3-Clause
#include "FieldActions.h"

#include "CrvFieldEditors.h"
#include "CrvFieldIgnoredCommand.h"
#include "CrvFieldSetDefaultCommand.h"
#include "FieldEdit.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "KnNodePtr.h"

#include <memory>

bool hasDefault(const KnField& field)
{
    const KnFieldContainer* const container = field.getContainer();
    return field.hasOwnDefault() || !container || container->getObjectType().canCreateInstance();
}

void setFieldToDefault(const CrvFieldEditors& editor, KnField* field)
{
    if (!editor.mayWrite(field))
        return;
    if (field->hasOwnDefault()) {
        executeFieldEdit(editor, field, [field] { field->resetToDefault(); });
        return;
    }
    KnFieldContainer* const container = field->getContainer();
    if (!container)
        return;
    const KnNodePtr instance(
        dynamic_cast<KnFieldContainer*>(container->getObjectType().createInstance()));
    if (!instance)
        return;

    const KnFieldData* const data = container->getContainerFieldData();
    KnField* const defaultField = data->getField(instance.get(), data->getIndex(container, field));
    if (!defaultField)
        return;
    KbString text;
    defaultField->get(text);
    // The command copies the texts, so it doesn't need the fresh node.
    executeEdit(std::make_unique<CrvFieldSetDefaultCommand>(field, defaultField), field,
        [field, &text] { field->set(text); });
}

void setFieldIgnored(const CrvFieldEditors& editor, KnField* field, bool ignored)
{
    if (!editor.mayWrite(field) || (field->isIgnored() != 0) == ignored)
        return;
    executeEdit(std::make_unique<CrvFieldIgnoredCommand>(field, ignored), field,
        [field, ignored] { field->setIgnored(ignored ? 1 : 0); });
}
