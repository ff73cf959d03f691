// SPDX-License-Identifier: MIT
// The desktops whose file manager paints the picture: one, on the first screen.
#include "platform_desktops/DesktopLab.h"

#include "platform/linux/desktops/FileManagers.h"

#include <QSettings>

using namespace moravel;
using namespace moravel::testing;

namespace {

class FileManagerLab : public DesktopLab
{
protected:
    FileManagerLab()
    {
        m_painted = {0};
        if (row().isKeyFile)
            m_refused = QStringList(QStringLiteral("two\nlines.png"));
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

TEST_F(FileManagerLab, setsOneScreenAndBoth)
{
    setsOneScreenAndBoth();
    tellsOnceThatOnePictureServesAll();
}

TEST_F(FileManagerLab, laysOutEachSizing)
{
    laysOutEachSizing();
}

TEST_F(FileManagerLab, takesOddNames)
{
    takesOddNames();
}

TEST_F(FileManagerLab, repaintsARewrittenFile)
{
    repaintsARewrittenFile();
}

TEST_F(FileManagerLab, noticesChangesFromOutside)
{
    noticesChangesFromOutside();
}

TEST_F(FileManagerLab, readsASlideshowAsItsFolder)
{
    if (row().isKeyFile)
        GTEST_SKIP() << "there is none";
    QSettings file(settings(), QSettings::IniFormat);
    file.setValue(QStringLiteral("Desktop/SlideShowInterval"), 60'000);
    file.setValue(QStringLiteral("Desktop/WallpaperDirectory"), m_folder.path());
    file.sync();
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }));
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    EXPECT_NE(set(red, first, DesktopScaling::Fill), QString());
    file.setValue(QStringLiteral("Desktop/SlideShowInterval"), 0);
    file.sync();
    EXPECT_TRUE(within(1'000, [&] { return !shown(first).endsWith(u'/'); }));
}

TEST_F(FileManagerLab, followsThePluggedScreen)
{
    followsThePluggedScreen();
}

TEST_F(FileManagerLab, comesBackAfterRestart)
{
    comesBackAfterRestart(restart);
}

} // namespace
