// SPDX-License-Identifier: MIT
#include "server/sources/sky/paint/Noise.h"

#include "server/sources/sky/paint/Prng.h"

#include <array>
#include <utility>

namespace moravel::server::sky {

namespace {

constexpr std::array<unsigned char, 512> shuffledBytes()
{
    std::array<unsigned char, 512> bytes{};
    for (unsigned i = 0; i < 256; ++i)
        bytes[i] = static_cast<unsigned char>(i);
    Prng prng(2011);
    for (unsigned i = 255; i > 0; --i)
        std::swap(bytes[i], bytes[prng.next() % (i + 1)]);
    for (unsigned i = 0; i < 256; ++i)
        bytes[i + 256] = bytes[i];
    return bytes;
}

constexpr auto permutation = shuffledBytes();

/// The middles of the edges of a cube, four of them twice.
constexpr Vec3f gradients[16] = {
    {1, 1, 0}, {-1, 1, 0}, {1, -1, 0}, {-1, -1, 0}, {1, 0, 1}, {-1, 0, 1}, {1, 0, -1}, {-1, 0, -1},
    {0, 1, 1}, {0, -1, 1}, {0, 1, -1}, {0, -1, -1}, {1, 1, 0}, {-1, 1, 0}, {0, -1, 1}, {0, -1, -1}};

/// The gradient that belongs to a hashed corner, without a second look-up.
struct alignas(16) Gradient
{
    float x, y, z;
};

constexpr std::array<Gradient, 512> hashedGradients()
{
    std::array<Gradient, 512> table{};
    for (unsigned i = 0; i < 512; ++i) {
        const Vec3f &g = gradients[permutation[i] & 15];
        table[i] = {g.x, g.y, g.z};
    }
    return table;
}

constexpr auto cornerGradients = hashedGradients();

int floorOf(float x)
{
    const int truncated = static_cast<int>(x);
    return truncated - (x < static_cast<float>(truncated));
}

float fade(float t)
{
    return t * t * t * (t * (t * 6 - 15) + 10);
}

float corner(unsigned hash, float x, float y, float z)
{
    const Gradient &g = cornerGradients.data()[hash];
    return g.x * x + g.y * y + g.z * z;
}

} // namespace

float noise(const Vec3f &p)
{
    const int xi = floorOf(p.x), yi = floorOf(p.y), zi = floorOf(p.z);
    const float x = p.x - static_cast<float>(xi);
    const float y = p.y - static_cast<float>(yi);
    const float z = p.z - static_cast<float>(zi);
    const float u = fade(x), v = fade(y), w = fade(z);
    const unsigned char *const hashed = permutation.data();
    const auto x0 = static_cast<unsigned>(xi) & 255, x1 = static_cast<unsigned>(xi + 1) & 255;
    const auto y0 = static_cast<unsigned>(yi) & 255, y1 = static_cast<unsigned>(yi + 1) & 255;
    const auto z0 = static_cast<unsigned>(zi) & 255, z1 = static_cast<unsigned>(zi + 1) & 255;
    const unsigned a = hashed[x0], b = hashed[x1];
    const unsigned aa = hashed[a + y0], ab = hashed[a + y1], ba = hashed[b + y0],
                   bb = hashed[b + y1];
    const float near =
        mix(mix(corner(aa + z0, x, y, z), corner(ba + z0, x - 1, y, z), u),
            mix(corner(ab + z0, x, y - 1, z), corner(bb + z0, x - 1, y - 1, z), u), v);
    const float far =
        mix(mix(corner(aa + z1, x, y, z - 1), corner(ba + z1, x - 1, y, z - 1), u),
            mix(corner(ab + z1, x, y - 1, z - 1), corner(bb + z1, x - 1, y - 1, z - 1), u), v);
    return mix(near, far, w);
}

float fractalNoise(const Vec3f &p, int octaves)
{
    float sum = 0, strength = 1;
    Vec3f at = p;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * noise(at);
        strength *= 0.5f;
        at = at * 2.03f + Vec3f{17.1f, 5.7f, 11.3f}; // keeps the octaves' lattices apart
    }
    return sum;
}

float ridgedNoise(const Vec3f &p, int octaves)
{
    float sum = 0, strength = 0.5f;
    Vec3f at = p;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * (1 - 2 * std::fabs(noise(at)));
        strength *= 0.5f;
        at = at * 2.03f + Vec3f{7.9f, 13.3f, 3.1f};
    }
    return sum;
}

} // namespace moravel::server::sky
