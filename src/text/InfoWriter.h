// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>
#include <QList>
#include <QString>

namespace moravel {

/// Bytes in UTF-8 of the longest info text that is shown. Far above any honest one; keeps laying it
/// out within milliseconds.
inline constexpr qsizetype largestInfoText = 32 * 1024;

/// Letters of a word after which it may be broken.
inline constexpr int longestInfoWord = 60;

/// Something that encloses text. Two with equal fields are the same element.
struct InfoElement
{
    QLatin1String name;
    int number = 0; ///< Tells two of a name apart: 0 for those that join when they touch.
    QString href = {};

    bool isBlock() const { return number != 0; }

    QString startTag() const;
    QString endTag() const;
    bool operator==(const InfoElement &) const = default;
};

/// Writes info text in one normal form: tags nest and are balanced, elements without text do not come
/// about, white space is single, long words can break, and nothing is longer than largestInfoText.
/// Written text read and written again is the same.
class InfoWriter
{
public:
    /// Sets what encloses all that is appended next, outermost first.
    void setElements(const QList<InfoElement> &elements) { m_elements = elements; }

    /// What follows does not go on in the line of what stands there; blocks or a break part them.
    void endLine();

    /// Appends a character that is no white space.
    void append(char32_t character);

    /// Appends a space between two words.
    void appendSpace();

    /// Appends a line break; at most two follow each other.
    void appendBreak();

    /// The end was reached: nothing further is taken.
    bool isFull() const { return m_isFull; }

    QString takeResult();

private:
    struct Change
    {
        qsizetype kept; ///< Open elements that stay open.
        qsizetype bytes; ///< Of the tags of those that come, with their end tags.
        bool isNewBlock;
    };

    Change change() const;
    bool isRoomFor(qsizetype bytes);
    void carryOut(const Change &change);
    void close(qsizetype kept);
    void appendWantedBreak();

    QString m_result;
    QList<InfoElement> m_elements;
    QList<InfoElement> m_open;
    qsizetype m_bytes = 0; ///< Of the result in UTF-8, end tags of what is open included.
    int m_word = 0; ///< Characters since the last place where the line may break.
    int m_breaks = 2; ///< Line breaks since the last character; none at the start.
    bool m_isLineEmpty = true;
    bool m_endsInSpace = false;
    bool m_isLineOver = false;
    bool m_isFull = false;
};

} // namespace moravel
