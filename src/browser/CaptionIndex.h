// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <string>
#include <vector>

namespace moravel {

/// Returns a text as it is compared in a search: case and diacritics folded away, in UTF-8. Accents, strokes
/// and vowel points go; marks that make another letter of a kana or of an Indic or Thai sign stay.
std::string foldedForSearch(QStringView text);

/// Captions, folded once, so that a search at every keystroke is one walk over one piece of memory.
class CaptionIndex
{
public:
    void reserve(std::size_t captions);
    void append(QStringView caption);

    std::size_t size() const { return m_ends.size(); }

    /// Returns the positions, ascending, of the captions that contain @p text as it stands, but for case and
    /// diacritics. A text of nothing but diacritics is in every caption.
    std::vector<int> captionsContaining(QStringView text) const;

private:
    std::string m_text; ///< Each caption followed by a byte that no UTF-8 text contains.
    std::vector<std::size_t> m_ends; ///< Offsets behind these bytes.
};

} // namespace moravel
