// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include "desktop/DesktopWorld.h"
#include "platform/linux/desktops/DesktopRecord.h"
#include "platform/linux/desktops/SwaybgClient.h"

#include <QFileInfo>

#include <unistd.h>

using namespace moravel;
using namespace moravel::testing;

namespace {

class SwayLab : public DesktopLab
{
protected:
    static void sway(const QStringList &command)
    {
        EXPECT_EQ(run(QStringLiteral("swaymsg"), QStringList(QStringLiteral("--")) + command), 0);
    }

    /// The process that draws a screen, by the program's own record.
    swaybg::Process clientOf(const QString &screen)
    {
        const DesktopRecordFile file(m_files,
                                     s_support.filePath(QStringLiteral("Desktop-wlroots.json")));
        const DesktopRecordEntry entry = file.read().screens.value(screen);
        return {entry.owner, entry.ownerStart};
    }
};

TEST_F(SwayLab, setsOneScreenAndBoth)
{
    setsOneScreenAndBoth();
}

TEST_F(SwayLab, laysOutEachSizing)
{
    laysOutEachSizing();
}

TEST_F(SwayLab, takesOddNames)
{
    takesOddNames();
}

TEST_F(SwayLab, repaintsARewrittenFile)
{
    repaintsARewrittenFile();
}

TEST_F(SwayLab, uncoversThePictureFromTheConfiguredOne)
{
    if (QFileInfo(qEnvironmentVariable("SWAYSOCK")).ownerId() != ::geteuid())
        GTEST_SKIP() << "here sway, and what it has started, is another user's";
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
    for (const QString &screen : {first, second})
        ASSERT_EQ(set(red, screen, DesktopScaling::Fill), QString());
    EXPECT_TRUE(seenOnAll(Qt::red));
    sway({QStringLiteral("output"), QStringLiteral("*"), QStringLiteral("bg"), blue,
          QStringLiteral("fill")});
    for (const QString &screen : {first, second}) {
        const swaybg::Process ours = clientOf(screen);
        MORAVEL_WAIT(!swaybg::rivals(screen, {ours}).isEmpty());
        swaybg::end(ours);
        MORAVEL_WAIT(shown(screen).isEmpty());
    }
    EXPECT_TRUE(seenOnAll(Qt::blue));
    for (const QString &screen : {first, second})
        ASSERT_EQ(set(red, screen, DesktopScaling::Fill), QString());
    EXPECT_TRUE(seenOnAll(Qt::red));
}

TEST_F(SwayLab, startsALostClientAgain)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    EXPECT_NE(set(m_folder.path(), first, DesktopScaling::Fill), QString());
    for (int i = 0; i < 2; ++i) {
        const swaybg::Process before = clientOf(first);
        swaybg::end(before);
        EXPECT_TRUE(within(10'000, [&] { return clientOf(first) != before; }));
        EXPECT_TRUE(seen(0, Middle, Qt::red));
    }
    m_desktop.reset();
    swaybg::end(clientOf(first));
    m_desktop = make();
    EXPECT_EQ(shown(first), red);
    EXPECT_TRUE(seen(0, Middle, Qt::red));
}

TEST_F(SwayLab, knowsWhoFillsTheScreen)
{
    knowsWhoFillsTheScreen();
}

TEST_F(SwayLab, givesThePictureToANewOutput)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    startProgram(true);
    m_program->desktop->setter().setDesktopToFile(red);
    EXPECT_TRUE(seenOnAll(Qt::red));
    sway({QStringLiteral("create_output")});
    MORAVEL_WAIT(m_desktop->screens().size() == 3);
    const QString third = m_desktop->screens()[2].id;
    EXPECT_TRUE(within(20'000, [&] { return shown(third) == red; }));
    sway({QStringLiteral("output"), third, QStringLiteral("resolution"), QStringLiteral("800x600"),
          QStringLiteral("position"), QStringLiteral("1600"), QStringLiteral("0")});
    EXPECT_TRUE(seen(2, Middle, Qt::red));
}

} // namespace
