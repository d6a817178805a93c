// SPDX-License-Identifier: BSD-3-Clause
#include "KnFloatText.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace {

constexpr int mantissaBits = 23;
constexpr int exponentBias = 127;

template <class Number, std::size_t Count>
constexpr std::array<Number, Count> powersOf(Number base)
{
    std::array<Number, Count> result {};
    Number power = 1;
    for (Number& each : result) {
        each = power;
        power *= base;
    }
    return result;
}

constexpr auto powersOf5 = powersOf<std::uint64_t, 15>(5);
constexpr auto powersOf10 = powersOf<std::uint32_t, 10>(10);

constexpr auto pairsOfDigits()
{
    std::array<char, 200> pairs {};
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        pairs[i] = static_cast<char>('0' + i / 20);
        pairs[i + 1] = static_cast<char>('0' + i / 2 % 10);
    }
    return pairs;
}

constexpr auto digitPairs = pairsOfDigits();

/// 1233 / 4096 is the logarithm of 2 to the base of ten, near enough for the exponents of floats.
constexpr int decimalExponent(int binaryExponent) { return (binaryExponent * 1233) >> 12; }

/// `digits` times 10 to the power of minus `places`.
struct Decimal {
    std::uint32_t digits;
    int places;
};

/// Drops the digits that the number doesn't need: those without which `low` and `high`, the first
/// and the last whole number that read back to it, still have another one between them. At least
/// one digit is dropped. With `Exact`, `low` or `number` itself may stand for its value without a
/// remainder, which the flags say.
template <bool Exact>
Decimal drop(std::uint64_t low, std::uint64_t number, std::uint64_t high, int places,
    bool lowIsExact = false, bool numberIsExact = false)
{
    lowIsExact = Exact && lowIsExact && low % 10 == 0;
    auto dropped = static_cast<std::uint32_t>(number % 10);
    auto shortLow = static_cast<std::uint32_t>(low / 10);
    auto digits = static_cast<std::uint32_t>(number / 10);
    auto shortHigh = static_cast<std::uint32_t>(high / 10);
    --places;
    const auto dropDigit = [&] {
        if constexpr (Exact) {
            lowIsExact = lowIsExact && shortLow % 10 == 0;
            numberIsExact = numberIsExact && dropped == 0;
        }
        dropped = digits % 10;
        shortLow /= 10;
        digits /= 10;
        shortHigh /= 10;
        --places;
    };
    // NOLINTBEGIN(bugprone-infinite-loop): the linter doesn't look into the function
    while (shortHigh / 10 > shortLow / 10)
        dropDigit();
    if constexpr (Exact) {
        while (lowIsExact && shortLow % 10 == 0)
            dropDigit();
        // NOLINTEND(bugprone-infinite-loop)
        if (numberIsExact && dropped == 5 && digits % 2 == 0)
            dropped = 4; // the one above is as near, but isn't even
    }
    const bool isBelow = digits == shortLow && !lowIsExact;
    return { digits + (isBelow || dropped >= 5 ? 1 : 0), places };
}

/// Any decimal between the middles to the neighbours of a number reads back to it. This takes the
/// middles times a power of ten, so that many whole numbers lie between them. Nothing is rounded:
/// mantissa times power fits into 64 bits.
Decimal shortest(std::uint32_t bits)
{
    const std::uint32_t fraction = bits & ((1U << mantissaBits) - 1);
    const int exponent = static_cast<int>((bits >> mantissaBits) & 0xFFU) - exponentBias;
    const std::uint64_t mantissa = fraction | (1U << mantissaBits);
    // The number has ten digits or eleven before the point then, and there are sixty whole numbers
    // between the middles, or more.
    const int places = 9 - decimalExponent(exponent);
    // In quarters, because below a power of two the neighbour is only half as far away.
    const int shift = mantissaBits + 2 - exponent - places;
    const std::uint64_t power = powersOf5[static_cast<std::size_t>(places)];
    const std::uint64_t number = 4 * mantissa * power;
    const std::uint64_t low = number - (fraction != 0 ? 2 : 1) * power;
    const std::uint64_t high = number + 2 * power;

    const std::uint64_t behindPoint = (std::uint64_t { 1 } << shift) - 1;
    const bool lowIsWhole = (low & behindPoint) == 0;
    const bool highIsWhole = (high & behindPoint) == 0;
    const bool numberIsWhole = (number & behindPoint) == 0;
    if (!lowIsWhole && !highIsWhole && !numberIsWhole)
        return drop<false>(low >> shift, number >> shift, high >> shift, places);
    // A middle itself reads back to the neighbour that is even.
    const bool takesMiddles = mantissa % 2 == 0;
    return drop<true>(low >> shift, number >> shift,
        (high >> shift) - (highIsWhole && !takesMiddles ? 1 : 0), places,
        lowIsWhole && takesMiddles, numberIsWhole);
}

int countDigits(std::uint32_t number)
{
    const int least = decimalExponent(static_cast<int>(std::bit_width(number)));
    return least + (number >= powersOf10[static_cast<std::size_t>(least)] ? 1 : 0);
}

} // namespace

char* knWriteFloat(char* next, float value)
{
    const Decimal decimal = shortest(std::bit_cast<std::uint32_t>(value));
    if (value < 0)
        *next++ = '-';

    // Digits are taken in blocks that are longer than they are, since that needs no loops.
    constexpr std::size_t block = 16;
    constexpr std::size_t room = 2 * block;
    constexpr int most = 10;
    std::array<char, room> digits;
    std::uint32_t rest = decimal.digits;
    for (int i = most - 2; i >= 0; i -= 2) {
        std::memcpy(&digits[static_cast<std::size_t>(i)], &digitPairs[rest % 100 * 2], 2);
        rest /= 100;
    }
    std::memset(&digits[most], '0', block); // for whole numbers that end with zeros
    const int count = countDigits(decimal.digits);
    const char* const first = digits.data() + (most - count);
    const int whole = count - decimal.places;
    if (decimal.places <= 0) {
        std::memcpy(next, first, block);
        return next + whole;
    }
    if (whole > 0) {
        std::memcpy(next, first, block);
        next[whole] = '.';
        std::memcpy(next + whole + 1, first + whole, block);
        return next + count + 1;
    }
    // NOLINTNEXTLINE(bugprone-not-null-terminated-result): a part of a text
    std::memcpy(next, "0.000000", 8);
    std::memcpy(next + 2 - whole, first, block);
    return next + 2 - whole + count;
}
