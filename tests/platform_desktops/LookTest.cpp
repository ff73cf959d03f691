// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "platform/linux/desktops/LookRules.h"

namespace {

QMap<QString, QVariantMap> portal(const char *space, const char *key, const QVariant &value)
{
    return {{QString::fromLatin1(space), {{QString::fromLatin1(key), value}}}};
}

TEST(LookTest, heedsEveryPlace)
{
    const char *gnome = "org.gnome.desktop.interface";
    const char *kde = "org.kde.kdeglobals.KDE";
    const char *common = "org.freedesktop.appearance";
    const Table<LookReading, bool, std::optional<bool>> cases{
        {LookReading{}, false, std::nullopt},
        {{true, u"default"_s, u"1"_s, {}}, false, false},
        {{false, u"prefer-dark"_s, {}, {}}, true, true},
        {{{}, {}, u"0"_s, {}}, true, {}},
        {{{}, {}, u"fast"_s, {}}, false, {}},
        {{true, {}, {}, portal(gnome, "enable-animations", false)}, true, {}},
        {{{}, {}, {}, portal(kde, "AnimationDurationFactor", u"0"_s)}, true, {}},
        {{{}, {}, {}, portal(common, "reduced-motion", 1U)}, true, {}},
        {{{}, u"prefer-dark"_s, {}, portal(common, "color-scheme", 2U)}, false, false},
        {{{}, u"prefer-dark"_s, {}, portal(common, "color-scheme", 0U)}, false, {}},
        {{{}, {}, {}, portal(common, "color-scheme", 1U)}, false, true},
    };
    int row = 0;
    for (const auto &[reading, still, dark] : cases)
        EXPECT_EQ(lookFrom(reading), (DesktopLook{still, dark})) << row++;
}

} // namespace
