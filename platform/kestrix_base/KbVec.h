// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>

/// A vector of `N` components of one number type; default-constructed it is all zero.
template <class Number, std::size_t N>
class KbVec {
public:
    using Component = Number;
    static constexpr int dimension = static_cast<int>(N);

    constexpr KbVec() = default;
    template <std::convertible_to<Number>... Numbers>
    requires(sizeof...(Numbers) == N) constexpr KbVec(Numbers... numbers)
        : m_components { static_cast<Number>(numbers)... }
    {
    }
    explicit constexpr KbVec(const Number (&numbers)[N])
    {
        for (std::size_t i = 0; i < N; ++i)
            m_components[i] = numbers[i];
    }

    constexpr Number& operator[](int i) { return m_components[static_cast<std::size_t>(i)]; }
    constexpr const Number& operator[](int i) const
    {
        return m_components[static_cast<std::size_t>(i)];
    }

    /// The components as one array of `N` numbers.
    constexpr const Number* getValue() const { return m_components.data(); }
    /// Copies the components into `N` variables.
    template <std::same_as<Number>... Numbers>
    requires(sizeof...(Numbers) == N) constexpr void getValue(Numbers&... numbers) const
    {
        std::size_t i = 0;
        ((numbers = m_components[i++]), ...);
    }

    friend constexpr bool operator==(const KbVec&, const KbVec&) = default;

private:
    std::array<Number, N> m_components {};
};

class KbVec2f : public KbVec<float, 2> {
public:
    using KbVec::KbVec;
};

class KbVec2s : public KbVec<std::int16_t, 2> {
public:
    using KbVec::KbVec;
};

class KbVec2i32 : public KbVec<std::int32_t, 2> {
public:
    using KbVec::KbVec;
};

class KbVec3f : public KbVec<float, 3> {
public:
    using KbVec::KbVec;
};

class KbVec4f : public KbVec<float, 4> {
public:
    using KbVec::KbVec;
};

/// Red, green, blue; nominally 0 to 1.
class KbColor : public KbVec3f {
public:
    using KbVec3f::KbVec3f;
    constexpr KbColor() = default;
    explicit constexpr KbColor(const KbVec3f& v)
        : KbVec3f(v)
    {
    }
};

/// Red, green, blue, alpha; nominally 0 to 1.
class KbColorRGBA : public KbVec4f {
public:
    using KbVec4f::KbVec4f;
    constexpr KbColorRGBA() = default;
    explicit constexpr KbColorRGBA(const KbVec4f& v)
        : KbVec4f(v)
    {
    }
};
