// SPDX-License-Identifier: MIT
#include "support/Wait.h"

#include "platform/linux/session/GioPrograms.h"

#include <QDir>
#include <QFile>

namespace moravel {
namespace {

void write(const QString &path, const QByteArray &text)
{
    QDir().mkpath(path.section(u'/', 0, -2));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

TEST(Programs, HaveTheIconsOfTheirDesktopEntries)
{
    const QString data = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/applications/");
    const QByteArray entry = "[Desktop Entry]\nType=Application\nName=x\nExec=true %u\nIcon=";
    write(data + QStringLiteral("web.desktop"), entry + "some-browser\n");
    write(data + QStringLiteral("mail.desktop"), entry + "/some/where/mail.png\n");
    write(
        qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/mimeapps.list"),
        "[Default "
        "Applications]\nx-scheme-handler/http=web.desktop\nx-scheme-handler/mailto=mail.desktop\n");
    GioPrograms programs;
    EXPECT_EQ(programs.iconForScheme(QStringLiteral("http")), QString()) << "waits";
    MORAVEL_WAIT(!programs.iconForScheme(QStringLiteral("mailto")).isEmpty());
    EXPECT_EQ(programs.iconForScheme(QStringLiteral("http")), QStringLiteral("some-browser"));
    EXPECT_EQ(programs.iconForScheme(QStringLiteral("mailto")),
              QStringLiteral("/some/where/mail.png"));
    EXPECT_EQ(programs.iconForScheme(QStringLiteral("no such scheme")), QString());
}

} // namespace
} // namespace moravel
