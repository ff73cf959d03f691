// SPDX-License-Identifier: MIT
#include "mainwindow/DesktopMenu.h"

#include "support/FakePlatform.h"
#include "support/Test.h"

namespace {

// The commands are chosen in the whole application, in MenuBarTest.
TEST(DesktopMenu, checkMarksFollowThePreferencesAndTheWayBackItsHistory)
{
    FakeDefaults store;
    Preferences preferences(store);
    store.setInteger(u"ChangeFrequency"_s, 17);
    preferences.readChangeFrequency();
    QMenu menu;
    bool hasPrevious = false;
    const auto nothing = [] {};
    const DesktopMenu desktop(menu, preferences,
                              {[&](int tag) { preferences.setDesktopSize(tag); }, nothing, nothing,
                               nothing, nothing, [&] { return hasPrevious; }});
    const auto item = [&menu](const char *title) {
        for (QAction *action : menu.findChildren<QAction *>()) {
            if (action->text().remove(u'&') == QLatin1String(title))
                return action;
        }
        return static_cast<QAction *>(nullptr);
    };
    const auto checked = [&item](const char *submenu) {
        QStringList titles;
        for (const QAction *action : item(submenu)->menu()->actions()) {
            if (action->isChecked())
                titles.append(action->text());
        }
        return titles;
    };
    EXPECT_TRUE(checked("Change Every").isEmpty()); // no item has 17 minutes
    EXPECT_EQ(checked("Sizing"), QStringList{u"Auto"_s});
    for (const auto &[title, minutes] : Table<const char *, int>{
             {"30 Minutes", 30}, {"24 Hours", 1440}, {"24 Hours", 1440}, {"Never", 0}}) {
        SCOPED_TRACE(title);
        item(title)->trigger();
        EXPECT_EQ(store.integer(u"ChangeFrequency"_s), minutes);
        EXPECT_EQ(checked("Change Every"), QStringList{QLatin1String(title)});
    }
    item("Center")->trigger();
    EXPECT_EQ(preferences.desktopSizeSetting(), 1003);
    EXPECT_EQ(checked("Sizing"), QStringList{u"Center"_s});
    item("All Screens")->trigger();
    EXPECT_TRUE(preferences.doSetAllScreens() && item("All Screens")->isChecked());
    EXPECT_FALSE(item("All Virtual Desktops")->isChecked());
    for (const bool is : {false, true}) {
        hasPrevious = is;
        Q_EMIT menu.aboutToShow();
        EXPECT_EQ(item("Back to Previous Desktop")->isEnabled(), is);
    }
}

} // namespace
