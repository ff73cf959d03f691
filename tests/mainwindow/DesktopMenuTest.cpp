// SPDX-License-Identifier: MIT
#include "mainwindow/DesktopMenu.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace moravel {
namespace {

class DesktopMenuTest : public ::testing::Test
{
protected:
    DesktopMenuPorts ports()
    {
        return {[this](int tag) { preferences.setDesktopSize(tag); },
                [this] { done.append(QStringLiteral("now")); },
                [this] { done.append(QStringLiteral("back")); },
                [this] { done.append(QStringLiteral("keep")); },
                [this] { done.append(QStringLiteral("settings")); },
                [this] { return hasPrevious; }};
    }

    QAction *item(const QString &title, const QMenu *in = nullptr) const
    {
        for (QAction *action : (in ? in : &menu)->actions()) {
            if (action->text().remove(u'&') == title)
                return action;
            if (QAction *below = action->menu() ? item(title, action->menu()) : nullptr)
                return below;
        }
        return nullptr;
    }

    QStringList checked(const QMenu &in) const
    {
        QStringList titles;
        for (const QAction *action : in.actions()) {
            if (action->isChecked())
                titles.append(action->text());
        }
        return titles;
    }

    testing::FakeDefaults store;
    Preferences preferences{store};
    QMenu menu;
    QStringList done;
    bool hasPrevious = false;
};

TEST_F(DesktopMenuTest, checkMarksFollowThePreferences)
{
    store.setInteger(QStringLiteral("ChangeFrequency"), 17);
    preferences.readChangeFrequency();
    const DesktopMenu desktop(menu, preferences, ports());
    const QMenu &every = *item(QStringLiteral("Change Every"))->menu();
    const QMenu &sizing = *item(QStringLiteral("Sizing"))->menu();
    EXPECT_TRUE(checked(every).isEmpty()); // no item has 17 minutes
    EXPECT_EQ(checked(sizing), QStringList{QStringLiteral("Auto")});
    for (const auto &[title, minutes] :
         {std::pair("30 Minutes", 30), {"24 Hours", 1440}, {"24 Hours", 1440}, {"Never", 0}}) {
        SCOPED_TRACE(title);
        item(QLatin1String(title))->trigger();
        EXPECT_EQ(store.integer(QStringLiteral("ChangeFrequency")), minutes);
        EXPECT_EQ(checked(every), QStringList{QLatin1String(title)});
    }
    item(QStringLiteral("Center"))->trigger();
    EXPECT_EQ(preferences.desktopSizeSetting(), 1003);
    EXPECT_EQ(checked(sizing), QStringList{QStringLiteral("Center")});
    item(QStringLiteral("All Screens"))->trigger();
    EXPECT_TRUE(preferences.doSetAllScreens());
    EXPECT_TRUE(item(QStringLiteral("All Screens"))->isChecked());
    EXPECT_FALSE(item(QStringLiteral("All Virtual Desktops"))->isChecked());
}

TEST_F(DesktopMenuTest, commands)
{
    const DesktopMenu desktop(menu, preferences, ports());
    QAction *back = item(QStringLiteral("Back to Previous Desktop"));
    Q_EMIT menu.aboutToShow();
    EXPECT_FALSE(back->isEnabled());
    hasPrevious = true;
    Q_EMIT menu.aboutToShow();
    for (const char *title : {"Change Desktop Now", "Back to Previous Desktop",
                              "Keep This Desktop for 1 Hour", "System Desktop Settings…"})
        item(QString::fromUtf8(title))->trigger();
    EXPECT_EQ(done.join(u' '), QStringLiteral("now back keep settings"));
}

} // namespace
} // namespace moravel
