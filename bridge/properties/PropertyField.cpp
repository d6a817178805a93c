// SPDX-License-Identifier: BSD-3-Clause
#include "PropertyField.h"

#include "KnFieldRecorder.h"
#include "KnFieldText.h"
#include "NodeHold.h"
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
    // A getter may run an event loop, in which the tree lets go of the node.
    const NodeHold hold(m_field.getContainer());
    const std::optional<QVariant> value = m_place.read();
    if (!value)
        return;
    m_outgrown = !isFor(*value);
    if (m_outgrown) {
        ObjectWatch::getInstance().outgrown(*this);
        return;
    }
    if (shows(*value))
        return;
    const QScopedValueRollback showing(m_showing, true);
    const KnFieldRecorder::Pause unrecorded; // the program has written, not a person
    show(*value);
}

bool PropertyField::isFor(const QVariant& value) const
{
    return !m_place.isVariant() || value.metaType() == type();
}

bool PropertyField::isOutgrown() const
{
    if (!m_outgrown)
        return false;
    const std::optional<QVariant> value = m_place.read();
    return value && !isFor(*value);
}

// Unlike a refresh it is a person's edit, and recorded as one.
bool PropertyField::resetProperty()
{
    const NodeHold hold(m_field.getContainer()); // a setter may run an event loop
    if (!takesText())
        return false;
    // Remembers what the field can't say of the value that goes.
    if (const std::optional<QVariant> before = m_place.read(); before && isFor(*before))
        valueFor(*before);
    if (!m_place.reset()) {
        knPostRefusal(m_field, "the property can't be reset");
        return false;
    }
    const std::optional<QVariant> value = m_place.read();
    if (!value || !isFor(*value) || shows(*value))
        return true;
    const QScopedValueRollback showing(m_showing, true);
    show(*value);
    return true;
}

bool PropertyField::takesText() const
{
    const char* const refusal = m_place.refusal();
    if (refusal)
        knPostRefusal(m_field, refusal);
    return !refusal;
}

void PropertyField::fieldWritten()
{
    if (m_showing)
        return;
    // A setter may run an event loop, in which the tree lets go of the node.
    const NodeHold hold(m_field.getContainer());
    const std::optional<QVariant> before = m_place.read();
    if (!before) {
        takesText(); // says why not
        return;
    }
    if (m_place.isVariant() && before->metaType() != type()) {
        knPostRefusal(m_field, "the property holds a value of another type by now");
        return;
    }
    if (isFor(*before) && shows(*before))
        return;
    if (m_field.isReadOnly()) {
        knPostRefusal(m_field, "the property is read-only");
    } else {
        const QVariant wanted = valueFor(*before);
        if (wanted.isValid() && !m_place.write(wanted))
            knPostRefusal(m_field, "the property doesn't take the value");
    }
    refresh();
}

void PropertyField::fieldWatchBegins()
{
    refresh();
    ObjectWatch::getInstance().watch(this);
}

void PropertyField::fieldWatchEnds() { ObjectWatch::getInstance().unwatch(this); }
