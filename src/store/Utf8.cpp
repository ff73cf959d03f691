// SPDX-License-Identifier: MIT
#include "store/Utf8.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace moravel {

namespace {

using Byte = unsigned char;

constexpr std::uint64_t highBits = 0x8080808080808080U;
constexpr std::ptrdiff_t blockBytes = 32;

const Byte *skipAscii(const Byte *p, const Byte *end)
{
    while (end - p >= blockBytes) {
        std::array<std::uint64_t, 4> words{};
        std::memcpy(words.data(), p, sizeof words);
        if (((words[0] | words[1] | words[2] | words[3]) & highBits) != 0)
            break;
        p += blockBytes;
    }
    while (p < end && *p < 0x80)
        ++p;
    return p;
}

bool isTail(Byte byte)
{
    return (byte & 0xC0) == 0x80;
}

/// Length of the well-formed character of two or more bytes at @p p; 0 when there is none. The bounds of
/// the second byte are those of the Unicode Standard's table of well-formed byte sequences.
std::ptrdiff_t characterLength(const Byte *p, const Byte *end)
{
    const Byte lead = *p;
    const std::ptrdiff_t left = end - p;
    if (lead >= 0xC2 && lead <= 0xDF)
        return left >= 2 && isTail(p[1]) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        const Byte lowest = lead == 0xE0 ? 0xA0 : 0x80;
        const Byte highest = lead == 0xED ? 0x9F : 0xBF;
        return left >= 3 && p[1] >= lowest && p[1] <= highest && isTail(p[2]) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const Byte lowest = lead == 0xF0 ? 0x90 : 0x80;
        const Byte highest = lead == 0xF4 ? 0x8F : 0xBF;
        return left >= 4 && p[1] >= lowest && p[1] <= highest && isTail(p[2]) && isTail(p[3]) ? 4
                                                                                              : 0;
    }
    return 0;
}

} // namespace

bool isValidUtf8(std::string_view text)
{
    const auto *p = reinterpret_cast<const Byte *>(text.data());
    const Byte *const end = p + text.size();
    while (p < end) {
        p = skipAscii(p, end);
        while (p < end && *p >= 0x80) {
            const std::ptrdiff_t length = characterLength(p, end);
            if (length == 0)
                return false;
            p += length;
        }
    }
    return true;
}

} // namespace moravel
