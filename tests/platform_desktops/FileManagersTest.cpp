// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "platform/linux/desktops/FileManagerPictures.h"
#include "platform/linux/desktops/FileUrls.h"

namespace {

const FileManagerDesktop &lxqt()
{
    return *fileManagerDesktop(u"LXQt"_s);
}

const FileManagerDesktop &lxde()
{
    return *fileManagerDesktop(u"LXDE"_s);
}

TEST(FileManagers, settingsAreRead)
{
    const Table<QString, const char *, const char *, const char *> cases{
        {u"LXQt"_s, "[Desktop]\nWallpaper=/p/a b.png\n", "/p/a b.png", ""},
        {u"LXQt"_s, "[Desktop]\nWallpaper=\"/p/a, b.png\"\n", "/p/a, b.png", ""},
        {u"LXQt"_s, "[Desktop]\nWallpaper=/p/\\xfc\\n.png\n", "/p/\u00fc\n.png", ""},
        {u"LXQt"_s, "[Desktop]\nWallpaper=/a\nSlideShowInterval=9\nWallpaperDirectory=/s\n", "/a",
         "/s/"},
        {u"LXQt"_s, "[Desktop]\nWallpaper=/a\nSlideShowInterval=0\nWallpaperDirectory=/s\n", "/a",
         ""},
        {u"LXQt"_s, "\x01\x02[[[", "", ""},
        {u"LXDE"_s, "[*]\nwallpaper_mode=crop\nwallpaper_common=1\nwallpaper=/p/a, b.png\n",
         "/p/a, b.png", ""},
        {u"LXDE"_s, "[*]\nwallpaper_common=0\nwallpaper=/a\nwallpaper0=/zero\n", "/zero", ""},
        {u"LXDE"_s, "[*]\nwallpaper_mode=color\nwallpaper=/a\n", "", ""},
        {u"LXDE"_s, "no key file", "", ""},
    };
    const TempHome home;
    int number = 0;
    for (const auto &[desktop, settings, image, folder] : cases) {
        // Qt takes a file of the same name, size and time for the same.
        const QString file = home.write(QString::number(++number), settings);
        const FileManagerReading reading = readSettings(*fileManagerDesktop(desktop), file);
        EXPECT_EQ(reading.image, QString::fromUtf8(image)) << settings;
        EXPECT_EQ(reading.slideshowFolder, QString::fromUtf8(folder)) << settings;
    }
    EXPECT_EQ(readSettings(lxde(), home.path(u"none"_s)).image, QString());
}

TEST(FileManagers, namesThatTheSettingsCannotHoldAreRefused)
{
    for (const char *name : {"/a\nb", "/a\\b", "/a\x1f"}) {
        EXPECT_FALSE(canKeep(lxde(), QString::fromUtf8(name)));
        EXPECT_TRUE(canKeep(lxqt(), QString::fromUtf8(name)));
    }
    EXPECT_TRUE(canKeep(lxde(), u"/a b\"'%41\u00fc"_s));
}

/// A command that keeps the settings as the file manager does, and a count of its calls.
struct FileManager : ::testing::Test
{
    void install(const char *when)
    {
        const QString program =
            m_home.write(u"bin/pcmanfm-qt"_s,
                         QByteArray("#!/bin/sh\nC='" + m_home.path().toUtf8()
                                    + "'\necho \"$4\" >>\"$C/calls\"\n")
                             + "n=$(wc -l <\"$C/calls\")\n" + when
                             + " && printf '[Desktop]\\nWallpaper=%s\\n' \"$2\" "
                               ">\"$C/pcmanfm-qt/lxqt/settings.conf\"\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", (m_home.path(u"bin:"_s) + qEnvironmentVariable("PATH")).toUtf8());
        m_home.write(u"pcmanfm-qt/lxqt/settings.conf"_s, "[Desktop]\nWallpaper=/first\n");
    }

    QStringList set(FileManagerPictures &desktop, const QStringList &paths)
    {
        QStringList results;
        for (const QString &path : paths) {
            desktop.setDesktopImageUrl(
                fileUrl(path), {}, DesktopScaling::Fill, [&](const auto &outcome) {
                    results += outcome ? u"-"_s : outcome.error().description;
                });
        }
        EXPECT_TRUE(results.isEmpty()) << "answered from within";
        EXPECT_TRUE(waitFor([&] { return results.size() == paths.size(); }));
        return results;
    }

    QByteArray calls() const { return TempHome::read(m_home.path(u"calls"_s)); }

    TempHome m_home;
};

TEST_F(FileManager, isAskedOnceForEachPictureInTurn)
{
    install("true");
    FileManagerPictures desktop(lxqt(), m_home.path(), m_home.path());
    EXPECT_EQ(desktop.desktopImageUrl({}), u"file://localhost/first");
    const QString one = m_home.write(u"--one 'x'.png"_s, "1");
    const QString two = m_home.write(u"two.png"_s, "2");
    EXPECT_EQ(set(desktop, {one, one + u'x', two}),
              QStringList({u"-"_s, u"The picture is not a file."_s, u"-"_s}));
    EXPECT_EQ(desktop.desktopImageUrl({}), fileUrl(two));
    EXPECT_EQ(calls(), "stretch\nstretch\n");
    m_home.write(u"two.png"_s, "rewritten");
    EXPECT_EQ(set(desktop, {two}), QStringList(u"-"_s));
    EXPECT_TRUE(TempHome::read(m_home.path(u"pcmanfm-qt/lxqt/settings.conf"_s)).contains("/./"));
    EXPECT_EQ(desktop.desktopImageUrl({}), fileUrl(two));
    m_home.write(u"pcmanfm-qt/lxqt/settings.conf"_s, "[Desktop]\nWallpaper=/outside\n");
    MORAVEL_WAIT(desktop.desktopImageUrl({}) == u"file://localhost/outside");
}

TEST_F(FileManager, isAskedAgainWhenItDoesNotListen)
{
    install("[ $n -ge 2 ]");
    FileManagerPictures desktop(lxqt(), m_home.path(), m_home.path());
    EXPECT_EQ(set(desktop, {m_home.write(u"a.png"_s, "1")}), QStringList(u"-"_s));
    EXPECT_EQ(calls(), "stretch\nstretch\n");
}

TEST_F(FileManager, failuresAreTold)
{
    install("false");
    const QString path = m_home.write(u"a.png"_s, "1");
    {
        FileManagerPictures desktop(lxqt(), m_home.path(), m_home.path());
        EXPECT_EQ(set(desktop, {path}), QStringList(u"The desktop did not take the picture."_s));
        EXPECT_EQ(calls(), "stretch\nstretch\nstretch\n");
    }
    FileManagerDesktop missing = lxqt();
    missing.program = "moravel-no-such-program";
    FileManagerPictures desktop(missing, m_home.path(), m_home.path());
    EXPECT_EQ(set(desktop, {path, path}),
              QStringList({u"The desktop's file manager cannot be started."_s,
                           u"The desktop's file manager cannot be started."_s}));
}

} // namespace
