// SPDX-License-Identifier: BSD-3-Clause
#include "ListedField.h"

#include "CrvNodeDetails.h"
#include "FieldDefaults.h"
#include "FieldValues.h"
#include "KnSFImage.h"
#include "KnSFields.h"
#include "SceneText.h"
#include "SharedFields.h"

#include <algorithm>
#include <utility>

namespace {

const QChar ellipsis(0x2026);
const QChar dash(0x2014);

QColor colorOf(const KnField& field)
{
    const auto make = [](const auto& value, float alpha) {
        const auto channel = [](float part) { return std::clamp(part, 0.0F, 1.0F); };
        return QColor::fromRgbF(
            channel(value[0]), channel(value[1]), channel(value[2]), channel(alpha));
    };
    if (const auto* const color = dynamic_cast<const KnSFColor*>(&field))
        return make(color->getValue(), 1);
    if (const auto* const color = dynamic_cast<const KnSFColorRGBA*>(&field))
        return make(color->getValue(), color->getValue()[3]);
    return QColor();
}

} // namespace

ListedField::ListedField(
    Listener& listener, FieldDefaults& defaults, const SharedField& shared, bool compared)
    : m_listener(listener)
    , m_defaults(defaults)
    , m_name(shared.name)
    , m_fields(shared.fields)
    , m_sensor(sensorRan, this)
{
    if (!compared)
        return;
    m_other = m_fields.back();
    m_fields.pop_back();
}

bool ListedField::isOf(const SharedField& shared) const
{
    std::vector<KnField*> fields = m_fields;
    if (fields.size() < shared.fields.size())
        fields.push_back(m_other);
    return fields == shared.fields;
}

void ListedField::sensorRan(void* data, KnSensor*)
{
    auto* const row = static_cast<ListedField*>(data);
    row->m_listener.fieldChanged(*row);
}

bool ListedField::isBool() const { return field().isOfType(KnSFBool::getClassTypeId()); }

bool ListedField::isReadOnly() const
{
    return std::all_of(
        m_fields.begin(), m_fields.end(), [](const KnField* field) { return field->isReadOnly(); });
}

bool ListedField::hasDefault() const
{
    return std::any_of(m_fields.begin(), m_fields.end(),
        [this](const KnField* field) { return m_defaults.of(*field); });
}

const ListedField::Shown& ListedField::shown()
{
    if (!m_shown) {
        watch();
        m_shown = read();
    }
    return *m_shown;
}

void ListedField::watch()
{
    if (m_sensor.getAttachedField())
        return;
    m_sensor.attach(m_fields.front());
    for (std::size_t i = 1; i < m_fields.size(); ++i)
        m_otherSensors.emplace_back(sensorRan, this).attach(m_fields[i]);
    if (m_other)
        m_otherSensors.emplace_back(sensorRan, this).attach(m_other);
}

ListedField::Shown ListedField::read() const
{
    const KnField& first = field();
    Shown shown;
    shown.isMixed = std::any_of(m_fields.begin() + 1, m_fields.end(),
        [&first](const KnField* other) { return !holdSame(first, *other); });
    shown.value = shown.isMixed ? QString(dash) : fieldSummary(first);
    shown.isIgnored = std::any_of(m_fields.begin(), m_fields.end(),
        [](const KnField* field) { return field->isIgnored() != 0; });
    shown.isReadOnly = isReadOnly();
    const CrvNodeDetails* const details = CrvNodeDetails::of(first);
    shown.isLink = details && !shown.isMixed && details->isLink(first);
    shown.isChanged = std::any_of(m_fields.begin(), m_fields.end(), [this](const KnField* field) {
        const KnField* const fresh = m_defaults.of(*field);
        return fresh && !holdSame(*field, *fresh);
    });
    if (const auto* const truth = dynamic_cast<const KnSFBool*>(&first)) {
        shown.check = shown.isMixed ? Qt::PartiallyChecked
            : truth->getValue()     ? Qt::Checked
                                    : Qt::Unchecked;
    }
    if (!shown.isMixed)
        shown.color = colorOf(first);
    if (m_other) {
        shown.other = fieldSummary(*m_other);
        shown.differs = !holdSame(first, *m_other);
    }
    return shown;
}

// A program may well write what a field holds already.
bool ListedField::readAgain()
{
    const std::optional<Shown> before = std::exchange(m_shown, std::nullopt);
    return before != shown();
}

bool ListedField::leavesOut()
{
    return shown().value.contains(ellipsis) || shown().isMixed || shown().other.contains(ellipsis)
        || field().isOfType(KnSFImage::getClassTypeId());
}
