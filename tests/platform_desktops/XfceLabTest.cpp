// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include "desktop/DesktopWorld.h"

using namespace moravel;
using namespace moravel::testing;

namespace {

class XfceLab : public DesktopLab
{
protected:
    /// Sets a property as the desktop's own settings window would.
    static void xfconf(const QString &property, const QString &type, const QString &value)
    {
        ASSERT_EQ(run(QStringLiteral("xfconf-query"),
                      {QStringLiteral("-c"), QStringLiteral("xfce4-desktop"), QStringLiteral("-p"),
                       property, QStringLiteral("-n"), QStringLiteral("-t"), type,
                       QStringLiteral("-s"), value}),
                  0);
    }

    void setOutside(const QString &path) override
    {
        xfconf(m_base + QStringLiteral("0/last-image"), QStringLiteral("string"), path);
    }

    static void haveOnePicture(bool forAllWorkspaces)
    {
        xfconf(QStringLiteral("/backdrop/single-workspace-mode"), QStringLiteral("bool"),
               QVariant(forAllWorkspaces).toString());
    }

    static void goTo(int workspace)
    {
        ASSERT_EQ(run(QStringLiteral("wmctrl"), {QStringLiteral("-s"), QString::number(workspace)}),
                  0);
    }

    QString m_base = QStringLiteral("/backdrop/screen0/monitorDUMMY0/workspace");
};

TEST_F(XfceLab, setsOneScreenAndBoth)
{
    setsOneScreenAndBoth();
}

TEST_F(XfceLab, laysOutEachSizing)
{
    laysOutEachSizing();
}

TEST_F(XfceLab, takesOddNames)
{
    takesOddNames();
}

TEST_F(XfceLab, repaintsARewrittenFile)
{
    repaintsARewrittenFile();
}

TEST_F(XfceLab, noticesChangesFromOutside)
{
    noticesChangesFromOutside();
}

TEST_F(XfceLab, takesManyChangesInARow)
{
    const QString red = picture(QStringLiteral("red.png"), {3000, 2000}, Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), {3000, 2000}, Qt::blue);
    for (int i = 0; i < 6; ++i) {
        const auto scaling = i % 2 ? DesktopScaling::Fill : DesktopScaling::Fit;
        ASSERT_EQ(set(i % 2 ? blue : red, first, scaling), QString());
    }
    EXPECT_TRUE(seen(0, Middle, Qt::blue));
}

TEST_F(XfceLab, putsThePictureBackOnAnotherWorkspace)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
    haveOnePicture(false);
    startProgram(true);
    m_program->preferences.setDesktopOptions(Preferences::AllSpacesTag);
    m_program->desktop->setter().setDesktopToFile(red);
    EXPECT_TRUE(seenOnAll(Qt::red));
    EXPECT_TRUE(within(5'000, [&] { return m_program->desktop->currentDesktopPath() == red; }));
    xfconf(m_base + QStringLiteral("1/last-image"), QStringLiteral("string"), blue);
    goTo(1);
    EXPECT_TRUE(within(5'000, [&] { return shown(first) == blue; }));
    EXPECT_TRUE(within(5'000, [&] { return shown(first) == red; }));
    EXPECT_TRUE(seenOnAll(Qt::red));
    goTo(0);
    haveOnePicture(true);
}

TEST_F(XfceLab, readsItsOwnCyclingAsTheFolder)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    const QString cycling = m_base + QStringLiteral("0/backdrop-cycle-enable");
    xfconf(cycling, QStringLiteral("bool"), QStringLiteral("true"));
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }));
    xfconf(cycling, QStringLiteral("bool"), QStringLiteral("false"));
    EXPECT_TRUE(within(1'000, [&] { return !shown(first).endsWith(u'/'); }));
}

TEST_F(XfceLab, followsThePluggedScreen)
{
    followsThePluggedScreen();
}

TEST_F(XfceLab, comesBackAfterRestart)
{
    comesBackAfterRestart(restart);
}

} // namespace
