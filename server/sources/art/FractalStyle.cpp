// SPDX-License-Identifier: MIT
#include "server/sources/art/FractalScene.h"
#include "server/sources/art/Random.h"

namespace moravel::server::art {

namespace {

struct Palette
{
    std::initializer_list<std::uint32_t> tones; ///< From the far field to the edge of the set.
    std::uint32_t inside;
    std::uint32_t glow;
};

/// Dark grounds that leave the light to the detail, each with one or two related hues and one
/// accent.
const Palette kPalettes[] = {
    {{0x060a14, 0x0c1c36, 0x1d3f66, 0x6f7f8c, 0xd9a55b, 0xffe6b3},
     0x04060c,
     0xfff0cf}, // night, gold
    {{0x03090d, 0x06262f, 0x0d5a5f, 0x3fa58f, 0xb9e3b8, 0xf7f7dc}, 0x02070a, 0xf4ffe0}, // lagoon
    {{0x0a0507, 0x2a0b16, 0x701a22, 0xcc4f2a, 0xf7b25c, 0xfff0d0}, 0x070304, 0xffe2b0}, // ember
    {{0x08060f, 0x1f1440, 0x4f2d7c, 0xa9559f, 0xf0aeb0, 0xfff0e6}, 0x06040c, 0xffe6dc}, // amethyst
    {{0x060a08, 0x14281e, 0x365a3b, 0x8fa55b, 0xe6d894, 0xfff8da}, 0x040806, 0xfff3c4}, // moss
    {{0x030710, 0x0b2347, 0x14508a, 0x58a3d4, 0xc4e6f7, 0xffffff}, 0x02050b, 0xe6f6ff}, // ice
    {{0x04100f, 0x0c373a, 0x2b7673, 0xb8906a, 0xf2b98a, 0xffe9d0},
     0x030b0b,
     0xffe2c4}, // teal, copper
    {{0x0b0a14, 0x2a1f40, 0x743c60, 0xd9706a, 0xfcc49a, 0xfff1de}, 0x08070f, 0xffe4cc}, // rose dusk
    {{0x0a0b0d, 0x24262b, 0x5b5853, 0xa9977c, 0xdccdb0, 0xfaf3e4}, 0x070809, 0xfff7e8}, // ink, sand
    {{0xf1ebdf, 0xc9d3d6, 0x86a2b3, 0x44677f, 0x1d3850, 0x0b1826}, 0x0b1522, 0x0f2030}, // porcelain
    {{0x050b16, 0x123054, 0x2f6d8f, 0x86b6ac, 0xf0c987, 0xe8744f}, 0x04080f, 0xffd9a8}, // coast
};

} // namespace

FractalStyle fractalStyleFor(QDate date)
{
    const std::int64_t day = date.toJulianDay();
    const Palette &palette = kPalettes[cardOfDay(day, std::size(kPalettes), 0xc0104)];
    Random random(static_cast<std::uint64_t>(day) * 0x9fb21c651e98df25ULL + 7);
    FractalStyle style;
    style.gradient = Gradient(palette.tones);
    style.inside = fromHex(palette.inside);
    style.glow = fromHex(palette.glow);
    style.stripes = random.betweenF(0.03F, 0.16F);
    style.relief = random.betweenF(0.35F, 0.8F);
    style.glowStrength = random.betweenF(0.25F, 0.6F);
    const double angle = kPi * random.between(0.55, 0.85); // from the upper left, as eyes expect
    style.lightX = static_cast<float>(cosOf(angle));
    style.lightY = static_cast<float>(sinOf(angle));
    return style;
}

} // namespace moravel::server::art
