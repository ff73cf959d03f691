// SPDX-License-Identifier: MIT
#include "text/HTMLReference.h"

#include "text/CharacterSets.h"
#include "text/HTMLEscapeTables.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace moravel {
namespace {

constexpr bool startsAndEndsRight(const HTMLEscapeRow &row)
{
    return row.entity.front() == u'&' && row.entity.back() == u';'
        && row.entity.size() >= shortestHTMLReference && row.entity.size() <= longestHTMLReference;
}

static_assert(fullHTMLEscapeTable.size() == 254);
static_assert(shortHTMLEscapeTable.size() == 33);
static_assert(std::ranges::is_sorted(fullHTMLEscapeTable, {}, &HTMLEscapeRow::unit));
static_assert(std::ranges::is_sorted(shortHTMLEscapeTable, {}, &HTMLEscapeRow::unit));
static_assert(std::ranges::all_of(fullHTMLEscapeTable, startsAndEndsRight));
static_assert(std::ranges::all_of(shortHTMLEscapeTable, [](const HTMLEscapeRow &row) {
    return std::ranges::find(fullHTMLEscapeTable, row.entity, &HTMLEscapeRow::entity)->unit
        == row.unit;
}));

// A name has at most 8 ASCII characters, so it fits one machine word: comparing names is comparing
// words. 0 is no name.
template <typename Name>
constexpr std::uint64_t packed(const Name &name)
{
    std::uint64_t key = 0;
    for (const auto letter : name) {
        const char16_t unit = QChar(letter).unicode();
        if (unit == 0 || unit >= 128)
            return 0;
        key = (key << 8) | unit;
    }
    return key;
}

// The names of the full table in a hash table with linear probing, built by the compiler. Four
// slots per name keep the probes short; an empty slot (key 0) ends them.
class NameIndex
{
public:
    constexpr NameIndex()
    {
        for (const HTMLEscapeRow &row : fullHTMLEscapeTable) {
            const std::uint64_t key = packed(row.entity.substr(1, row.entity.size() - 2));
            std::size_t slot = firstSlot(key);
            while (m_slots[slot].key != 0 && m_slots[slot].key != key)
                slot = (slot + 1) % slotCount;
            if (m_slots[slot].key == 0) // of two rows with one name the first counts
                m_slots[slot] = {key, row.unit};
        }
    }

    constexpr char16_t unitOf(std::uint64_t key) const
    {
        std::size_t slot = firstSlot(key);
        while (m_slots[slot].key != key && m_slots[slot].key != 0)
            slot = (slot + 1) % slotCount;
        return m_slots[slot].unit;
    }

private:
    struct Slot
    {
        std::uint64_t key = 0;
        char16_t unit = 0;
    };

    static constexpr int slotBits = 10;
    static constexpr std::size_t slotCount = std::size_t{1} << slotBits;

    static constexpr std::size_t firstSlot(std::uint64_t key)
    {
        return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15U) >> (64 - slotBits));
    }

    std::array<Slot, slotCount> m_slots{};
};

constexpr NameIndex nameIndex;

constexpr int digitValue(char16_t unit)
{
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    return 16;
}

// Reads \a digits, which are few enough not to overflow. 0 for none, a foreign unit or a value that
// may not be written as a reference.
char16_t unitOfNumber(QStringView digits, int base)
{
    int value = 0;
    for (const QChar digit : digits) {
        const int worth = digitValue(digit.unicode());
        if (worth >= base)
            return 0;
        value = value * base + worth;
    }
    return value >= 1 && value <= 65534 ? static_cast<char16_t>(value) : char16_t{0};
}

QStringView withoutLeadingWhiteSpace(QStringView text)
{
    while (!text.isEmpty() && isHTMLWhiteSpace(text.front().unicode()))
        text = text.sliced(1);
    return text;
}

} // namespace

char16_t unitOfHTMLReference(QStringView reference)
{
    const QStringView name = reference.sliced(1, reference.size() - 2);
    if (name.front() != u'#')
        return nameIndex.unitOf(packed(name));
    if (name[1] == u'x' || name[1] == u'X')
        return unitOfNumber(withoutLeadingWhiteSpace(name.sliced(2)), 16);
    QStringView number = withoutLeadingWhiteSpace(name.sliced(1));
    if (number.startsWith(u'+')) // signed; a "-" can only lead below the least value
        number = number.sliced(1);
    return unitOfNumber(number, 10);
}

} // namespace moravel
