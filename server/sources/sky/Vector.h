// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

namespace moravel::server::sky {

/// Three numbers: a place, a direction or a colour in linear light.
template <typename T>
struct Vec3
{
    T x{}, y{}, z{};

    constexpr Vec3 operator+(const Vec3 &o) const { return {x + o.x, y + o.y, z + o.z}; }

    constexpr Vec3 operator-(const Vec3 &o) const { return {x - o.x, y - o.y, z - o.z}; }

    constexpr Vec3 operator*(T f) const { return {x * f, y * f, z * f}; }

    constexpr Vec3 operator*(const Vec3 &o) const { return {x * o.x, y * o.y, z * o.z}; }

    constexpr Vec3 &operator+=(const Vec3 &o) { return *this = *this + o; }
};

using Vec3d = Vec3<double>;
using Vec3f = Vec3<float>;
using Colour = Vec3f; ///< Red, green, blue in linear light; 1 is white.

template <typename T>
constexpr T dot(const Vec3<T> &a, const Vec3<T> &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

template <typename T>
constexpr Vec3<T> cross(const Vec3<T> &a, const Vec3<T> &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

template <typename T>
T length(const Vec3<T> &a)
{
    return std::sqrt(dot(a, a));
}

template <typename T>
Vec3<T> normalized(const Vec3<T> &a)
{
    return a * (1 / length(a));
}

template <typename T>
constexpr T mix(T a, T b, float t)
{
    return a * (1 - t) + b * t;
}

/// 0 below @p low, 1 above @p high, smooth in between.
inline float smoothstep(float low, float high, float x)
{
    float t = (x - low) / (high - low);
    t = t < 0 ? 0 : t > 1 ? 1 : t;
    return t * t * (3 - 2 * t);
}

} // namespace moravel::server::sky
