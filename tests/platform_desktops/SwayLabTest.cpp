// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include "desktop/DesktopWorld.h"
#include "platform/linux/desktops/DesktopRecord.h"
#include "platform/linux/desktops/SwaybgClient.h"

#include <unistd.h>

namespace {

struct SwayLab : DesktopLab
{
    static void sway(const QString &command) { EXPECT_EQ(run(u"swaymsg -- "_s + command), 0); }

    void setBoth()
    {
        for (const QString &screen : {first, second})
            ASSERT_EQ(set(red, screen, Fill), QString());
        EXPECT_TRUE(seenOnAll(Qt::red));
    }

    /// The process that draws a screen, by the program's own record.
    swaybg::Process clientOf(const QString &screen)
    {
        const DesktopRecordFile file(m_files, s_support.filePath(u"Desktop-wlroots.json"_s));
        const DesktopRecordEntry entry = file.read().screens.value(screen);
        return {entry.owner, entry.ownerStart};
    }
};

DESKTOP_TESTS(SwayLab)

TEST_F(SwayLab, uncoversThePictureFromTheConfiguredOne)
{
    if (QFileInfo(qEnvironmentVariable("SWAYSOCK")).ownerId() != ::geteuid())
        GTEST_SKIP() << "here sway, and what it has started, is another user's";
    setBoth();
    sway(u"output * bg %1 fill"_s.arg(blue));
    for (const QString &screen : {first, second}) {
        const swaybg::Process ours = clientOf(screen);
        MORAVEL_WAIT(!swaybg::rivals(screen, {ours}).isEmpty());
        swaybg::end(ours);
        MORAVEL_WAIT(shown(screen).isEmpty());
    }
    EXPECT_TRUE(seenOnAll(Qt::blue));
    setBoth();
}

TEST_F(SwayLab, startsALostClientAgain)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    EXPECT_NE(set(m_folder.path(), first, Fill), QString());
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

DESKTOP_TEST(SwayLab, knowsWhoFillsTheScreen)

TEST_F(SwayLab, givesThePictureToANewOutput)
{
    startProgram(true);
    m_program->desktop->setter().setDesktopToFile(red);
    EXPECT_TRUE(seenOnAll(Qt::red));
    sway(u"create_output"_s);
    MORAVEL_WAIT(m_desktop->screens().size() == 3);
    const QString third = m_desktop->screens()[2].id;
    EXPECT_TRUE(within(20'000, [&] { return shown(third) == red; }));
    sway(u"output %1 resolution 800x600 position 1600 0"_s.arg(third));
    EXPECT_TRUE(seen(2, Middle, Qt::red));
}

} // namespace
