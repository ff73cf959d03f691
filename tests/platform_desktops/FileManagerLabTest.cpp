// SPDX-License-Identifier: MIT
// The desktops whose file manager paints the picture: one, on the first screen.
#include "platform_desktops/DesktopLab.h"

#include "platform/linux/desktops/FileManagers.h"

#include <QSettings>

namespace {

struct FileManagerLab : DesktopLab
{
    FileManagerLab()
    {
        m_painted = {0};
        if (row().isKeyFile)
            m_refused = QStringList(u"two\nlines.png"_s);
    }

    const FileManagerDesktop &row() const
    {
        return *fileManagerDesktop(qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
    }

    QString settings() const
    {
        return settingsPath(row(), qEnvironmentVariable("XDG_CONFIG_HOME"));
    }

    void setOutside(const QString &path) override
    {
        ASSERT_EQ(
            run(QLatin1String(row().program), setArguments(row(), path, DesktopScaling::Fill)), 0);
    }
};

DESKTOP_TESTS(FileManagerLab)
DESKTOP_TEST(FileManagerLab, noticesChangesFromOutside)

TEST_F(FileManagerLab, readsASlideshowAsItsFolder)
{
    if (row().isKeyFile)
        GTEST_SKIP() << "there is none";
    QSettings file(settings(), QSettings::IniFormat);
    file.setValue(u"Desktop/SlideShowInterval"_s, 60'000);
    file.setValue(u"Desktop/WallpaperDirectory"_s, m_folder.path());
    file.sync();
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }));
    EXPECT_NE(set(red, first, Fill), QString());
    file.setValue(u"Desktop/SlideShowInterval"_s, 0);
    file.sync();
    EXPECT_TRUE(within(1'000, [&] { return !shown(first).endsWith(u'/'); }));
}

DESKTOP_TEST(FileManagerLab, followsThePluggedScreen)
DESKTOP_TEST(FileManagerLab, comesBackAfterRestart)

} // namespace
