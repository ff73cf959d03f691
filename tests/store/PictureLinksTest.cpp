// SPDX-License-Identifier: MIT
#include "store/PictureLinks.h"

#include "StoreWorld.h"

TEST(PictureLinksTest, cutsALinkToItsSecondDomain)
{
    const Table<const char *, const char *> cases{
        {"http://a/b.jpg", "http://a/b.jpg"},
        {"http://a/http://b/c.jpg", "http://b/c.jpg"},
        {"https://a/https://b/http://c", "https://b/http://c"},
        {"httphttp", "http"},
        {"/path/http://b", "http://b"},
        {"DELETED", "DELETED"},
        {"http", "http"},
        {"", ""},
    };
    for (const auto &[link, result] : cases)
        EXPECT_EQ(removeDoubleDomain(QString::fromUtf8(link)).toStdString(), result) << link;
}

TEST(PictureLinksTest, namesFilesSafely)
{
    StoreWorld w;
    const PictureLinks links(w.folders, w.files);
    const QString longest = QString(98, QChar(u'é')) + u".jpg"_s;

    const Table<QString, QString, QString> cases{
        {u"http://a/b/c.jpg"_s, u"c.jpg"_s, u"c.jpg"_s},
        {u"http://a/b/view"_s, u"view"_s, u"view.jpg"_s},
        {u"http://a/b/view."_s, u"view."_s, u"view..jpg"_s},
        {u"http://a/c.jpg?size=1&x=y"_s, u"c.jpg?size=1&x=y"_s, u"c.jpg?size=1&x=y"_s},
        {u"http://a/p%20q%C3%A9.jpg"_s, u"p%20q%C3%A9.jpg"_s, u"p%20q%C3%A9.jpg"_s},
        {u"http://a/100%.jpg"_s, u"100%.jpg"_s, u"100%.jpg"_s},
        {u"bare.png"_s, u"bare.png"_s, u"bare.png"_s},
        {u"/home/u/Pictures/Moravel/old.jpg"_s, u"old.jpg"_s, u"old.jpg"_s},
        {u"http://a/"_s + longest, longest, longest},
    };
    for (const auto &[link, name, file] : cases) {
        SCOPED_TRACE(qPrintable(link));
        EXPECT_EQ(fileNameOfLink(link), name);
        for (const bool thumb : {false, true}) {
            const QString path =
                (thumb ? w.folders.thumbsFolder() : w.folders.moravelFolder()) + file;
            EXPECT_EQ(links.picLinkToPath(link, thumb, false), path);
            EXPECT_EQ(links.picLinkToPath(link, thumb, true), QString());
            ASSERT_TRUE(w.files.writeAtomically(path, {"x"}));
            EXPECT_EQ(links.picLinkToPath(link, thumb, true), path);
        }
    }
    QStringList nameless =
        u"b/ . .. .hidden.jpg %2e%2e %2E %2ehidden.jpg ..%2f..%2fetc x%2Fy.jpg x%00.jpg x%0A.jpg "
        "x%7f.jpg x%c2%85.jpg x\ty.jpg Moravel-captions.txt moravel2.TXT Moravel2%2Etxt"_s.split(
            u' ');
    nameless << u'x' + longest << u"x"_s + QChar(0) + u".jpg"_s << QString(QChar(0xD800));
    for (const QString &name : nameless) {
        const QString link = u"http://a/"_s + name;
        EXPECT_EQ(fileNameOfLink(link), QString()) << qPrintable(link);
        EXPECT_EQ(links.picLinkToPath(link, false, false), QString()) << qPrintable(link);
    }
    w.files.folders = {};
    EXPECT_EQ(links.picLinkToPath(u"http://a/c.jpg"_s, false, false), QString());
}
