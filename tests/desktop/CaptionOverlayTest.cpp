// SPDX-License-Identifier: MIT
#include "desktop/CaptionOverlay.h"

#include "DesktopWorld.h"

#include "desktop/CaptionDrawing.h"

namespace {

TEST(CaptionOverlay, fontFillsAQuarterOfTheWidth)
{
    // perPoint: Width of the text at one point.
    const Table<const char *, int, double, double, double> cases{
        {"fits at once", 1600, 25, 16, 16},
        {"shrinks into the band", 1600, 40, 10, 10},
        {"grows into the band", 1600, 10, 38, 38},
        {"floor", 400, 100, 6, 5},
        {"jumps over the band growing", 4000, 51.5, 19, 19},
        {"jumps over the band shrinking", 2400, 90, 6, 7},
        {"no picture", 0, 10, 6, 5},
        {"no text", 1600, 0, 16, 16},
    };
    for (const auto &[what, width, perPoint, size, lastCandidate] : cases) {
        SCOPED_TRACE(what);
        const FittedFont font =
            fitFont(width, [&](double points) { return QSizeF(points * perPoint, 3 * points); });
        EXPECT_EQ(font.size, size);
        EXPECT_EQ(font.lastCandidate, lastCandidate);
        EXPECT_EQ(font.text.height(), 3 * size);
    }
}

TEST(CaptionOverlay, copyLandsInTheSupportFolder)
{
    const auto path = [](const char *picture, const char *dataFile) {
        return overlayPath(QString::fromLatin1(picture), QString::fromLatin1(dataFile));
    };
    EXPECT_EQ(path("/x/photo.jpg", "/s/Moravel/Moravel2.txt"), u"/s/Moravel/photo.png");
    EXPECT_EQ(path("/x/photo", "/s/Moravel2.txt"), u"/s/photo");
    EXPECT_EQ(path("/x/a.jpg.jpg", "/my.jpgs/Moravel2.txt"), u"/my.pngs/a.png.png");
}

TEST(CaptionOverlay, writesTheTextsAndSetsTheCopy)
{
    DesktopWorld world;
    world.pixelSize = {400, 300};
    ThumbView &cell = world.cell(u"sky"_s, u"moon.jpg"_s);
    cell.showCaption(u"The moon"_s);
    world.desktop->addTextToDesktop(world.pictureFolder() + u"moon.jpg"_s, cell);
    world.deliver();
    const QString copy = world.home.path(u"data/Moravel/moon.png"_s);
    EXPECT_TRUE(TempHome::read(copy).startsWith("\x89PNG"));
    EXPECT_EQ(world.desktop->currentDesktopPath(), copy);

    QImage picture(400, 300, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::gray);
    drawCaption(picture, u"WWW\nWWW"_s, 20, {10, 20});
    const auto has = [&picture](QRect area, auto test) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (test(picture.pixelColor(x, y).lightness()))
                    return true;
            }
        }
        return false;
    };
    const QRect block(10, 20, 80, 60);
    EXPECT_TRUE(has(block, [](int light) { return light > 240; }));
    EXPECT_TRUE(has(block, [](int light) { return light < 60; }));
    EXPECT_FALSE(has({0, 150, 400, 150}, [](int light) { return light > 200 || light < 100; }));
}

} // namespace
