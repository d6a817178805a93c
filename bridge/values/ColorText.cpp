// SPDX-License-Identifier: BSD-3-Clause
#include "ColorText.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace {

/// A model: its name, the numbers of a colour of it, from 0 to 1, and a colour from them.
struct Model {
    QLatin1String name;
    /// Leaves a colour of this model as it is, and no other.
    QColor (QColor::*convert)() const noexcept;
    std::vector<float> (*split)(const QColor& color);
    QColor (*make)(const std::vector<float>& numbers);
    std::size_t count;
    bool hasHue;
};

const Model models[] = {
    { QLatin1String("rgb"), &QColor::toRgb,
        [](const QColor& c) -> std::vector<float> {
            return { c.redF(), c.greenF(), c.blueF(), c.alphaF() };
        },
        [](const std::vector<float>& n) { return QColor::fromRgbF(n[0], n[1], n[2], n[3]); }, 4,
        false },
    { QLatin1String("hsv"), &QColor::toHsv,
        [](const QColor& c) -> std::vector<float> {
            return { c.hsvHueF(), c.hsvSaturationF(), c.valueF(), c.alphaF() };
        },
        [](const std::vector<float>& n) { return QColor::fromHsvF(n[0], n[1], n[2], n[3]); }, 4,
        true },
    { QLatin1String("hsl"), &QColor::toHsl,
        [](const QColor& c) -> std::vector<float> {
            return { c.hslHueF(), c.hslSaturationF(), c.lightnessF(), c.alphaF() };
        },
        [](const std::vector<float>& n) { return QColor::fromHslF(n[0], n[1], n[2], n[3]); }, 4,
        true },
    { QLatin1String("cmyk"), &QColor::toCmyk,
        [](const QColor& c) -> std::vector<float> {
            return { c.cyanF(), c.magentaF(), c.yellowF(), c.blackF(), c.alphaF() };
        },
        [](const std::vector<float>& n) { return QColor::fromCmykF(n[0], n[1], n[2], n[3], n[4]); },
        5, false },
};

const QLatin1String invalidName("invalid");

/// Numbers beyond the range of the models are refused, except the hue of a grey, which is -1.
bool isInRange(const std::vector<float>& numbers)
{
    return std::all_of(numbers.begin() + 1, numbers.end(), [](float number) {
        return number >= 0 && number <= 1;
    }) && (numbers[0] == -1 || (numbers[0] >= 0 && numbers[0] <= 1));
}

} // namespace

QString colorText(const QColor& color)
{
    if (!color.isValid())
        return invalidName;
    const QColor plain = QColor::fromRgba(color.rgba());
    if (plain == color)
        return plain.name(plain.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
    for (const Model& model : models) {
        if ((color.*model.convert)() != color)
            continue;
        QString text = model.name;
        for (const float number : model.split(color))
            text += u':' + QString::number(static_cast<double>(number), 'g', 7);
        return text;
    }
    return QStringLiteral("beyond:") + color.name(QColor::HexArgb);
}

std::optional<QColor> colorOf(const QString& text)
{
    if (text == invalidName)
        return QColor();
    QStringList words = text.split(u':');
    for (const Model& model : models) {
        if (words[0] != model.name)
            continue;
        words.removeFirst();
        std::vector<float> numbers;
        for (const QString& word : words) {
            bool ok = false;
            numbers.push_back(word.toFloat(&ok));
            if (!ok)
                return std::nullopt;
        }
        const bool isOne = numbers.size() == model.count && isInRange(numbers)
            && (numbers[0] >= 0 || model.hasHue);
        return isOne ? std::optional(model.make(numbers)) : std::nullopt;
    }
    return QColor::isValidColor(text) ? std::optional(QColor(text)) : std::nullopt;
}
