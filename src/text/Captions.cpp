// SPDX-License-Identifier: MIT
#include "text/Captions.h"

#include "text/HTMLText.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <cstdint>
#include <unicode/brkiter.h>
#include <unicode/casemap.h>

namespace moravel {
namespace {

Q_LOGGING_CATEGORY(lcText, "moravel.text")

// Finding the words of some scripts takes ICU a microsecond a letter. No honest caption is longer
// than this, and a hostile one must not hold up the window.
constexpr qsizetype longestCapitalised = 16'384;

// ICU takes "U.S.A." for one word.
void capitaliseAfterFullStops(QString &text)
{
    for (qsizetype i = 1; i < text.size(); ++i) {
        if (text.at(i - 1) == u'.' && text.at(i).isLower())
            text[i] = text.at(i).toUpper();
    }
}

// Each word begins in title case and goes on in lower case; \a text itself if ICU has no data.
QString capitalised(const QString &text)
{
    QString result(2 * text.size() + 16, Qt::Uninitialized); // "İ" takes two units in lower case
    UErrorCode error = U_ZERO_ERROR;
    const auto length = icu::CaseMap::toTitle(
        "", 0, nullptr, reinterpret_cast<const char16_t *>(text.utf16()),
        static_cast<std::int32_t>(text.size()), reinterpret_cast<char16_t *>(result.data()),
        static_cast<std::int32_t>(result.size()), nullptr, error);
    if (U_FAILURE(error)) {
        qCWarning(lcText, "Cannot capitalise a caption: %s", u_errorName(error));
        return text;
    }
    result.truncate(length);
    capitaliseAfterFullStops(result);
    return result;
}

bool isAllCapitals(const QString &text)
{
    for (const QChar c : text) { // spares nearly every caption the copy
        if (c >= u'a' && c <= u'z')
            return false;
    }
    return text == text.toUpper();
}

} // namespace

QString normalisedCaption(QStringView caption)
{
    QString text = stringByDecodingHTMLEntities(caption);
    text.replace(u'_', u' ');
    if (text.size() > longestCapitalised || !isAllCapitals(text))
        return text;
    return capitalised(text);
}

QString captionForCell(QStringView caption)
{
    const QString text = normalisedCaption(caption);
    // The mark itself stays as the records have it.
    return text == u"Deleted."
        ? QCoreApplication::translate("moravel", "Deleted.\n\nDouble-click to un-delete.")
        : text;
}

} // namespace moravel
