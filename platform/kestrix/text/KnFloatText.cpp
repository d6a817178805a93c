// SPDX-License-Identifier: BSD-3-Clause
#include "KnFloatText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>

namespace {

constexpr int mantissaBits = 23;
constexpr int exponentBias = 127;
constexpr int longestNumber = 16;

template <std::uint64_t Base, int Count>
constexpr std::array<std::uint64_t, Count> powers()
{
    std::array<std::uint64_t, Count> result {};
    std::uint64_t power = 1;
    for (std::uint64_t& each : result) {
        each = power;
        power *= Base;
    }
    return result;
}

constexpr auto powersOf5 = powers<5, 15>();
constexpr auto powersOf10 = powers<10, 15>();

/// `digits` times 10 to the power of minus `places`.
struct Decimal {
    std::uint64_t digits;
    int places;
};

/// Any decimal between the middles to the neighbours of a number reads back to it. This takes the
/// middles times a power of ten, so that many whole numbers lie between them, and then drops digits
/// for as long as some still do. Nothing is ever rounded: mantissa times power fits into 64 bits.
Decimal shortest(std::uint32_t bits)
{
    const std::uint32_t fraction = bits & ((1U << mantissaBits) - 1);
    const int exponent = static_cast<int>((bits >> mantissaBits) & 0xFFU) - exponentBias;
    const std::uint64_t mantissa = fraction | (1U << mantissaBits);
    // 1233 / 4096 is the logarithm of 2 to the base of ten. The number has ten digits or eleven
    // before the point then, and there are sixty whole numbers between the middles, or more.
    int places = 9 - ((exponent * 1233) >> 12);
    // In quarters, because below a power of two the neighbour is only half as far away.
    const int shift = mantissaBits + 2 - exponent - places;
    const std::uint64_t power = powersOf5[static_cast<std::size_t>(places)];
    const std::uint64_t scaledNumber = 4 * mantissa * power;
    const std::uint64_t scaledLow = (4 * mantissa - (fraction != 0 ? 2 : 1)) * power;
    const std::uint64_t scaledHigh = (4 * mantissa + 2) * power;
    const std::uint64_t behindPoint = (std::uint64_t { 1 } << shift) - 1;

    // A middle itself reads back to the neighbour that is even.
    const bool takesMiddles = mantissa % 2 == 0;
    bool lowIsExact = takesMiddles && (scaledLow & behindPoint) == 0;
    bool numberIsExact = (scaledNumber & behindPoint) == 0;
    std::uint64_t low = scaledLow >> shift;
    std::uint64_t number = scaledNumber >> shift;
    std::uint64_t high = scaledHigh >> shift;
    if (!takesMiddles && (scaledHigh & behindPoint) == 0)
        --high;

    std::uint64_t dropped = 0; // the last one
    const auto dropDigit = [&] {
        lowIsExact = lowIsExact && low % 10 == 0;
        numberIsExact = numberIsExact && dropped == 0;
        dropped = number % 10;
        low /= 10;
        number /= 10;
        high /= 10;
        --places;
    };
    while (high / 10 > low / 10)
        dropDigit();
    while (lowIsExact && low % 10 == 0)
        dropDigit();
    if (numberIsExact && dropped == 5 && number % 2 == 0)
        dropped = 4; // as near as the one above, which isn't even
    const bool isBelow = number == low && !lowIsExact;
    return { number + (isBelow || dropped >= 5 ? 1 : 0), places };
}

} // namespace

char* knWriteFloat(char* next, float value)
{
    const auto bits = std::bit_cast<std::uint32_t>(value);
    if (value < 0)
        *next++ = '-';
    auto [digits, places] = shortest(bits);
    if (places <= 0) {
        digits *= powersOf10[static_cast<std::size_t>(-places)];
        return std::to_chars(next, next + longestNumber, digits).ptr;
    }
    const std::uint64_t one = powersOf10[static_cast<std::size_t>(places)];
    const std::uint64_t whole = digits / one;
    digits -= whole * one;
    next = std::to_chars(next, next + longestNumber, whole).ptr;
    *next++ = '.';
    char* const end = next + places;
    for (char* digit = end; digit != next; digits /= 10)
        *--digit = static_cast<char>('0' + digits % 10);
    return end;
}
