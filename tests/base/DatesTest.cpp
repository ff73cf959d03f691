// SPDX-License-Identifier: MIT
#include "base/Dates.h"

#include "support/Test.h"

#include <cstdlib>
#include <ctime>
#include <unicode/locid.h>

namespace {

/// Lives in another time zone for a while.
class InZone
{
public:
    explicit InZone(const char *zone) { set(zone); }

    ~InZone() { set(m_old.constData()); }
    Q_DISABLE_COPY_MOVE(InZone)

private:
    static void set(const char *zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

    QByteArray m_old = qgetenv("TZ");
};

} // namespace

TEST(DatesTest, writesTheFormsOfADayInEachLanguage)
{
    const QDateTime evening(QDate(2011, 7, 4), QTime(23, 59, 59));

    const Table<const char *, QString> cases{
        {"en_US", u"July 4, 2011"_s},      {"en_GB.UTF-8", u"4 July 2011"_s},
        {"de_DE@euro", u"4. Juli 2011"_s}, {"ja_JP", u"2011年7月4日"_s},
        {"th_TH", u"4 กรกฎาคม 2554"_s},    {"fa_IR", u"۱۳ تیر ۱۳۹۰"_s},
        {"ar_SA", u"٣ شعبان ١٤٣٢ هـ"_s},
    };
    for (const auto &[locale, local] : cases) {
        SCOPED_TRACE(locale);
        const Dates dates(QString::fromLatin1(locale));
        EXPECT_EQ(dates.longDate(evening), local);
        EXPECT_EQ(dates.shortDate(evening), u"7/4/2011"_s);
        EXPECT_EQ(dates.shortDateFromLocalDate(local), u"7/4/2011"_s);
        EXPECT_EQ(dates.localDateFromShortDate(u"7/4/2011"_s), local);
        EXPECT_EQ(dates.localDateFromSqlDate(u"20110704"_s), local);
        EXPECT_EQ(dates.sqlDateFromShortDate(u"7/4/2011"_s), u"20110704"_s);
        EXPECT_EQ(dates.dateFromLocalString(local), QDate(2011, 7, 4).startOfDay());
    }
    EXPECT_EQ(Dates(u"en_US"_s).sqlDateFromShortDate(u"1/2/2012"_s), u"20120102"_s);
    EXPECT_TRUE(Dates(u"de_DE"_s).shortDateFromLocalDate(u"July 4, 2011"_s).isNull());
}

TEST(DatesTest, refusesWhatIsNoDay)
{
    const Dates dates(u"en_US"_s);
    for (const char *text :
         {"", "2/30/2012", "2/29/2011", "13/1/2012", "0/1/2012", "1/0/2012", "1/1/0", "1/1/10000",
          "1/1/-1", "+1/1/2012", " 1/1/2012", "1/1/2012 ", "1/1/2012/3", "1/1", "1//2012",
          "001/1/2012", "1-1-2012", "\xD9\xA1/1/2012", "junk"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(dates.dateFromShortString(QString::fromUtf8(text)));
        EXPECT_TRUE(dates.sqlDateFromShortDate(QString::fromUtf8(text)).isNull());
        EXPECT_TRUE(dates.localDateFromShortDate(QString::fromUtf8(text)).isNull());
    }
    for (const char *text :
         {"", "2011074", "201107041", "20110230", "00000101", "2011-7-4", "+2011704"}) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(dates.localDateFromSqlDate(QString::fromUtf8(text)).isNull());
    }
    for (const char *text :
         {"", "July 4", "July 4, 2011 ", " July 4, 2011", "july 4, 2011", "July  4, 2011",
          "July 04, 2011", "February 30, 2012", "July 4, 2011x", "Monday, July 4, 2011"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(dates.dateFromLocalString(QString::fromUtf8(text)));
        EXPECT_TRUE(dates.shortDateFromLocalDate(QString::fromUtf8(text)).isNull());
    }
    EXPECT_TRUE(dates.shortDate(QDateTime()).isNull());
    EXPECT_TRUE(dates.longDate(QDateTime()).isNull());
}

TEST(DatesTest, localDatesOfEveryLocaleComeBackUnchanged)
{
    int32_t count = 0;
    const icu::Locale *locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 100);
    for (int32_t i = 0; i < count; ++i) {
        const Dates dates(QString::fromLatin1(locales[i].getName()));
        // Every locale meets its own 40 days, spread over 1900 to 2099; together they meet most
        // days.
        for (QDate day = QDate(1900, 1, 1).addDays(i); day.year() < 2100; day = day.addDays(1831)) {
            const QString written = dates.longDate(day.startOfDay());
            ASSERT_EQ(dates.dateFromLocalString(written), day.startOfDay())
                << locales[i].getName() << ": " << qPrintable(written);
        }
    }
}

TEST(DatesTest, followsTheEnvironment)
{
    const QByteArray before = qgetenv("LC_ALL");
    qputenv("LC_ALL", "fr_FR.UTF-8");
    EXPECT_EQ(Dates().localDateFromShortDate(u"7/4/2011"_s), u"4 juillet 2011"_s);
    for (const char *plain : {"C", "C.UTF-8", "POSIX", "no such locale"}) {
        qputenv("LC_ALL", plain);
        EXPECT_FALSE(Dates().localDateFromShortDate(u"7/4/2011"_s).isEmpty()) << plain;
    }
    qputenv("LC_ALL", before);
}

TEST(DatesTest, daysStartWhereTheirMidnightIsMissing)
{
    const Table<const char *, QDate, QTime> cases{
        {"Europe/Berlin", QDate(2011, 3, 27), QTime(0, 0)},
        {"America/Sao_Paulo", QDate(2018, 11, 4), QTime(1, 0)},
        {"Asia/Beirut", QDate(2021, 3, 28), QTime(1, 0)},
        {"America/Havana", QDate(2012, 11, 4), QTime(0, 0)},
    };

    const Dates dates(u"en_US"_s);
    for (const auto &[name, day, start] : cases) {
        SCOPED_TRACE(name);
        const InZone zone(name);
        const QString written = u"%1/%2/%3"_s.arg(day.month()).arg(day.day()).arg(day.year());
        const auto parsed = dates.dateFromShortString(written);
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->date(), day);
        EXPECT_EQ(parsed->time(), start);
        EXPECT_EQ(dates.shortDate(*parsed), written);
        EXPECT_EQ(dates.shortDateFromLocalDate(dates.longDate(*parsed)), written);
        EXPECT_EQ(dates.dateFromLocalString(dates.localDateFromShortDate(written)), parsed);
    }
    const InZone zone("Pacific/Kiritimati");
    EXPECT_EQ(dates.shortDate(QDateTime(QDate(2011, 7, 4), QTime(20, 0), Qt::UTC)), u"7/5/2011"_s);
}
