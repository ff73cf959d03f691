// SPDX-License-Identifier: MIT
#include "support/TempHome.h"
#include "support/Wait.h"

#include "platform/linux/desktops/FileManagerPictures.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QFile>

namespace moravel {
namespace {

using testing::TempHome;

const FileManagerDesktop &lxqt()
{
    return *fileManagerDesktop(QStringLiteral("LXQt"));
}

const FileManagerDesktop &lxde()
{
    return *fileManagerDesktop(QStringLiteral("LXDE"));
}

TEST(FileManagers, settingsAreRead)
{
    struct Case
    {
        const FileManagerDesktop &desktop;
        const char *settings;
        const char *image;
        const char *folder;
    };

    const Case cases[] = {
        {lxqt(), "[Desktop]\nWallpaper=/p/a b.png\n", "/p/a b.png", ""},
        {lxqt(), "[Desktop]\nWallpaper=\"/p/a, b.png\"\n", "/p/a, b.png", ""},
        {lxqt(), "[Desktop]\nWallpaper=/p/\\xfc\\n.png\n", "/p/\u00fc\n.png", ""},
        {lxqt(), "[Desktop]\nWallpaper=/a\nSlideShowInterval=9\nWallpaperDirectory=/s\n", "/a",
         "/s/"},
        {lxqt(), "[Desktop]\nWallpaper=/a\nSlideShowInterval=0\nWallpaperDirectory=/s\n", "/a", ""},
        {lxqt(), "\x01\x02[[[", "", ""},
        {lxde(), "[*]\nwallpaper_mode=crop\nwallpaper_common=1\nwallpaper=/p/a, b.png\n",
         "/p/a, b.png", ""},
        {lxde(), "[*]\nwallpaper_common=0\nwallpaper=/a\nwallpaper0=/zero\n", "/zero", ""},
        {lxde(), "[*]\nwallpaper_mode=color\nwallpaper=/a\n", "", ""},
        {lxde(), "no key file", "", ""},
    };
    const TempHome home;
    int number = 0;
    for (const Case &c : cases) {
        SCOPED_TRACE(c.settings);
        // Qt takes a file of the same name, size and time for the same.
        const QString file = home.write(QString::number(++number), c.settings);
        const FileManagerReading reading = readSettings(c.desktop, file);
        EXPECT_EQ(reading.image, QString::fromUtf8(c.image));
        EXPECT_EQ(reading.slideshowFolder, QString::fromUtf8(c.folder));
    }
    EXPECT_EQ(readSettings(lxde(), home.path(QStringLiteral("none"))).image, QString());
}

TEST(FileManagers, namesThatTheSettingsCannotHoldAreRefused)
{
    for (const char *name : {"/a\nb", "/a\\b", "/a\x1f"}) {
        EXPECT_FALSE(canKeep(lxde(), QString::fromUtf8(name)));
        EXPECT_TRUE(canKeep(lxqt(), QString::fromUtf8(name)));
    }
    EXPECT_TRUE(canKeep(lxde(), QStringLiteral("/a b\"'%41\u00fc")));
}

/// A command that keeps the settings as the file manager does, and a count of its calls.
class FileManager : public ::testing::Test
{
protected:
    void install(const char *when)
    {
        const QString program =
            m_home.write(QStringLiteral("bin/pcmanfm-qt"),
                         QByteArray("#!/bin/sh\nC='" + m_home.path().toUtf8()
                                    + "'\necho \"$4\" >>\"$C/calls\"\n")
                             + "n=$(wc -l <\"$C/calls\")\n" + when
                             + " && printf '[Desktop]\\nWallpaper=%s\\n' \"$2\" "
                               ">\"$C/pcmanfm-qt/lxqt/settings.conf\"\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH",
                (m_home.path(QStringLiteral("bin:")) + qEnvironmentVariable("PATH")).toUtf8());
        m_home.write(QStringLiteral("pcmanfm-qt/lxqt/settings.conf"),
                     "[Desktop]\nWallpaper=/first\n");
    }

    QStringList set(FileManagerPictures &desktop, const QStringList &paths)
    {
        QStringList results;
        for (const QString &path : paths) {
            desktop.setDesktopImageUrl(
                fileUrl(path), {}, DesktopScaling::Fill, [&](const auto &outcome) {
                    results += outcome ? QStringLiteral("-") : outcome.error().description;
                });
        }
        EXPECT_TRUE(results.isEmpty()) << "answered from within";
        EXPECT_TRUE(testing::waitFor([&] { return results.size() == paths.size(); }));
        return results;
    }

    QByteArray calls() const { return TempHome::read(m_home.path(QStringLiteral("calls"))); }

    TempHome m_home;
};

TEST_F(FileManager, isAskedOnceForEachPictureInTurn)
{
    install("true");
    FileManagerPictures desktop(lxqt(), m_home.path(), m_home.path());
    EXPECT_EQ(desktop.desktopImageUrl({}), u"file://localhost/first");
    const QString one = m_home.write(QStringLiteral("--one 'x'.png"), "1");
    const QString two = m_home.write(QStringLiteral("two.png"), "2");
    EXPECT_EQ(set(desktop, {one, one + u'x', two}),
              QStringList({QStringLiteral("-"), QStringLiteral("The picture is not a file."),
                           QStringLiteral("-")}));
    EXPECT_EQ(desktop.desktopImageUrl({}), fileUrl(two));
    EXPECT_EQ(calls(), "stretch\nstretch\n");
    m_home.write(QStringLiteral("two.png"), "rewritten");
    EXPECT_EQ(set(desktop, {two}), QStringList(QStringLiteral("-")));
    EXPECT_TRUE(TempHome::read(m_home.path(QStringLiteral("pcmanfm-qt/lxqt/settings.conf")))
                    .contains("/./"));
    EXPECT_EQ(desktop.desktopImageUrl({}), fileUrl(two));
    m_home.write(QStringLiteral("pcmanfm-qt/lxqt/settings.conf"),
                 "[Desktop]\nWallpaper=/outside\n");
    MORAVEL_WAIT(desktop.desktopImageUrl({}) == u"file://localhost/outside");
}

TEST_F(FileManager, isAskedAgainWhenItDoesNotListen)
{
    install("[ $n -ge 2 ]");
    FileManagerPictures desktop(lxqt(), m_home.path(), m_home.path());
    EXPECT_EQ(set(desktop, {m_home.write(QStringLiteral("a.png"), "1")}),
              QStringList(QStringLiteral("-")));
    EXPECT_EQ(calls(), "stretch\nstretch\n");
}

TEST_F(FileManager, failuresAreTold)
{
    install("false");
    const QString path = m_home.write(QStringLiteral("a.png"), "1");
    {
        FileManagerPictures desktop(lxqt(), m_home.path(), m_home.path());
        EXPECT_EQ(set(desktop, {path}),
                  QStringList(QStringLiteral("The desktop did not take the picture.")));
        EXPECT_EQ(calls(), "stretch\nstretch\nstretch\n");
    }
    FileManagerDesktop missing = lxqt();
    missing.program = "moravel-no-such-program";
    FileManagerPictures desktop(missing, m_home.path(), m_home.path());
    EXPECT_EQ(set(desktop, {path, path}),
              QStringList({QStringLiteral("The desktop's file manager cannot be started."),
                           QStringLiteral("The desktop's file manager cannot be started.")}));
}

} // namespace
} // namespace moravel
