// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include "desktop/DesktopWorld.h"

namespace {

struct XfceLab : DesktopLab
{
    /// Sets a property as the desktop's own settings window would.
    static void xfconf(const QString &property, const QString &type, const QString &value)
    {
        const QString line = u"xfconf-query -c xfce4-desktop -n -t %1 -p %2 -s"_s;
        ASSERT_EQ(run(line.arg(type, property), {value}), 0);
    }

    void setOutside(const QString &path) override
    {
        xfconf(m_base + u"0/last-image"_s, u"string"_s, path);
    }

    static void haveOnePicture(bool forAllWorkspaces)
    {
        xfconf(u"/backdrop/single-workspace-mode"_s, u"bool"_s,
               QVariant(forAllWorkspaces).toString());
    }

    static void goTo(int workspace) { ASSERT_EQ(run(u"wmctrl -s %1"_s.arg(workspace)), 0); }

    QString m_base = u"/backdrop/screen0/monitorDUMMY0/workspace"_s;
};

DESKTOP_TESTS(XfceLab)
DESKTOP_TEST(XfceLab, noticesChangesFromOutside)

TEST_F(XfceLab, takesManyChangesInARow)
{
    red = picture(u"red.png"_s, {3000, 2000}, Qt::red);
    blue = picture(u"blue.png"_s, {3000, 2000}, Qt::blue);
    for (int i = 0; i < 6; ++i) {
        const auto scaling = i % 2 ? DesktopScaling::Fill : DesktopScaling::Fit;
        ASSERT_EQ(set(i % 2 ? blue : red, first, scaling), QString());
    }
    EXPECT_TRUE(seen(0, Middle, Qt::blue));
}

TEST_F(XfceLab, putsThePictureBackOnAnotherWorkspace)
{
    haveOnePicture(false);
    startProgram(true);
    m_program->preferences.setDesktopOptions(Preferences::AllSpacesTag);
    m_program->desktop->setter().setDesktopToFile(red);
    EXPECT_TRUE(seenOnAll(Qt::red));
    EXPECT_TRUE(within(5'000, [&] { return m_program->desktop->currentDesktopPath() == red; }));
    xfconf(m_base + u"1/last-image"_s, u"string"_s, blue);
    goTo(1);
    EXPECT_TRUE(within(5'000, [&] { return shown(first) == blue; }));
    EXPECT_TRUE(within(5'000, [&] { return shown(first) == red; }));
    EXPECT_TRUE(seenOnAll(Qt::red));
    goTo(0);
    haveOnePicture(true);
}

TEST_F(XfceLab, readsItsOwnCyclingAsTheFolder)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    const QString cycling = m_base + u"0/backdrop-cycle-enable"_s;
    xfconf(cycling, u"bool"_s, u"true"_s);
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }));
    xfconf(cycling, u"bool"_s, u"false"_s);
    EXPECT_TRUE(within(1'000, [&] { return !shown(first).endsWith(u'/'); }));
}

DESKTOP_TEST(XfceLab, followsThePluggedScreen)
DESKTOP_TEST(XfceLab, comesBackAfterRestart)

} // namespace
