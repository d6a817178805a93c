// SPDX-License-Identifier: BSD-3-Clause
#include "PropertyField.h"

#include "KnFieldRecorder.h"
#include "KnFieldText.h"
#include "KnNodePtr.h"
#include "ObjectWatch.h"

#include <QScopedValueRollback>

PropertyField::PropertyField(KnField& field, const PropertyPlace& place)
    : m_field(field)
    , m_place(place)
{
    field.setReadOnly(!place.isWritable());
}

PropertyField::~PropertyField() { ObjectWatch::getInstance().unwatch(this); }

void PropertyField::refresh()
{
    if (m_showing)
        return; // whoever hears of the write below may ask for the value
    const std::optional<QVariant> value = m_place.read();
    if (!value || shows(*value))
        return;
    const QScopedValueRollback showing(m_showing, true);
    const KnFieldRecorder::Pause unrecorded; // the program has written, not a person
    show(*value);
}

bool PropertyField::takesText() const
{
    if (m_place.object())
        return true;
    knPostRefusal(m_field, "the object is gone");
    return false;
}

void PropertyField::fieldWritten()
{
    if (m_showing)
        return;
    // A setter may run an event loop, in which the tree lets go of the node.
    const KnNodePtr node(m_field.getContainer());
    const std::optional<QVariant> before = m_place.read();
    if (!before) {
        knPostRefusal(m_field, "the object is gone");
        return;
    }
    if (shows(*before))
        return;
    const QVariant wanted = shownValue();
    if (m_field.isReadOnly())
        knPostRefusal(m_field, "the property is read-only");
    else if (m_place.isVariant() && before->metaType() != wanted.metaType())
        knPostRefusal(m_field, "the property holds a value of another type by now");
    else if (!m_place.write(wanted))
        knPostRefusal(m_field, "the property doesn't take the value");
    refresh();
}

void PropertyField::fieldWatchBegins()
{
    refresh();
    ObjectWatch::getInstance().watch(this);
}

void PropertyField::fieldWatchEnds() { ObjectWatch::getInstance().unwatch(this); }
