// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/XfceBackdrops.h"

#include "support/Test.h"

namespace {

const QString Dp = u"DP-1"_s;

QVariantMap with(std::initializer_list<std::pair<QString, QVariant>> list)
{
    QVariantMap map;
    for (const auto &[key, value] : list)
        map[key] = value;
    return map;
}

TEST(XfceBackdrops, readTheEntryThatIsShown)
{
    const QVariant no(false), yes(true);
    const QString mode = u"/backdrop/single-workspace-mode"_s;
    const QString number = u"/backdrop/single-workspace-number"_s;
    const std::pair<QString, QVariant> first{xfce::property(Dp, 0, "last-image"), u"/a b"_s};
    const std::pair<QString, QVariant> second{xfce::property(Dp, 1, "last-image"), u"/c"_s};
    const QString cycle = xfce::property(Dp, 1, "backdrop-cycle-enable");

    const Table<QVariantMap, int, const char *> table{
        {with({first, second}), 1, "file://localhost/a%20b"}, // one for all is the default
        {with({first, second, {mode, yes}, {number, 1}}), 0, "file://localhost/c"},
        {with({first, second, {mode, no}}), 1, "file://localhost/c"},
        {with({first, second, {mode, no}, {cycle, yes}}), 1, "file://localhost/"},
        {with({first, second, {mode, no}, {cycle, no}}), 1, "file://localhost/c"},
        {with({first, second, {mode, no}}), 2, ""},
        {with({first, second, {number, -5}}), 2, "file://localhost/a%20b"},
        {{}, 0, ""},
    };
    for (const auto &[properties, current, url] : table)
        EXPECT_EQ(xfce::imageUrl(properties, Dp, current), QLatin1String(url));
}

TEST(XfceBackdrops, changeOnlyWhatDiffersAndTheShownFirst)
{
    const QString path = u"/p"_s;
    QVariantMap properties{{u"/backdrop/single-workspace-mode"_s, false}};
    const auto all = xfce::changesFor(properties, Dp, {3, 1}, path, DesktopScaling::Fit);
    ASSERT_EQ(all.size(), 6);
    EXPECT_EQ(all[0], (xfce::Change{xfce::property(Dp, 1, "image-style"), 4}));
    EXPECT_EQ(all[1], (xfce::Change{xfce::property(Dp, 1, "last-image"), path}));
    EXPECT_EQ(all[5].property, xfce::property(Dp, 2, "last-image"));

    for (const xfce::Change &change : all)
        properties[change.property] = change.value;
    EXPECT_TRUE(xfce::changesFor(properties, Dp, {3, 1}, path, DesktopScaling::Fit).isEmpty());
    const auto restyled = xfce::changesFor(properties, Dp, {1, 0}, path, DesktopScaling::Centred);
    ASSERT_EQ(restyled.size(), 1);
    EXPECT_EQ(restyled[0].value, QVariant(1));
    EXPECT_EQ(xfce::changesFor({}, Dp, {1 << 30, 0}, path, DesktopScaling::Fill).size(), 128);
}

} // namespace
