// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "mainwindow/LargePicPlan.h"
#include "mainwindow/LargePicStepping.h"
#include "mainwindow/PicInfo.h"
#include "mainwindow/PictureSizeText.h"
#include "mainwindow/PictureZoom.h"
#include "mainwindow/StandardFrame.h"
#include "thumb/OriginalPage.h"

namespace {

TEST(LargePicPlan, whoIsShown)
{
    const QString p = u"/p/a.jpg"_s;
    using enum LargePicAnswer;
    const Table<LargePicWish, LargePicAnswer> cases{
        {{1000, false, 1, true, p}, Show}, // the folder concerns the desktop cell only
        {{1000, true, 1, false, p}, Nothing}, {{1000, true, 2, false, p}, Restore},
        {{99, true, 2, true, p}, Restore},    {{99, false, 2, true, {}}, DesktopSettings},
        {{99, false, 2, false, p}, Show},     {{98, false, 2, false, {}}, Nothing},
    };
    for (const auto &[wish, answer] : cases)
        EXPECT_EQ(answerTo(wish), answer) << wish.tag << wish.clickCount;
    const QString other = u"/usr/b.jpg"_s;
    EXPECT_EQ(planLargePic({{}, {}, u"Cap"_s, other, {}, false, true, u"/p/"_s}).title, u"b.jpg"_s);
    for (const char *path : {"/p/a.JPG", "http://x/a.JPG?w=1.5"})
        EXPECT_EQ(pictureExtension(QString::fromLatin1(path)), u"JPG"_s);
}

TEST(LargePicStepping, table)
{
    const auto grid = [](const char *text) { // "x": can be shown
        std::vector<bool> cells;
        for (; *text; ++text)
            cells.push_back(*text == 'x');
        return cells;
    };
    constexpr int None = -1;

    // cells, the desktop's too, position: the previous and the next one
    const Table<const char *, bool, int, int, int> cases{
        {"xxx", false, 1, 0, 2},      {"xxx", false, 0, 2, 1},  {"xxx", false, 2, 1, 0},
        {"xxx", true, 0, 99, 1},      {"xxx", true, 2, 1, 99},  {"xxx", true, 99, 2, 0},
        {"xxx", false, 99, 2, 0},     {"x--x", false, 0, 3, 3}, {"-x-x-", true, 3, 1, 99},
        {"-x-x-", true, 1, 99, 3},    {"--", true, 99, 99, 99}, {"--", false, 99, None, None},
        {"", false, 99, None, None},  {"", true, 99, 99, 99},   {"x--", false, 0, 0, 0},
        {"--", false, 0, None, None}, {"x", true, 99, 0, 0},
    };

    for (const auto &[shown, desktop, position, previous, next] : cases) {
        const StepCells cells{grid(shown), desktop, position};
        EXPECT_EQ(previousPosition(cells).value_or(None), previous) << shown << position;
        EXPECT_EQ(nextPosition(cells).value_or(None), next) << shown << position;
    }
    // As many cells as the position of the desktop cell: nothing goes round for ever.
    const StepCells many{std::vector<bool>(120, true), false, 100};
    EXPECT_EQ(previousPosition(many), 99);
    EXPECT_EQ(nextPosition({std::vector<bool>(120, true), false, 98}), 99);
    EXPECT_EQ(previousPosition({std::vector<bool>(99, true), false, 0}), 98);
}

TEST(PictureSizeText, table)
{
    const Table<qint64, const char *> sizes{
        {-1, ""},
        {0, ""},
        {999, "999 B"},
        {1000, "1.0 KB"},
        {1'023'999, "1000.0 KB"},
        {1'024'000, "1.0 MB"},
        {3'000'000'000, "2861.0 MB"},
    };
    for (const auto &[bytes, text] : sizes)
        EXPECT_EQ(prettyFileSize(bytes), QLatin1String(text)) << bytes;
    const QString n = u"A %1 name"_s;
    const QString kb = u"1.0 KB"_s;
    EXPECT_EQ(pictureSizeText(n, {1234567, 3}, kb), n + " (1234567 x 3 pixels, 1.0 KB)"_L1);
    EXPECT_EQ(pictureSizeText(n, {4, 3}, {}), n + " (4 x 3 pixels)"_L1);
    EXPECT_EQ(pictureSizeText(n, {}, kb), n + " (1.0 KB)"_L1);
    EXPECT_EQ(pictureSizeText(n, {}, {}), n);
}

TEST(StandardFrame, table)
{
    const QRect current(30, 40, 500, 400);
    const QRect all(0, 0, 1920, 1050);
    const QSize least(420, 380);
    EXPECT_EQ(standardFrame({}, current, least, all.size(), all), all);
    EXPECT_EQ(standardFrame({800, 600}, current, least, all.size(), all), QRect(30, 40, 834, 854));
    EXPECT_EQ(standardFrame({10, 10}, current, least, all.size(), all), QRect(30, 40, 420, 380));
    EXPECT_EQ(standardFrame({6000, 4000}, current, least, all.size(), all),
              QRect(30, 40, 1920, 1050));
}

TEST(PicInfo, textsAndLinks)
{
    EXPECT_TRUE(planInfo({}).lookUp);
    EXPECT_TRUE(planInfo(u"NEW"_s).isOld);
    EXPECT_TRUE(planInfo(u"NEW"_s).text.startsWith("This picture was"_L1));
    EXPECT_EQ(planInfo(u"a_b"_s).text, u"a b"_s);

    using enum LinkAction;
    const Table<const char *, LinkAction> links{
        {"http://x/#updatePODCaption", RefreshCaption},
        {"#updatePODCaption", RefreshCaption},
        {"https://x/y?z#w", OpenInBrowser},
        {"HTTP://X/", OpenInBrowser},
        {"http:", Nothing},
        {"httpx://y/", Nothing},
        {"file:///etc/passwd", Nothing},
        {"javascript:alert(1)", Nothing},
        {"mailto:a@b", Nothing},
        {"page.html", Nothing},
    };
    for (const auto &[link, action] : links)
        EXPECT_EQ(linkAction(QUrl(QString::fromLatin1(link))), action) << link;
    const QString file = u"http://w/File:a"_s;
    const QString page = u"http://w/a"_s;
    EXPECT_EQ(originalPage(u"Wiki"_s, file), file);
    EXPECT_EQ(originalPage(u"Wiki"_s, page), QString());
    EXPECT_EQ(originalPage(u"Other"_s, page), page);
}

TEST(PictureZoom, fitsZoomsAndStaysAtTheEdges)
{
    PictureZoom zoom{{4000, 3000}, {1034, 624}, {1000, 600}, {}, {0.5, 0.5}};
    EXPECT_EQ(zoom.target(), QRectF(117, 12, 800, 600));
    const QPointF point(317, 162); // a quarter into the picture
    zoom.zoomTo(1, point);
    EXPECT_EQ(zoom.target(), QRectF(317 - 1000, 162 - 750, 4000, 3000));
    zoom.moveBy({5000, 10});
    EXPECT_EQ(zoom.target().topLeft(), QPointF(0, 162 - 750 + 10));
    zoom.moveBy({-1, 0}); // at once, however far beyond the edge the hand was
    EXPECT_EQ(zoom.target().x(), -1);
    zoom.zoomTo(100, {});
    EXPECT_EQ(zoom.shownScale(), PictureZoom::LargestScale);
    zoom.zoomTo(0.1, {});
    EXPECT_FALSE(zoom.scale);
    zoom.picture = {30, 20};
    EXPECT_EQ(zoom.shownScale(), 1) << "a small picture is not enlarged";
}

} // namespace
