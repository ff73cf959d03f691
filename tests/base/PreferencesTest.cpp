// SPDX-License-Identifier: MIT
#include "base/Preferences.h"

#include "support/FakePlatform.h"
#include "support/Test.h"

#include "base/DatePicker.h"

namespace {

TEST(Preferences, choicesAreStoredAtOnce)
{
    FakeDefaults store;
    Preferences prefs(store);
    const auto readAll = [](Preferences &of) {
        of.readChangeFrequency();
        of.readSizeSetting();
        of.readDesktopOptions();
    };
    readAll(prefs);
    EXPECT_EQ(prefs.rotateFrequency(), 0);
    EXPECT_EQ(prefs.desktopSizeSetting(), 1000);
    EXPECT_FALSE(prefs.doSetAllSpaces() || prefs.doSetAllScreens() || prefs.readHideTooltips());
    EXPECT_EQ(prefs.readZoomPrefs(), 0.0F);
    EXPECT_FALSE(prefs.readSourcePrefs());
    EXPECT_TRUE(store.values.isEmpty()) << "a first start stores nothing";
    int rescheduled = 0;
    prefs.onFrequencyChanged = [&] { ++rescheduled; };
    prefs.setChangeFrequency(17); // no menu item has it, yet it counts
    prefs.setDesktopSize(1002);
    prefs.setDesktopOptions(Preferences::AllSpacesTag);
    prefs.setDesktopOptions(Preferences::AllScreensTag);
    prefs.setDesktopOptions(Preferences::AllScreensTag);
    prefs.setDesktopOptions(4711);
    prefs.saveZoomPrefs(0.1);
    prefs.saveSourcePrefs({QString()});
    prefs.setRotateFrequency(60);
    EXPECT_EQ(rescheduled, 1);

    Preferences again(store);
    readAll(again);
    EXPECT_EQ(again.rotateFrequency(), 17);
    EXPECT_EQ(again.desktopSizeSetting(), 1002);
    EXPECT_TRUE(again.doSetAllSpaces());
    EXPECT_FALSE(again.doSetAllScreens());
    EXPECT_EQ(again.readZoomPrefs(), 0.1F);
    EXPECT_EQ(again.readSourcePrefs(), QStringList{QString()});
    store.setInteger(u"DesktopSize"_s, 0);
    store.setInteger(u"ChangeFrequency"_s, qint64(1) << 40);
    readAll(again);
    EXPECT_EQ(again.desktopSizeSetting(), 1000);
    EXPECT_GT(again.rotateFrequency(), 0);
}

TEST(DatePicker, neverAfterTheMaximum)
{
    const QDateTime max(QDate(2011, 7, 4), QTime(9, 30));
    DatePicker picker;
    QList<QDateTime> seen;
    picker.validator = [&](const QDateTime &date) {
        EXPECT_NE(picker.dateValue(), date); // the old value is still in place
        seen.append(date);
    };
    picker.setMaximumDate(max);
    picker.setDateValue(max.addDays(-1));
    picker.setDateValue(max.addSecs(1));
    EXPECT_EQ(picker.dateValue(), max);
    EXPECT_EQ(seen, (QList<QDateTime>{max.addDays(-1), max}));
}

} // namespace
