// SPDX-License-Identifier: BSD-3-Clause
#include "WatchedValue.h"

#include "FieldNumbers.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "SceneText.h"
#include "WatchClock.h"

#include <bit>
#include <cstdint>
#include <utility>

namespace {

QString fullName(const KnField& field, const QString& component)
{
    const KnFieldContainer* const node = field.getContainer();
    const QString name = node ? nodeLabel(*node) + QLatin1Char('.') + fieldName(field) : QString();
    return name + componentSuffix(component);
}

} // namespace

WatchedValue::WatchedValue(
    KnField& field, const FieldNumbers& numbers, int component, int color, WatchClock& clock)
    : KnFieldSensor(&WatchedValue::fieldChanged, this)
    , m_numbers(numbers)
    , m_component(component)
    , m_color(color)
    , m_clock(clock)
    , m_field(&field)
    , m_node(field.getContainer())
    , m_nodeType(m_node ? m_node->getObjectType() : KnType())
    , m_nodeName(m_node ? m_node->getName() : KbName())
    , m_name(fullName(field, numbers.name(component)))
{
}

WatchedValue::~WatchedValue() = default;

bool WatchedValue::isNumberOf(const KnField& field, int component) const
{
    return !m_gone && m_field == &field && m_component == component;
}

QString WatchedValue::text(double value) const
{
    return QString::fromStdString(m_numbers.text(value));
}

QString WatchedValue::decimalText(double value) const
{
    return QString::fromStdString(m_numbers.decimal(value));
}

bool WatchedValue::isOfNode(const KnFieldContainer& node) const
{
    return node.getObjectType() == m_nodeType && node.getName() == m_nodeName
        && node.getContainerFieldData()->getIndex(&node, m_field) >= 0;
}

void WatchedValue::start()
{
    attach(m_field);
    take();
}

void WatchedValue::stop()
{
    if (!getAttachedField())
        return;
    detach();
    interrupt();
}

void WatchedValue::interrupt()
{
    const std::size_t size = m_series.size();
    if (size > 0 && m_series[size - 1].kind != WatchSample::Kind::Gap)
        m_series.add({ m_clock.stamp(), 0, WatchSample::Kind::Gap });
    m_edited = false;
}

void WatchedValue::resume()
{
    if (getAttachedField())
        take();
}

void WatchedValue::noteEdit()
{
    if (getAttachedField())
        m_edited = m_edited || differs(readNumber());
}

void WatchedValue::setGone()
{
    m_gone = true;
    interrupt();
}

void WatchedValue::fieldChanged(void* data, KnSensor*) { static_cast<WatchedValue*>(data)->take(); }

double WatchedValue::readNumber() const { return m_numbers.read(*m_field, m_component); }

// Compares the bits, so that one NaN is like another.
bool WatchedValue::differs(double value) const
{
    const std::size_t size = m_series.size();
    if (size == 0 || m_series[size - 1].kind == WatchSample::Kind::Gap)
        return true;
    return std::bit_cast<std::uint64_t>(value)
        != std::bit_cast<std::uint64_t>(m_series[size - 1].value);
}

// The write of an equal value moves time on, but needs no place in the ring.
void WatchedValue::take()
{
    const double value = readNumber();
    const double time = m_clock.stamp();
    const bool edited = std::exchange(m_edited, false);
    if (edited || differs(value)) {
        m_series.add(
            { time, value, edited ? WatchSample::Kind::Edited : WatchSample::Kind::Written });
    }
}
