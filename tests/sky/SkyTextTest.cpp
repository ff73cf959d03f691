// SPDX-License-Identifier: MIT
#include "server/sources/sky/Moon.h"
#include "server/sources/sky/Planets.h"

#include <gtest/gtest.h>

namespace moravel::server {
namespace {

using namespace Qt::Literals::StringLiterals;

void expectPlainLine(const QString &text, qsizetype longest)
{
    EXPECT_FALSE(text.isEmpty());
    EXPECT_LE(text.size(), longest);
    for (const QChar c : text)
        EXPECT_TRUE(c.isPrint()) << qPrintable(text);
    EXPECT_FALSE(text.contains(u"  "_s) || text.contains(u"%1"_s) || text.contains(u"nan"_s))
        << qPrintable(text);
}

TEST(SkyText, isOnePlainLineOnEveryDay)
{
    const Moon moon;
    const Planets planets;
    QList<QDate> dates{QDate(), QDate(1, 1, 1), QDate(1858, 11, 17), QDate(9999, 12, 31)};
    for (int day = 0; day < 150; ++day)
        dates.append(QDate(2026, 1, 1).addDays(3 * day));
    for (const ComputedSource *source : {static_cast<const ComputedSource *>(&moon),
                                         static_cast<const ComputedSource *>(&planets)}) {
        expectPlainLine(source->longName(), 40);
        expectPlainLine(source->credit(), 100);
        for (const QChar c : source->shortName())
            EXPECT_TRUE(c.isLetter() && c.unicode() < 128);
        for (const QDate date : dates) {
            const DayText text = source->text(date);
            expectPlainLine(text.caption, 70);
            expectPlainLine(text.info, 500);
        }
    }
}

TEST(SkyText, tellsTheDay)
{
    const Moon moon;
    const Planets planets;

    const struct
    {
        const ComputedSource *source;
        QDate date;
        QString caption;
        QString partOfInfo;
    } days[] = {
        {&moon, QDate(2026, 11, 22), u"Waxing gibbous moon, 94 % lit"_s,
         u"full moon is on 24 November 2026"_s},
        {&moon, QDate(2026, 11, 24), u"Full moon, 100 % lit"_s, u"full moon on 24 December 2026"_s},
        {&moon, QDate(2026, 8, 12), u"New moon, in the light of the Earth"_s,
         u"full moon is on 28 August 2026"_s},
        {&moon, QDate(2026, 11, 13), u"Waxing crescent moon, 16 % lit"_s, u"405,587 km"_s},
        {&moon, QDate(2016, 11, 14), u"Full moon, 100 % lit"_s, u"33.5 arc minutes"_s},
        {&planets, QDate(2025, 1, 16), u"Mars stands opposite the Sun in our sky"_s,
         u"Mars 0.64"_s},
        {&planets, QDate(2019, 11, 11), u"Mercury stands between the Sun and the Earth"_s,
         u"11 November 2019"_s},
        {&planets, QDate(2026, 11, 22), u"The planets on 22 November 2026"_s, u"Venus is 0.37"_s},
    };

    for (const auto &day : days) {
        SCOPED_TRACE(qPrintable(day.date.toString(Qt::ISODate)));
        const DayText text = day.source->text(day.date);
        EXPECT_EQ(text.caption, day.caption);
        EXPECT_TRUE(text.info.contains(day.partOfInfo)) << qPrintable(text.info);
    }
}

} // namespace
} // namespace moravel::server
