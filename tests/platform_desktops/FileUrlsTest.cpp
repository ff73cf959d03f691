// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FileUrls.h"

#include "support/Test.h"

namespace {

TEST(FileUrls, comeBackAsTheSamePath)
{
    const Table<QString, QString> table{
        {u"/a/b.jpg"_s, u"file://localhost/a/b.jpg"_s},
        {u"/a b"_s, u"file://localhost/a%20b"_s},
        {u"/it's"_s, u"file://localhost/it%27s"_s},
        {u"/x%41y"_s, u"file://localhost/x%2541y"_s},
        {u"/\u00fc"_s, u"file://localhost/%C3%BC"_s},
        {u"/a\nb?#"_s, u"file://localhost/a%0Ab%3F%23"_s},
        {u"/folder/"_s, u"file://localhost/folder/"_s},
    };
    for (const auto &[path, url] : table) {
        EXPECT_EQ(fileUrl(path), url);
        EXPECT_EQ(pathOfUrl(url), path);
    }
}

TEST(FileUrls, readWhatDesktopsWrite)
{
    const Table<const char *, const char *> table{
        {"file:///a%20b", "/a b"},
        {"file://myhost/a", "/a"},
        {"FILE:/a", "/a"},
        {"/plain %41 path", "/plain %41 path"},
        {"/file://localhost/x", "/file://localhost/x"},
        {"file:///100%", "/100%"},
        {"file:///a%00b", ""},
        {"file://host", ""},
        {"file:a", ""},
        {"http://host/a", ""},
        {"relative", ""},
        {"", ""},
    };
    for (const auto &[text, path] : table)
        EXPECT_EQ(pathOfUrl(QString::fromLatin1(text)), QString::fromLatin1(path)) << text;
    EXPECT_EQ(fileUrl(u"relative"_s), QString());
    EXPECT_EQ(folderUrlOf(u"/a b/c.jpg"_s), u"file://localhost/a%20b/"_s);
    EXPECT_EQ(folderUrlOf(QString()), QString());
}

} // namespace
