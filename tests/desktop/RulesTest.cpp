// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "desktop/DesktopSizing.h"
#include "desktop/DesktopUrls.h"
#include "desktop/DockMenu.h"
#include "desktop/DockTile.h"
#include "desktop/RotationRules.h"
#include "desktop/WatchRules.h"

#include <algorithm>
#include <map>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

TEST(DesktopUrls, readThePlainPath)
{
    const Table<const char *, const char *> cases{
        {"", ""},
        {"file://localhost/home/a/b.jpg", "/home/a/b.jpg"},
        {"file://localhost/a%20b%25%C3%BC%27.jpg", "/a b%ü'.jpg"},
        {"file://localhost/x/file://localhost/y", "/x//y"},
        {"/portal/plain.jpg", "/portal/plain.jpg"},
        {"file://localhost/100%zz%4", "/100%zz%4"},
        {"file://localhost/%2541", "/%41"},
        {"file://localhost/folder/", "/folder/"},
        {"file:///other", "file:///other"},
    };
    for (const auto &[url, path] : cases)
        EXPECT_EQ(desktopPathFromUrl(text(url)), text(path)) << url;
    EXPECT_EQ(withoutFileHost(text("file://localhost/a%20b")), text("/a%20b"));
    for (const char *path : {"/a b/ü'\"%41#?;.jpg", "/f/", "/line\nfeed"}) {
        SCOPED_TRACE(path);
        const QString url = desktopUrlFromPath(text(path));
        EXPECT_TRUE(url.startsWith(text("file://localhost/")));
        EXPECT_EQ(desktopPathFromUrl(url), text(path));
    }
}

TEST(DesktopSizing, followsTheSettingThenTheSizes)
{
    using enum DesktopScaling;
    constexpr QSize Screen{1440, 900};

    const Table<int, QSize, DesktopScaling> cases{
        {1000, {1024, 768}, Centred}, {1000, {2000, 1000}, Fill}, {1000, {1440, 600}, Fit},
        {1000, {1440, 900}, Fit},     {1000, {2000, 900}, Fit},   {1000, {2000, 100}, Fit},
        {1000, {0, 0}, Centred},      {1234, {2000, 1000}, Fill}, {1001, {2000, 1000}, Fit},
        {1001, {10, 10}, Fit},        {1002, {10, 10}, Fill},     {1003, {2000, 1000}, Centred},
    };
    for (const auto &[setting, picture, scaling] : cases) {
        SCOPED_TRACE(::testing::Message()
                     << setting << ' ' << picture.width() << 'x' << picture.height());
        EXPECT_EQ(desktopScaling(picture, Screen, setting), scaling);
    }
    EXPECT_EQ(desktopScaling({0, 0}, {0, 0}, 1000), Fit) << "without a main screen";
    EXPECT_EQ(desktopSizeString(1001), text("fit to screen"));
    EXPECT_EQ(desktopSizeString(1234), text("unknown"));
}

TEST(RotationRules, shuffleKeepsAllAndTakesEachOrder)
{
    QList<int> numbers{0, 1, 2, 3};
    std::uint32_t next = 0;
    EXPECT_EQ(&shuffleArray(numbers, [&] { return next++; }), &numbers);
    EXPECT_EQ(numbers, (QList<int>{0, 2, 1, 3})); // j = 0, 1+1%3, 2+2%2, 3

    std::map<std::vector<int>, int> seen;
    for (std::uint32_t r = 0; r < 6; ++r) {
        std::vector<int> three{1, 2, 3};
        std::uint32_t call = 0;
        shuffleArray(three, [&] { return call++ == 0 ? r / 2 : r % 2; });
        ++seen[three];
    }
    EXPECT_EQ(seen.size(), 6u);
    QStringList none;
    EXPECT_TRUE(shuffleArray(none, [] { return 7u; }).isEmpty());
}

