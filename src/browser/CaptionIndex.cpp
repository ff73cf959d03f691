// SPDX-License-Identifier: MIT
#include "browser/CaptionIndex.h"

#include "browser/Logging.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

namespace moravel {

namespace {

constexpr char EndOfCaption = '\xFF';

/// Canonical combining classes: overlays; the points of Hebrew and Arabic and their like; and what
/// stands above, below and around letters. The classes between are parts of letters.
bool isDiacritic(UChar32 c)
{
    const int combining = u_getCombiningClass(c);
    return combining == 1 || (combining >= 10 && combining <= 36) || combining >= 200;
}

/// Letters whose stroke Unicode does not take apart.
UChar32 withoutStroke(UChar32 c)
{
    switch (c) {
    case U'\u00F8':
        return U'o';
    case U'\u0142':
        return U'l';
    case U'\u0111':
        return U'd';
    case U'\u0127':
        return U'h';
    case U'\u0167':
        return U't';
    case U'\u0131':
        return U'i';
    default:
        return c;
    }
}

struct Normalizers
{
    UErrorCode error = U_ZERO_ERROR;
    const icu::Normalizer2 *fold = icu::Normalizer2::getNFKCCasefoldInstance(error);
    const icu::Normalizer2 *takeApart = icu::Normalizer2::getNFDInstance(error);
};

std::string foldedByIcu(QStringView text)
{
    static const Normalizers normalizers;
    UErrorCode error = normalizers.error;
    const icu::UnicodeString source(false, reinterpret_cast<const char16_t *>(text.utf16()),
                                    static_cast<int32_t>(text.size()));
    icu::UnicodeString folded;
    if (U_SUCCESS(error))
        folded =
            normalizers.takeApart->normalize(normalizers.fold->normalize(source, error), error);
    if (U_FAILURE(error)) {
        qCWarning(lcBrowser, "cannot fold a caption: %s", u_errorName(error));
        return text.toString().toLower().toStdString();
    }
    icu::UnicodeString kept;
    for (int32_t at = 0; at < folded.length(); at = folded.moveIndex32(at, 1)) {
        const UChar32 c = folded.char32At(at);
        if (!isDiacritic(c))
            kept.append(withoutStroke(c));
    }
    std::string bytes;
    kept.toUTF8String(bytes); // half a surrogate pair becomes U+FFFD
    return bytes;
}

/// The letters of the Latin scripts, none of which depends on its neighbours, fold one by one.
constexpr char16_t EndOfLatin = 0x250;

const std::array<std::string, EndOfLatin> &latinLetters()
{
    static const auto letters = [] {
        std::array<std::string, EndOfLatin> table;
        for (char16_t c = 0; c < EndOfLatin; ++c)
            table[c] = foldedByIcu(QStringView(&c, 1));
        return table;
    }();
    return letters;
}

} // namespace

std::string foldedForSearch(QStringView text)
{
    const auto isLatin = [](QChar c) { return c.unicode() < EndOfLatin; };
    if (!std::all_of(text.begin(), text.end(), isLatin))
        return foldedByIcu(text);
    const auto &letters = latinLetters();
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()) + 8);
    for (const QChar c : text)
        bytes += letters[c.unicode()];
    return bytes;
}

void CaptionIndex::reserve(std::size_t captions)
{
    constexpr std::size_t UsualLength = 48;
    m_ends.reserve(captions);
    m_text.reserve(captions * UsualLength);
}

void CaptionIndex::append(QStringView caption)
{
    m_text += foldedForSearch(caption);
    m_text += EndOfCaption;
    m_ends.push_back(m_text.size());
}

std::vector<int> CaptionIndex::captionsContaining(QStringView text) const
{
    const std::string part = foldedForSearch(text);
    std::vector<int> found;
    if (part.empty()) {
        found.resize(size());
        std::iota(found.begin(), found.end(), 0);
        return found;
    }
    std::size_t caption = 0;
    for (std::size_t from = 0; from < m_text.size(); from = m_ends[caption]) {
        // memmem is far faster than std::string::find on a long text.
        const void *at =
            ::memmem(m_text.data() + from, m_text.size() - from, part.data(), part.size());
        if (at == nullptr)
            break;
        const auto offset = static_cast<std::size_t>(static_cast<const char *>(at) - m_text.data());
        while (m_ends[caption] <= offset)
            ++caption;
        found.push_back(static_cast<int>(caption));
    }
    return found;
}

} // namespace moravel
