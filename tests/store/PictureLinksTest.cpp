// SPDX-License-Identifier: MIT
#include "store/PictureLinks.h"

#include "StoreWorld.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using moravel::fileNameOfLink;
using moravel::PictureLinks;
using moravel::removeDoubleDomain;
using moravel::testing::StoreWorld;

TEST(PictureLinksTest, cutsALinkToItsSecondDomain)
{
    const struct
    {
        const char *link;
        const char *result;
    } cases[] = {
        {"http://a/b.jpg", "http://a/b.jpg"},
        {"http://a/http://b/c.jpg", "http://b/c.jpg"},
        {"https://a/https://b/http://c", "https://b/http://c"},
        {"httphttp", "http"},
        {"/path/http://b", "http://b"},
        {"DELETED", "DELETED"},
        {"http", "http"},
        {"", ""},
    };

    for (const auto &c : cases)
        EXPECT_EQ(removeDoubleDomain(QString::fromUtf8(c.link)).toStdString(), c.result) << c.link;
}

TEST(PictureLinksTest, namesFilesSafely)
{
    StoreWorld w;
    const PictureLinks links(w.folders, w.files);
    const QString longest = QString(98, QChar(u'é')) + u".jpg"_s;

    const struct
    {
        QString link;
        QString name; ///< Empty where the link has no file.
        QString file = {};
    } cases[] = {
        {u"http://a/b/c.jpg"_s, u"c.jpg"_s},
        {u"http://a/b/view"_s, u"view"_s, u"view.jpg"_s},
        {u"http://a/b/view."_s, u"view."_s, u"view..jpg"_s},
        {u"http://a/c.jpg?size=1&x=y"_s, u"c.jpg?size=1&x=y"_s},
        {u"http://a/p%20q%C3%A9.jpg"_s, u"p%20q%C3%A9.jpg"_s},
        {u"http://a/100%.jpg"_s, u"100%.jpg"_s},
        {u"bare.png"_s, u"bare.png"_s},
        {u"/home/u/Pictures/Moravel/old.jpg"_s, u"old.jpg"_s},
        {u"http://a/"_s + longest, longest},
        {u"http://a/x"_s + longest, {}},
        {u"http://a/b/"_s, {}},
        {QString(), {}},
        {u"."_s, {}},
        {u"http://a/.."_s, {}},
        {u"http://a/.hidden.jpg"_s, {}},
        {u"http://a/%2e%2e"_s, {}},
        {u"http://a/%2E"_s, {}},
        {u"http://a/%2ehidden.jpg"_s, {}},
        {u"http://a/..%2f..%2fetc"_s, {}},
        {u"http://a/x%2Fy.jpg"_s, {}},
        {u"http://a/x%00.jpg"_s, {}},
        {u"http://a/x%0A.jpg"_s, {}},
        {u"http://a/x%7f.jpg"_s, {}},
        {u"http://a/x%c2%85.jpg"_s, {}},
        {u"http://a/x\ty.jpg"_s, {}},
        {u"http://a/x"_s + QChar(u'\0') + u".jpg"_s, {}},
        {u"http://a/x"_s + QChar(0xD800) + u".jpg"_s, {}},
        {u"http://a/Moravel-captions.txt"_s, {}},
        {u"http://a/moravel2.TXT"_s, {}},
        {u"http://a/Moravel2%2Etxt"_s, {}},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(qPrintable(c.link));
        const QString file = c.file.isEmpty() ? c.name : c.file;
        EXPECT_EQ(fileNameOfLink(c.link), c.name);
        for (const bool thumb : {false, true}) {
            const QString folder = thumb ? w.folders.thumbsFolder() : w.folders.moravelFolder();
            const QString path = file.isEmpty() ? QString() : folder + file;
            EXPECT_EQ(links.picLinkToPath(c.link, thumb, false), path);
            EXPECT_EQ(links.picLinkToPath(c.link, thumb, true), QString());
            if (!path.isEmpty()) {
                ASSERT_TRUE(w.files.writeAtomically(path, {"x"}));
                EXPECT_EQ(links.picLinkToPath(c.link, thumb, true), path);
            }
        }
    }
    w.files.folders = {};
    EXPECT_EQ(links.picLinkToPath(u"http://a/c.jpg"_s, false, false), QString());
}
