// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "platform/linux/session/GioPrograms.h"

namespace {

void write(const QString &path, const QByteArray &text)
{
    QDir().mkpath(path.section(u'/', 0, -2));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

TEST(Programs, HaveTheIconsOfTheirDesktopEntries)
{
    const QString data = qEnvironmentVariable("XDG_DATA_HOME") + u"/applications/"_s;
    const QByteArray entry = "[Desktop Entry]\nType=Application\nName=x\nExec=true %u\nIcon=";
    write(data + u"web.desktop"_s, entry + "some-browser\n");
    write(data + u"mail.desktop"_s, entry + "/some/where/mail.png\n");
    write(
        qEnvironmentVariable("XDG_CONFIG_HOME") + u"/mimeapps.list"_s,
        "[Default "
        "Applications]\nx-scheme-handler/http=web.desktop\nx-scheme-handler/mailto=mail.desktop\n");
    GioPrograms programs;
    EXPECT_EQ(programs.iconForScheme(u"http"_s), QString()) << "waits";
    MORAVEL_WAIT(!programs.iconForScheme(u"mailto"_s).isEmpty());
    EXPECT_EQ(programs.iconForScheme(u"http"_s), u"some-browser"_s);
    EXPECT_EQ(programs.iconForScheme(u"mailto"_s), u"/some/where/mail.png"_s);
    EXPECT_EQ(programs.iconForScheme(u"no such scheme"_s), QString());
}

} // namespace
