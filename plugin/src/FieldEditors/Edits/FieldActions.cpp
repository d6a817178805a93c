// SPDX-License-Identifier: BSD-3-Clause
#include "FieldActions.h"

#include "CrvFieldEditors.h"
#include "CrvFieldIgnoredCommand.h"
#include "CrvFieldSetDefaultCommand.h"
#include "CrvServices.h"
#include "KnField.h"
#include "KnFieldContainer.h"

void setFieldToDefault(const CrvFieldEditors& editor, KnField* field)
{
    if (!editor.shows(field))
        return;
    KnFieldContainer* const container = field->getContainer();
    if (!container)
        return;
    auto* const instance
        = dynamic_cast<KnFieldContainer*>(container->getObjectType().createInstance());
    if (!instance)
        return;
    instance->ref();

    const KnFieldData* const data = container->getContainerFieldData();
    const int index = data->getIndex(container, field);
    if (KnField* const defaultField = data->getField(instance, index)) {
        KbString text;
        defaultField->get(text);
        auto* const command = new CrvFieldSetDefaultCommand(field, defaultField);
        field->set(text);
        CrvServices::getInstance()->executeCommand(command);
    }
    // The command has read its texts, so the fresh node has served.
    instance->unref();
}

void setFieldIgnored(const CrvFieldEditors& editor, KnField* field, bool ignored)
{
    if (!editor.shows(field) || (field->isIgnored() != 0) == ignored)
        return;
    field->setIgnored(ignored ? 1 : 0);
    CrvServices::getInstance()->executeCommand(new CrvFieldIgnoredCommand(field, ignored));
}
