// SPDX-License-Identifier: MIT
#pragma once

#include "text/InfoText.h"

#include <QRegularExpression>
#include <QStringList>

namespace moravel::testing {

/// Reads a sanitised info text by rules of its own, as a browser would: what is wrong with it?
class InfoTextRules
{
public:
    /// "" when nothing is.
    QString faultOf(const QString &html)
    {
        if (html.toUtf8().size() > largestInfoText)
            return QStringLiteral("too long");
        if (sanitisedInfoText(html) != html)
            return QStringLiteral("changes again");
        for (qsizetype at = 0; at < html.size();) {
            const QString piece = pieceAt(html, at);
            if (!isAllowed(piece))
                return QStringLiteral("at %1: %2").arg(at).arg(piece);
            at += piece.size();
        }
        return m_open.isEmpty() ? QString() : QStringLiteral("open: ") + m_open.join(u' ');
    }

private:
    static QString pieceAt(const QString &html, qsizetype at)
    {
        const QChar end = html[at] == u'<' ? u'>' : html[at] == u'&' ? u';' : html[at];
        const qsizetype found = html.indexOf(end, at);
        return found < 0 ? html.sliced(at) : html.sliced(at, found + 1 - at);
    }

    bool isAllowed(const QString &piece)
    {
        static const QStringList names =
            QStringLiteral("b i u s sub sup small code p blockquote ul ol li").split(u' ');
        static const QStringList references{QStringLiteral("&amp;"), QStringLiteral("&lt;"),
                                            QStringLiteral("&gt;"), QStringLiteral("&quot;")};
        static const QRegularExpression link(
            QStringLiteral("\\A<a href=\"(https?://[^\\s\"<>]+|#updatePODCaption)\">\\z"));
        static const QRegularExpression newLine(
            QStringLiteral("\\A</?(br|p|blockquote|ul|ol|li)>\\z"));
        if (newLine.match(piece).hasMatch())
            m_word = 0;
        if (piece[0] == u'<') {
            if (piece.startsWith(u"</"))
                return !m_open.isEmpty() && piece == QStringLiteral("</%1>").arg(m_open.takeLast());
            const bool isLink = link.match(piece).hasMatch();
            if (isLink || names.contains(piece.sliced(1).chopped(1)))
                m_open.append(isLink ? QStringLiteral("a") : piece.sliced(1).chopped(1));
            else
                return piece == u"<br>";
            return true;
        }
        m_word = piece == u" " || piece == QChar(0x200B) ? 0 : m_word + 1;
        return m_word <= 2 * (longestInfoWord + 20) // counted in units
            && (piece[0] == u'&' ? references.contains(piece) : isCharacter(piece[0].unicode()));
    }

    static bool isCharacter(char16_t unit)
    {
        return unit >= u' ' && unit != u'>' && !(unit >= 0x7F && unit < 0xA0) && unit != 0x2028
            && unit != 0x2029 && !(unit >= 0xFDD0 && unit <= 0xFDEF) && unit != 0xFFFC
            && unit < 0xFFFE;
    }

    QStringList m_open;
    int m_word = 0;
};

inline QString faultOfInfoText(const QString &html)
{
    return InfoTextRules().faultOf(html);
}

} // namespace moravel::testing
