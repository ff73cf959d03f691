// SPDX-License-Identifier: MIT
#include "mainwindow/LargePicPlan.h"
#include "mainwindow/LargePicStepping.h"
#include "mainwindow/PicInfo.h"
#include "mainwindow/PictureSizeText.h"
#include "mainwindow/PictureZoom.h"
#include "mainwindow/StandardFrame.h"
#include "thumb/OriginalPage.h"

#include <gtest/gtest.h>

namespace moravel {
namespace {

TEST(LargePicPlan, whoIsShown)
{
    const QString p = QStringLiteral("/p/a.jpg");

    const struct
    {
        LargePicWish wish;
        LargePicAnswer answer;
    } cases[] = {
        {{1000, false, 1, true, p},
         LargePicAnswer::Show}, // the folder concerns the desktop cell only
        {{1000, true, 1, false, p}, LargePicAnswer::Nothing},
        {{1000, true, 2, false, p}, LargePicAnswer::Restore},
        {{99, true, 2, true, p}, LargePicAnswer::Restore},
        {{99, false, 2, true, {}}, LargePicAnswer::DesktopSettings},
        {{99, false, 2, false, p}, LargePicAnswer::Show},
        {{98, false, 2, false, {}}, LargePicAnswer::Nothing},
    };

    for (const auto &c : cases)
        EXPECT_EQ(answerTo(c.wish), c.answer) << c.wish.tag << c.wish.clickCount;
}

TEST(LargePicPlan, whatIsShown)
{
    const QString own = QStringLiteral("/p/a.jpg");
    const QString other = QStringLiteral("/usr/b.jpg");
    const QString name = QStringLiteral("b.jpg");
    const QString title = QStringLiteral("Long - July 4, 2011");
    const auto facts = [](const QString &path, const QString &large, bool downloading = false,
                          bool isImage = true) {
        return LargePicFacts{QStringLiteral("Long"),
                             QStringLiteral("July 4, 2011"),
                             QStringLiteral("Cap"),
                             path,
                             large,
                             downloading,
                             isImage,
                             QStringLiteral("/p/")};
    };
    const QString cap = QStringLiteral("Cap");
    // title, picture, caption, isOwn, cantShow, progress, info
    EXPECT_EQ(planLargePic(facts(own, own)),
              (LargePicPlan{title, own, cap, true, false, false, true}));
    EXPECT_EQ(planLargePic(facts(own, {})), (LargePicPlan{title, {}, cap})) << "download began";
    EXPECT_EQ(planLargePic(facts(own, own, true)),
              (LargePicPlan{title, {}, cap, true, false, true, true}));
    EXPECT_EQ(planLargePic(facts(own, own, false, false)),
              (LargePicPlan{title, {}, cap, true, true, false, true}));
    EXPECT_EQ(planLargePic(facts(other, other)), (LargePicPlan{name, other, name, false}));
    LargePicFacts bare = facts(other, {});
    bare.longSourceName.clear();
    bare.dateString.clear();
    EXPECT_EQ(planLargePic(bare).title, name);
    for (const char *path : {"/p/a.JPG", "http://x/a.JPG?w=1.5"})
        EXPECT_EQ(pictureExtension(QString::fromLatin1(path)), QStringLiteral("JPG"));
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

    const struct
    {
        const char *cells;
        bool desktop;
        int position;
        int previous;
        int next;
    } cases[] = {
        {"xxx", false, 1, 0, 2},      {"xxx", false, 0, 2, 1},  {"xxx", false, 2, 1, 0},
        {"xxx", true, 0, 99, 1},      {"xxx", true, 2, 1, 99},  {"xxx", true, 99, 2, 0},
        {"xxx", false, 99, 2, 0},     {"x--x", false, 0, 3, 3}, {"-x-x-", true, 3, 1, 99},
        {"-x-x-", true, 1, 99, 3},    {"--", true, 99, 99, 99}, {"--", false, 99, None, None},
        {"", false, 99, None, None},  {"", true, 99, 99, 99},   {"x--", false, 0, 0, 0},
        {"--", false, 0, None, None}, {"x", true, 99, 0, 0},
    };

    for (const auto &c : cases) {
        const StepCells cells{grid(c.cells), c.desktop, c.position};
        EXPECT_EQ(previousPosition(cells).value_or(None), c.previous) << c.cells << c.position;
        EXPECT_EQ(nextPosition(cells).value_or(None), c.next) << c.cells << c.position;
    }
    // As many cells as the position of the desktop cell: nothing goes round for ever.
    const StepCells many{std::vector<bool>(120, true), false, 100};
    EXPECT_EQ(previousPosition(many), 99);
    EXPECT_EQ(nextPosition({std::vector<bool>(120, true), false, 98}), 99);
    EXPECT_EQ(previousPosition({std::vector<bool>(99, true), false, 0}), 98);
}

TEST(PictureSizeText, table)
{
    const struct
    {
        qint64 bytes;
        const char *text;
    } sizes[] = {{-1, ""},
                 {0, ""},
                 {999, "999 B"},
                 {1000, "1.0 KB"},
                 {1536, "1.5 KB"},
                 {1'023'999, "1000.0 KB"},
                 {1'024'000, "1.0 MB"},
                 {1'048'576, "1.0 MB"},
                 {3'000'000'000, "2861.0 MB"}};

    for (const auto &size : sizes)
        EXPECT_EQ(prettyFileSize(size.bytes), QLatin1String(size.text)) << size.bytes;
    const QString n = QStringLiteral("A %1 name");
    const QString kb = QStringLiteral("1.0 KB");
    EXPECT_EQ(pictureSizeText(n, {1234567, 3}, kb),
              n + QLatin1String(" (1234567 x 3 pixels, 1.0 KB)"));
    EXPECT_EQ(pictureSizeText(n, {4, 3}, {}), n + QLatin1String(" (4 x 3 pixels)"));
    EXPECT_EQ(pictureSizeText(n, {}, kb), n + QLatin1String(" (1.0 KB)"));
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
    EXPECT_TRUE(planInfo(QStringLiteral("NEW")).isOld);
    EXPECT_TRUE(planInfo(QStringLiteral("NEW")).text.startsWith(QLatin1String("This picture was")));
    EXPECT_EQ(planInfo(QStringLiteral("a_b")).text, QStringLiteral("a b"));

    const struct
    {
        const char *link;
        LinkAction action;
    } links[] = {{"http://x/#updatePODCaption", LinkAction::RefreshCaption},
                 {"#updatePODCaption", LinkAction::RefreshCaption},
                 {"https://x/y?z#w", LinkAction::OpenInBrowser},
                 {"HTTP://X/", LinkAction::OpenInBrowser},
                 {"http:", LinkAction::Nothing},
                 {"httpx://y/", LinkAction::Nothing},
                 {"file:///etc/passwd", LinkAction::Nothing},
                 {"javascript:alert(1)", LinkAction::Nothing},
                 {"mailto:a@b", LinkAction::Nothing},
                 {"page.html", LinkAction::Nothing}};

    for (const auto &link : links)
        EXPECT_EQ(linkAction(QUrl(QString::fromLatin1(link.link))), link.action) << link.link;
    const QString file = QStringLiteral("http://w/File:a");
    const QString page = QStringLiteral("http://w/a");
    EXPECT_EQ(originalPage(QStringLiteral("Wiki"), file), file);
    EXPECT_EQ(originalPage(QStringLiteral("Wiki"), page), QString());
    EXPECT_EQ(originalPage(QStringLiteral("Other"), page), page);
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
} // namespace moravel
