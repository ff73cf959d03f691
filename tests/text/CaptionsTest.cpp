// SPDX-License-Identifier: MIT
#include "text/Captions.h"

#include "support/Test.h"

#include <QLocale>

namespace {

TEST(Captions, AreMadeReadable)
{
    const Table<QString, QString> cases{
        {u""_s, u""_s},
        {u"SUNSET_OVER_THE_BAY"_s, u"Sunset Over The Bay"_s},
        {u"Sunset_over THE_BAY"_s, u"Sunset over THE BAY"_s},
        {u"12:30 \u2013 _"_s, u"12:30 \u2013  "_s},
        {u"O&#39;KEEFFE&rsquo;S CAF&Eacute;-BAR"_s, u"O'keeffe\u2019s Café-Bar"_s},
        {u"FISH &AMP; CHIPS &amp;AMP;"_s, u"Fish &Amp; Chips &Amp;"_s},
        {u"FISH &amp;amp; CHIPS"_s, u"FISH &amp; CHIPS"_s},
        {u"U.S. 4TH OF JULY, ISTANBUL"_s, u"U.S. 4th Of July, Istanbul"_s},
        {u"STRASSE ΟΔΟΣ ÉTÉ \u0130"_s, u"Strasse Οδος Été \u0130"_s},
        {u"STRAßE"_s, u"STRAßE"_s}, // its upper-case form is longer
        {u"\u6771\u4eac \U00010400\U00010401"_s, u"\u6771\u4eac \U00010400\U00010429"_s},
        {u"\xd800_X"_s, u"\xd800 X"_s},
    };

    QLocale::setDefault(QLocale(QLocale::Turkish));
    for (const auto &[caption, expected] : cases) {
        SCOPED_TRACE(qPrintable(caption));
        EXPECT_EQ(normalisedCaption(caption), expected);
        EXPECT_EQ(captionForCell(caption), expected);
    }
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

TEST(Captions, OfDeletedPicturesTellHowToGetThemBack)
{
    for (const QString &caption : {u"Deleted."_s, u"DELETED."_s, u"&#68;eleted."_s}) {
        EXPECT_EQ(normalisedCaption(caption), u"Deleted.");
        EXPECT_EQ(captionForCell(caption), u"Deleted.\n\nDouble-click to un-delete.");
    }
    for (const QString &caption : {u"deleted."_s, u"Deleted"_s, u"Deleted. "_s})
        EXPECT_EQ(captionForCell(caption), caption);
}

TEST(Captions, OfAbsurdLengthStayAsTheyAre)
{
    const QString absurd = u"ภาษาไทย A "_s.repeated(200'000);
    EXPECT_EQ(normalisedCaption(absurd), absurd);
    EXPECT_TRUE(normalisedCaption(u"\u0130"_s.repeated(16'000)).startsWith(u"\u0130i\u0307"));
}

} // namespace
