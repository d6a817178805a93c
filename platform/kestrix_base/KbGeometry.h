// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbVec.h"

#include <array>

/// A plane: the points p with dot(normal, p) = distance. Both are kept as given: the normal isn't
/// normalised, so that a text of a plane reads back to the same bits.
class KbPlane {
public:
    constexpr KbPlane() = default;
    constexpr KbPlane(const KbVec3f& normal, float distance)
        : m_normal(normal)
        , m_distance(distance)
    {
    }

    constexpr const KbVec3f& getNormal() const { return m_normal; }
    constexpr float getDistanceFromOrigin() const { return m_distance; }

    friend constexpr bool operator==(const KbPlane&, const KbPlane&) = default;

private:
    KbVec3f m_normal { 0.0F, 0.0F, 1.0F };
    float m_distance = 0.0F;
};

/// A rotation about an axis. Axis and angle are kept as given, so that a text of a rotation reads
/// back to the same bits; the quaternion is computed from them.
class KbRotation {
public:
    /// No rotation: axis (0, 0, 1), angle 0.
    constexpr KbRotation() = default;
    constexpr KbRotation(const KbVec3f& axis, float radians)
        : m_axis(axis)
        , m_radians(radians)
    {
    }
    /// From a quaternion x, y, z, w of any length but zero. It is brought to unit length; a
    /// quaternion of length zero or not finite gives no rotation.
    explicit KbRotation(const float (&quaternion)[4]);

    /// The unit quaternion x, y, z, w. An axis of length zero gives no rotation.
    std::array<float, 4> getValue() const;
    void getValue(KbVec3f& axis, float& radians) const
    {
        axis = m_axis;
        radians = m_radians;
    }

    /// Compares axis and angle, not the rotations that they stand for.
    friend constexpr bool operator==(const KbRotation&, const KbRotation&) = default;

private:
    KbVec3f m_axis { 0.0F, 0.0F, 1.0F };
    float m_radians = 0.0F;
};

/// A 4 by 4 matrix of floats, `[row][column]`; default-constructed it is the identity.
class KbMatrix {
public:
    constexpr KbMatrix() = default;
    /// The 16 elements, row after row.
    explicit constexpr KbMatrix(const float (&elements)[16])
    {
        for (std::size_t i = 0; i < 16; ++i)
            m_elements[i] = elements[i];
    }

    constexpr float* operator[](int row) { return m_elements.data() + row * 4; }
    constexpr const float* operator[](int row) const { return m_elements.data() + row * 4; }
    /// The 16 elements, row after row.
    constexpr const float* getValue() const { return m_elements.data(); }

    friend constexpr bool operator==(const KbMatrix&, const KbMatrix&) = default;

private:
    std::array<float, 16> m_elements { 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1 };
};

/// An axis-aligned box given by its lowest and highest corner, kept as given.
template <class Corner>
class KbBox {
public:
    using Component = typename Corner::Component;

    constexpr KbBox() = default;
    constexpr KbBox(const Corner& min, const Corner& max)
        : m_min(min)
        , m_max(max)
    {
    }
    /// The components of the lowest corner, then those of the highest.
    template <std::convertible_to<Component>... Numbers>
    requires(sizeof...(Numbers) == 2 * Corner::dimension) constexpr KbBox(Numbers... numbers)
    {
        const Component all[] = { static_cast<Component>(numbers)... };
        for (int i = 0; i < Corner::dimension; ++i) {
            m_min[i] = all[i];
            m_max[i] = all[Corner::dimension + i];
        }
    }

    constexpr const Corner& getMin() const { return m_min; }
    constexpr const Corner& getMax() const { return m_max; }
    /// Copies the components of the lowest corner, then those of the highest.
    template <std::same_as<Component>... Numbers>
    requires(sizeof...(Numbers) == 2 * Corner::dimension) constexpr void getBounds(
        Numbers&... numbers) const
    {
        int i = 0;
        ((numbers = i < Corner::dimension ? m_min[i] : m_max[i - Corner::dimension], ++i), ...);
    }

    friend constexpr bool operator==(const KbBox&, const KbBox&) = default;

private:
    Corner m_min;
    Corner m_max;
};

class KbVec3s : public KbVec<std::int16_t, 3> {
public:
    using KbVec::KbVec;
};

class KbBox2f : public KbBox<KbVec2f> {
public:
    using KbBox::KbBox;
};

class KbBox3s : public KbBox<KbVec3s> {
public:
    using KbBox::KbBox;
};
