// SPDX-License-Identifier: MIT
// What is handed over to other programs: addresses and log lines.
#include "support/Test.h"
#include "support/UrlRecorder.h"

#include "platform/qt/MessageLog.h"
#include "platform/qt/QtUrlOpener.h"

namespace {

TEST(QtUrlOpener, opensAddressesOfOtherProgramsUnchanged)
{
    const UrlRecorder recorder({u"http"_s, u"mailto"_s, u"file"_s, u"javascript"_s});
    const QString mail = u"mailto:a@b?subject=%22%27%0A%26%25&body=%2B%20%F0%9F%8C%85"_s;
    for (const QString &url :
         {mail, u"HTTP://h/p?a=%3D%23;b"_s, u"file:///etc/passwd"_s, u"javascript:x"_s, QString(),
          u"/usr/bin/true"_s, QString::fromUtf8("http://h/\xC3\xBC 5%")})
        QtUrlOpener().open(url);
    EXPECT_EQ(recorder.opened,
              (QStringList{mail, u"http://h/p?a=%3D%23;b"_s, u"http://h/%C3%BC%205%25"_s}));
}

TEST(MessageLog, oneMessageIsOneLine)
{
    const QString text = QString::fromUtf8("a\nb\x1b[0m\t\xC3\xBC\x7F");
    EXPECT_EQ(logLine(QtInfoMsg, "moravel.app", text, false),
              "moravel.app: a\\nb\\x1b[0m\\x09\xC3\xBC\\x7f\n");
    EXPECT_EQ(logLine(QtWarningMsg, "default", u"x"_s, true), "<4>x\n");
}

} // namespace
