// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FileUrls.h"

#include <gtest/gtest.h>

using namespace moravel;

namespace {

TEST(FileUrls, comeBackAsTheSamePath)
{
    const struct
    {
        QString path, url;
    } table[] = {
        {QStringLiteral("/a/b.jpg"), QStringLiteral("file://localhost/a/b.jpg")},
        {QStringLiteral("/a b"), QStringLiteral("file://localhost/a%20b")},
        {QStringLiteral("/it's"), QStringLiteral("file://localhost/it%27s")},
        {QStringLiteral("/x%41y"), QStringLiteral("file://localhost/x%2541y")},
        {QStringLiteral("/\u00fc"), QStringLiteral("file://localhost/%C3%BC")},
        {QStringLiteral("/a\nb?#"), QStringLiteral("file://localhost/a%0Ab%3F%23")},
        {QStringLiteral("/folder/"), QStringLiteral("file://localhost/folder/")},
    };

    for (const auto &row : table) {
        EXPECT_EQ(fileUrl(row.path), row.url);
        EXPECT_EQ(pathOfUrl(row.url), row.path);
    }
}

TEST(FileUrls, readWhatDesktopsWrite)
{
    const struct
    {
        const char *text, *path;
    } table[] = {
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

    for (const auto &row : table)
        EXPECT_EQ(pathOfUrl(QString::fromLatin1(row.text)), QString::fromLatin1(row.path))
            << row.text;
    EXPECT_EQ(fileUrl(QStringLiteral("relative")), QString());
    EXPECT_EQ(folderUrlOf(QStringLiteral("/a b/c.jpg")), QStringLiteral("file://localhost/a%20b/"));
    EXPECT_EQ(folderUrlOf(QString()), QString());
}

} // namespace
