// SPDX-License-Identifier: MIT
#include "StoreWorld.h"

#include "store/MacRoman.h"

namespace macroman = macroman;

TEST(LegacyCaptionsTest, everyByteOfTheCharacterSetComesBack)
{
    std::string all(256, '\0');
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = char(i);
    EXPECT_EQ(macroman::encode(macroman::decode(all))->toStdString(), all);
    EXPECT_EQ(macroman::decode("\x8A\xDB\xA5\xCA"), u"ä€•\u00A0"_s);
    EXPECT_FALSE(macroman::encode(u"月"_s));
}

TEST(LegacyCaptionsTest, convertsALineToARecord)
{
    StoreWorld w;
    w.sourceNames = {{u"a"_s, u"Ast"_s}, {u"b"_s, u"Ast"_s}, {u"c"_s, u"Other"_s}};
    EXPECT_EQ(w.legacy.readOldTextData(), QString());
    EXPECT_EQ(w.legacy.oldStoredDataForFile(u"one.jpg"_s), QString());

    w.setLegacyData("20050101\tAst\tone.jpg\tB\x8Aume\tmore\tfields\r"
                    "20050102\tUnknown\ttwo.jpg\tCaption with one.jpg in it\r"
                    "20050103\tOther\tthree.jpg\r"
                    "20050104\tOther\t\xDB.jpg\tEuro\t\r"
                    "20050105\tOther\t\tno file\n20050106\tOther\tlf.jpg\tc");
    const QString folder = w.folders.moravelFolder();

    const Table<QString, QString> cases{
        {u"one.jpg"_s, u"20050101\tb\t%1one.jpg\t%1one.jpg\t\tBäume\t"_s},
        {u"two.jpg"_s, u"20050102\t\t%1two.jpg\t%1two.jpg\t\tCaption with one.jpg in it\t"_s},
        {u"three.jpg"_s, QString()},
        {u"€.jpg"_s, u"20050104\tc\t%1€.jpg\t%1€.jpg\t\tEuro\t"_s},
        {u"月.jpg"_s, QString()},
        {u"ONE.jpg"_s, QString()},
        {u"ne.jpg"_s, QString()},
        {u""_s, QString()},
    };
    for (const auto &[file, record] : cases)
        EXPECT_EQ(w.legacy.oldStoredDataForFile(file), QString(record).replace(u"%1"_s, folder))
            << qPrintable(file);
    EXPECT_TRUE(w.legacy.readOldTextData().startsWith(u"20050101\tAst\tone.jpg\tBäume"_s));
}

TEST(LegacyCaptionsTest, removesTheFirstLineOfAKeyAndItsCopies)
{
    const QByteArray astro = "20050101\tAstro\ta.jpg\tB\x8Aume";
    const QByteArray astronomy = "20050101\tAstronomy\tb.jpg\tlater";

    const Table<QByteArray, const char *, QByteArray> cases{
        {astro + '\r' + astronomy + '\r', "a", astronomy + '\r'},
        {astronomy + '\r' + astro + '\r', "a", astro + '\r'}, // a longer name that comes first
        {astronomy + '\r' + astro + '\r', "y", astro + '\r'},
        {astro + '\r' + astronomy + '\r' + astro, "a", astronomy},
        {astro + '\r', "unknown", astro + '\r'},
        {astro + '\r', "empty", astro + '\r'},
        {astro + '\r', "moon", astro + '\r'},
        {"x\n" + astro + '\r', "a", "x\n" + astro + '\r'},
    };
    for (const auto &[file, source, result] : cases) {
        StoreWorld w;
        w.sourceNames = {{u"a"_s, u"Astro"_s},
                         {u"y"_s, u"Astronomy"_s},
                         {u"empty"_s, u""_s},
                         {u"moon"_s, u"月"_s}};
        w.setLegacyData(file);
        w.legacy.deleteOldDataFor(QString::fromUtf8(source), u"1/2/2005"_s);
        w.legacy.deleteOldDataFor(QString::fromUtf8(source), u"no day"_s);
        EXPECT_EQ(w.files.writes, 0) << "nothing matched, nothing is written";
        w.files.writeError = u"No space left on device"_s;
        w.legacy.deleteOldDataFor(QString::fromUtf8(source), u"1/1/2005"_s);
        EXPECT_EQ(w.legacyData(), file);
        w.files.writeError.clear();
        w.legacy.deleteOldDataFor(QString::fromUtf8(source), u"1/1/2005"_s);
        EXPECT_EQ(w.legacyData(), result);
        EXPECT_TRUE(w.takeAlerts().isEmpty());
    }
}
