// SPDX-License-Identifier: MIT
#include "browser/BrowserRows.h"
#include "browser/CaptionIndex.h"
#include "browser/ImageGrid.h"

#include <QStringList>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace moravel {
namespace {

struct Search
{
    const char *caption;
    const char *text;
    bool found;
};

class CaptionSearch : public ::testing::TestWithParam<Search>
{ };

TEST_P(CaptionSearch, ignoresCaseAndDiacriticsAndTakesTheTextLiterally)
{
    CaptionIndex index;
    index.append(u"before");
    index.append(QString::fromUtf8(GetParam().caption));
    index.append(u"after");
    const auto found = index.captionsContaining(QString::fromUtf8(GetParam().text));
    EXPECT_EQ(found, GetParam().found ? std::vector<int>{1} : std::vector<int>{});
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CaptionSearch,
    ::testing::Values(Search{"Un ete a Paris", "ÉTÉ", true}, Search{"L’été indien", "ete", true},
                      Search{"e\u0301te\u0301", "été", true}, Search{"Łódź, Ærø", "lodz", true},
                      Search{"Straße", "STRASSE", true}, Search{"ΟΔΥΣΣΕΥΣ", "οδυσσεύς", true},
                      Search{"ИСТАНБУЛ", "истанбул", true}, Search{"İstanbul", "istanbul", true},
                      Search{"ガラス", "カラス", false}, // glass, crow
                      Search{"The moon's rise", "moon's", true}, Search{"a.c", "a?c", false},
                      Search{"100 % [sic] \\d+ *", "[sic] \\d+ *", true},
                      Search{"Sun", "Sun and", false}));

TEST(CaptionIndex, findsEachCaptionOnceAndNothingAcrossTwo)
{
    CaptionIndex index;
    for (const char *caption : {"moon moon", "", "moo", "n", "Full Moon"})
        index.append(QString::fromUtf8(caption));
    EXPECT_EQ(index.captionsContaining(u"MOON"), (std::vector<int>{0, 4}));
    EXPECT_EQ(index.captionsContaining(u""), (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(index.captionsContaining(u"\u0301").size(), 5U);
}

BrowserTexts texts(std::string_view records, const QString &legacy = {})
{
    return {legacy, records, QStringLiteral("/p/"),
            [](const QString &extension) { return extension.toLower() == u"jpg"; }};
}

BrowserData dataOf(std::string_view records, const QString &legacy = {})
{
    QSet<QString> files;
    for (const char *name : {"a.jpg", "b.JPG", "c.jpg", "x y.jpg", "notes.txt", "jpg"})
        files.insert(QStringLiteral("/p/") + QLatin1String(name));
    return browserData(recordedRows(texts(records, legacy)), files);
}

QStringList summary(const BrowserData &data)
{
    QStringList list;
    for (const BrowserRow &row : data.rows)
        list.append(QStringList{row.date, row.file, row.caption, row.source}.join(u'|'));
    return list;
}

TEST(BrowserData, takesRecordsOfPicturesThatAreThere)
{
    const struct
    {
        const char *records;
        const char *legacy;
        QStringList rows;
    } cases[] = {
        {"20110704\twiki\tt\thttp://x/a.jpg\tp\tCaption\tinfo\n",
         "",
         {QStringLiteral("20110704|/p/a.jpg|Caption|wiki")}},
        {"20110704\twiki\tDELETED\thttp://x/c\tp\tTOM_&amp; JERRY",
         "",
         {QStringLiteral("20110704|/p/c.jpg|Tom & Jerry|wiki")}}, // six fields, no extension
        {"20110704\twiki\tt\ta.jpg\tp\n\n1\t2\t3\n", "", {}}, // five fields
        {"1\ts\tt\thttp://x/missing.jpg\tp\tc\ti\n1\ts\tt\thttp://x/notes.txt\tp\tc\ti\n"
         "1\ts\tt\thttp://x/\tp\tc\ti\n1\ts\tt\t../a.jpg/..\tp\tc\ti\n1\ts\tt\tjpg\tp\tc\ti",
         "",
         {}},
        {"",
         "20110101\tBing\ta.jpg\tOld_one\rno\tline\ta.jpg\r20110102\tBing\tx y.jpg\tTwo\tmore",
         {QStringLiteral("20110102|/p/x y.jpg|Two|Bing"),
          QStringLiteral("20110101|/p/a.jpg|Old one|Bing")}},
        {"20110101\ts\tt\ta.jpg\tp\tone\ti\n20120101\ts\tt\tb.JPG\tp\tnew\ti\n"
         "20110101\ts\tt\tc.jpg\tp\tthree\ti\n",
         "20110101\tLong\ta.jpg\tlegacy",
         {QStringLiteral("20120101|/p/b.JPG|new|s"),
          QStringLiteral("20110101|/p/a.jpg|legacy|Long"),
          QStringLiteral("20110101|/p/a.jpg|one|s"), QStringLiteral("20110101|/p/c.jpg|three|s")}},
    };

    for (const auto &c : cases)
        EXPECT_EQ(summary(dataOf(c.records, QString::fromUtf8(c.legacy))), c.rows) << c.records;
}

class Filtering : public ::testing::Test
{
protected:
    const std::shared_ptr<BrowserData> data = std::make_shared<BrowserData>(
        dataOf("9\twiki\tt\ta.jpg\tp\tMoon over sea\ti\n8\tbing\tt\tb.JPG\tp\tMo\ti\n"
               "7\twiki\tt\tc.jpg\tp\tSea\ti\n",
               QStringLiteral("6\tWiki Commons\tx y.jpg\tMoon")));
};

TEST_F(Filtering, filtersByTextAndBySource)
{
    const QString wiki = QStringLiteral("Wiki Commons");

    const struct
    {
        BrowserFilter filter;
        std::vector<int> rows;
    } cases[] = {
        {{}, {0, 1, 2, 3}},
        {{QStringLiteral("mo"), {}, {}}, {0, 1, 2, 3}},
        {{QStringLiteral("moo"), {}, {}}, {0, 3}},
        {{{}, wiki, QStringLiteral("wiki")}, {0, 2, 3}},
        {{QStringLiteral("MOON"), wiki, QStringLiteral("wiki")}, {0, 3}},
        {{{}, QStringLiteral("Gone"), {}}, {}},
    };

    for (const auto &c : cases)
        EXPECT_EQ(filteredRows(*data, captionIndex(*data), c.filter), c.rows)
            << qPrintable(c.filter.text);
}

TEST_F(Filtering, rowsAreFoundAgainInTheSameAndInNewerData)
{
    const ShownRows all{data, {0, 1, 2, 3}};
    const ShownRows some{data, {1, 3}};
    EXPECT_EQ(placesNow(all, {0, 1, 3, 9, -1}, some), (std::vector<int>{-1, 0, 1, -1, -1}));
    auto newer = std::make_shared<BrowserData>(*data);
    newer->rows.erase(newer->rows.begin());
    const ShownRows now{newer, {0, 1, 2}};
    EXPECT_EQ(placesNow(all, {0, 1, 3}, now), (std::vector<int>{-1, 0, 2}));
    EXPECT_FALSE(all == now);
    EXPECT_TRUE(now == (ShownRows{data, {1, 2, 3}}));
}

TEST(ImageGrid, placesCellsByArithmetic)
{
    EXPECT_EQ(frameWidth(0.4), 192);
    EXPECT_EQ(frameWidth(std::nan("")), 192);
    EXPECT_EQ(frameWidth(-3), 64);
    EXPECT_EQ(frameWidth(std::numeric_limits<double>::infinity()), 384);
    for (const int width : {1, 250, 640, 1200, 4000}) {
        for (const int count : {0, 1, 7, 1000}) {
            const ImageGrid grid(width, count, 0.4, 18);
            for (int i = 0; i < count; ++i) {
                const QRect cell = grid.cell(i);
                EXPECT_EQ(grid.indexAt(cell.center()), i);
                const auto row = grid.rowsBetween(cell.top(), cell.bottom());
                EXPECT_TRUE(row.first <= i && i <= row.last
                            && row.last - row.first < grid.columns());
                EXPECT_TRUE(i == 0 || !cell.intersects(grid.cell(i - 1)));
                EXPECT_LT(cell.bottom(), grid.height());
            }
            EXPECT_EQ(grid.indexAt({-500, 50}), -1);
            EXPECT_EQ(grid.indexAt({5, grid.height() + 5}), -1);
        }
    }
}

} // namespace
} // namespace moravel