TEST(RotationRules, infoTextRoundsUp)
{
    const QDateTime now(QDate(2011, 7, 4), QTime(9, 30));

    const Table<int, const char *> cases{
        {61 * 60, "New desktop in 2 hours"},        {3600, "New desktop in 60 minutes"},
        {90, "New desktop in 2 minutes"},           {60, "New desktop in about 1 minute"},
        {45, "New desktop in about 1 minute"},      {-99, "New desktop in about 1 minute"},
        {24 * 3600, "New desktop in 24 hours"},     {3601, "New desktop in 2 hours"},
        {59 * 60 + 1, "New desktop in 60 minutes"},
    };
    for (const auto &[seconds, info] : cases)
        EXPECT_EQ(rotateInfoText(now.addSecs(seconds), now, true), text(info)) << seconds;
    EXPECT_EQ(rotateInfoText({}, now, true), text("Desktop set by System Prefs"));
    EXPECT_EQ(rotateInfoText({}, now, false), text("No desktop change scheduled"));
}

TEST(WatchRules, decideByWhatIsShown)
{
    using enum WatchAction;
    const QString a = text("/a.jpg");
    const QString b = text("/b.jpg");
    const QString none;

    const Table<const char *, WatchState, WatchAction> cases{
        {"unknown", {none, a, a, true, true, true}, None},
        {"folder", {text("/f/"), a, a, true, true, true}, ShowFolder},
        {"folder first", {text("/f/"), none, none, false, false, false}, ShowFolder},
        {"first", {a, none, none, true, true, true}, ShowFirst},
        {"another space", {b, a, a, true, false, true}, PutBack},
        {"main screen moved", {b, a, a, true, false, false}, Refresh},
        {"moved, all screens", {b, a, a, true, true, false}, PutBack},
        {"same, all spaces, other cell", {a, a, b, true, false, true}, None},
        {"same", {a, a, a, false, false, true}, None},
        {"same, other cell", {a, a, b, false, false, true}, Refresh},
        {"foreign", {b, a, b, false, true, true}, Refresh},
    };
    for (const auto &[what, state, action] : cases)
        EXPECT_EQ(watchAction(state), action) << what;
}

TEST(DockMenu, hasWhatCanBeDone)
{
    DockMenuState state{text("Sky"), text("July 4, 2011"), text("Moon"), text("info"), 30, true};
    using enum DockCommand;
    const QList<DockMenuItem> all{{text("Sky - July 4, 2011"), ShowDesktopInfo},
                                  {text("Moon"), ShowDesktopInfo},
                                  {{}, None},
                                  {text("info"), None},
                                  {text("Keep this desktop for 1 hour"), HoldForOneHour},
                                  {text("Change desktop now"), RotateDesktop},
                                  {text("Back to previous desktop"), PreviousDesktop}};
    EXPECT_EQ(dockMenuItems(state), all);
    state.rotateFrequency = 60;
    state.hasPrevious = false;
    EXPECT_EQ(dockMenuItems(state), all.first(4) + all.sliced(5, 1));
    for (QString DockMenuState::*field :
         {&DockMenuState::longSourceName, &DockMenuState::dateString,
          &DockMenuState::captionString}) {
        DockMenuState lacking = state;
        (lacking.*field).clear();
        EXPECT_TRUE(dockMenuItems(lacking).isEmpty());
    }
}

TEST(DockTile, hasTheIconInItsLowerLeftQuarter)
{
    EXPECT_FALSE(dockIconSide({3000, 1000}));
    EXPECT_FALSE(dockIconSide({1000, 2001}));
    EXPECT_EQ(dockIconSide({1600, 900}), 800);
    EXPECT_EQ(dockIconSide({2000, 1000}), 1000);
    EXPECT_FALSE(dockIconSide({}));

    QImage icon(8, 8, QImage::Format_ARGB32);
    icon.fill(Qt::red);
    QImage picture(160, 100, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    const QImage tile = composeDockTile(picture, icon);
    EXPECT_EQ(tile.size(), picture.size());
    EXPECT_EQ(tile.pixelColor(2, 97), QColor(Qt::red));
    EXPECT_EQ(tile.pixelColor(77, 22), QColor(Qt::red));
    EXPECT_EQ(tile.pixelColor(82, 97), QColor(Qt::blue));
    EXPECT_EQ(tile.pixelColor(2, 17), QColor(Qt::blue));
    EXPECT_EQ(composeDockTile(picture.scaled(300, 100), icon), icon);
}

} // namespace
