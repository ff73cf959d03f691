// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

using namespace moravel;
using namespace moravel::testing;

namespace {

int clients()
{
    QProcess process;
    process.start(QStringLiteral("pgrep"), {QStringLiteral("-cx"), QStringLiteral("swaybg")});
    process.waitForFinished();
    return process.readAll().trimmed().toInt();
}

using SwayLab = DesktopLab;

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

TEST_F(SwayLab, comesBackAfterStartsAndOnNewOutputs)
{
    const QString red = picture(QStringLiteral("red.png"), {800, 600}, Qt::red);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    EXPECT_NE(set(m_folder.path(), first, DesktopScaling::Fill), QString());
    m_desktop = make();
    EXPECT_EQ(shown(first), red);
    bool told = false;
    m_desktop->onScreensChanged = [&] { told = true; };
    QProcess::execute(QStringLiteral("swaymsg"), {QStringLiteral("create_output")});
    MORAVEL_WAIT(told && m_desktop->screens().size() == 3);
    EXPECT_TRUE(seen(0, Middle, Qt::red));
    EXPECT_GE(clients(), 1);
}

} // namespace
