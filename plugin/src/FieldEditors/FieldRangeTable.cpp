// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRangeTable.h"

#include "KnComplexity.h"
#include "KnDirectionalLight.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "KnMaterial.h"
#include "SliderMath.h"

namespace {

struct Row {
    const char* nodeType;
    const char* fieldName;
    const char* minValue;
    const char* maxValue;
    const char* type; // "f" float, "d" double, "i" integer
    const char* isBounded; // "0" or "1"
};

constexpr Row rows[] = {
    { "DefaultNode", "floatField", "0.0", "10.0", "f", "0" },
    { "DefaultNode", "doubleField", "0.0", "10.0", "d", "0" },
    { "DefaultNode", "intField", "0", "100", "i", "0" },
    { "Complexity", "value", "0.0", "1.0", "f", "1" },
    { "Complexity", "textureQuality", "0.0", "1.0", "f", "1" },
    { "DirectionalLight", "intensity", "0.0", "1.0", "f", "1" },
    { "Material", "transparency", "0.0", "1.0", "f", "1" },
};

QString fieldKey(const char* nodeType, const char* fieldName)
{
    return QLatin1String(nodeType) + QLatin1String(fieldName);
}

int toInt(const QString& text) { return text.toInt(nullptr, FieldRangeTable::detectBase(text)); }

} // namespace

FieldRangeTable::FieldRangeTable()
{
    for (const Row& row : rows) {
        const QString minValue = QLatin1String(row.minValue);
        const QString maxValue = QLatin1String(row.maxValue);
        const QLatin1String type(row.type);
        FieldRange range;
        if (type == QLatin1String("f"))
            range.setFloatRange(minValue.toFloat(), maxValue.toFloat());
        else if (type == QLatin1String("d"))
            range.setDoubleRange(minValue.toDouble(), maxValue.toDouble());
        else if (type == QLatin1String("i"))
            range.setIntRange(toInt(minValue), toInt(maxValue));
        range.setBounded(QString(QLatin1String(row.isBounded)).toInt(nullptr, 10) != 0);
        m_ranges.insert(fieldKey(row.nodeType, row.fieldName), range);
    }
}

bool FieldRangeTable::exists(const char* nodeType, const char* fieldName) const
{
    return m_ranges.contains(fieldKey(nodeType, fieldName));
}

FieldRange FieldRangeTable::get(const char* nodeType, const char* fieldName) const
{
    return m_ranges.value(fieldKey(nodeType, fieldName));
}

FieldRange FieldRangeTable::getForRealField(const KnField& field, const char* defaultField) const
{
    const KnType ratioNodes[] = { KnComplexity::getClassTypeId(), KnMaterial::getClassTypeId(),
        KnDirectionalLight::getClassTypeId() };
    if (const KnFieldContainer* const container = field.getContainer()) {
        for (const KnType& type : ratioNodes) {
            if (container->isOfType(type))
                return get("Complexity", "value");
        }
    }
    return get("DefaultNode", defaultField);
}

int FieldRangeTable::detectBase(QString text) { return SliderMath::detectBase(text); }
