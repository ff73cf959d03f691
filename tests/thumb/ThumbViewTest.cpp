// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "thumb/CellState.h"
#include "thumb/ThumbCells.h"

namespace {

const QDateTime Now(QDate(2011, 7, 4), QTime(9, 30));

QImage picture(int width)
{
    return QImage(width, 1, QImage::Format_RGB32);
}

struct CellTest : ::testing::Test
{
    void SetUp() override
    {
        cells.createSpecialCells(Now);
        cells.addThumbView(u"Long A"_s, u"A"_s, Now);
        cells.addThumbView(u"Long B"_s, u"B"_s, Now);
    }

    ThumbCells cells{{picture(1), picture(2), picture(3)}, {}};
};

TEST_F(CellTest, buttonsFollowTheLink)
{
    const Table<int, const char *, bool, bool> cases{
        {1000, "http://x", true, true},   {1000, "", false, false}, {1000, "DELETED", false, false},
        {99, "/home/x.jpg", true, false}, {99, "", false, false},
    };
    for (const auto &[tag, url, shown, refresh] : cases) {
        ThumbView &cell = *cells.thumbForTag(tag);
        cell.startSpinner();
        cell.showThumbImage(picture(7), QString::fromLatin1(url));
        SCOPED_TRACE(url);
        EXPECT_EQ(cell.buttons().deleteBtn, shown);
        EXPECT_EQ(cell.buttons().infoButton, shown);
        EXPECT_EQ(cell.buttons().refreshButton, refresh);
        EXPECT_EQ(cell.buttons().newDesktopBtn, tag == 99);
        EXPECT_FALSE(cell.isSpinning());
        EXPECT_EQ(cell.imageView().width(), 7);
    }
}

TEST_F(CellTest, captionFieldAndCaptionAreTwoThings)
{
    ThumbView &cell = cells.at(0);
    cell.showCaption(u"SUNSET_OVER_THE_BAY &amp; MORE"_s);
    EXPECT_EQ(cell.captionString(), u"Sunset Over The Bay & More"_s);
    cell.setCaptionField(u"Looking up caption..."_s);
    EXPECT_EQ(cell.captionString(), u"Sunset Over The Bay & More"_s);
    cell.showCaption(u"Deleted."_s);
    EXPECT_EQ(cell.captionField(), u"Deleted.\n\nDouble-click to un-delete."_s);
}

TEST_F(CellTest, foreignDesktopIsEmptied)
{
    ThumbView &cell = cells.desktopThumb();
    cell.showSource(u"Long A"_s, u"A"_s);
    cell.showThumbImage(picture(7), u"http://x"_s);
    cell.prefsImage();
    EXPECT_EQ(cell.imageView().width(), 3);
    EXPECT_TRUE(cell.usedAsDesktop());
    EXPECT_TRUE((cell.longSourceName() + cell.thumbPath() + cell.captionField()).isEmpty());
    EXPECT_FALSE(cell.buttons().deleteBtn || cell.buttons().infoButton);
}

TEST_F(CellTest, lookUps)
{
    cells.at(1).setThumbPath(u"http://thumb"_s);
    cells.at(1).setPicPath(u"http://pic"_s);
    EXPECT_EQ(cells.thumbForTag(99), &cells.desktopThumb());
    EXPECT_EQ(cells.thumbForTag(1001), &cells.at(1));
    EXPECT_EQ(cells.thumbForTag(1002), nullptr);
    EXPECT_EQ(cells.thumbForSource(u"B"_s), &cells.at(1));
    EXPECT_EQ(cells.thumbForSource(u"Long B"_s), &cells.at(1));
    EXPECT_EQ(cells.thumbForSource(u"b"_s), nullptr);
    EXPECT_EQ(cells.thumbForThumbLink(u"http://thumb"_s), &cells.at(1));
    EXPECT_EQ(cells.thumbSourceForPic(u"http://pic"_s), u"Long B"_s);
    EXPECT_TRUE(cells.thumbSourceForPic(u"http://other"_s).isNull());
    cells.desktopThumb().showSource(u"Long B"_s, u"B"_s);
    cells.desktopThumb().showDate(u"July 4, 2011"_s);
    EXPECT_FALSE(cells.currentDesktopShowingInThumbs());
    cells.at(1).showDate(u"July 4, 2011"_s);
    EXPECT_TRUE(cells.currentDesktopShowingInThumbs());
    cells.at(0).setHidden(true);
    EXPECT_EQ(cells.visibleThumbs(), 1);
}

TEST_F(CellTest, tellsHowItsSearchEnded)
{
    using enum ThumbView::Search;
    const QString today = u"July 4, 2011"_s;
    const QString before = u"July 3, 2011"_s;
    const Table<ThumbView::Search, const char *, QImage, QString, CellState, const char *> cases{
        {None, "", {}, today, CellState::Waiting, ""},
        {Looking, "http://x", picture(7), today, CellState::Looking, ""},
        {None, "http://x", picture(7), today, CellState::Shown, ""},
        {None, "http://x", picture(7), before, CellState::Earlier,
         "Nothing on July\u00a04,\u00a02011"},
        {Failed, "http://x", picture(7), before, CellState::EarlierUnasked,
         "No answer for July\u00a04,\u00a02011"},
        {Nothing, "", picture(1), before, CellState::Nothing,
         "Nothing from this day to July\u00a04,\u00a02011"},
        {Failed, "", {}, before, CellState::Failed, "The picture service did not answer"},
        {None, "http://x", {}, today, CellState::Unreadable, "The picture could not be loaded"},
        {Failed, "DELETED", picture(2), today, CellState::Deleted, ""},
    };
    ThumbView &cell = cells.at(0);
    cell.setWantedDate(today);
    for (const auto &[search, url, image, date, state, text] : cases) {
        cell.setSearch(search);
        cell.showDate(date);
        const bool isBlank = image.width() == 1;
        cell.showThumbImage(isBlank ? cells.images().blank : image, QString::fromLatin1(url));
        cell.setCaptionField(ThumbView::lookingText());
        EXPECT_EQ(cellState(cell), state) << text;
        EXPECT_EQ(stateText(cell), QString::fromUtf8(text));
        EXPECT_EQ(shownCaption(cell).isEmpty(), search == Failed || search == Nothing);
        EXPECT_EQ(shownDate(cell), state == CellState::Failed ? today : date);
    }
}

TEST_F(CellTest, summaries)
{
    ThumbView &cell = cells.at(0);
    cell.showDate(u"July 4, 2011"_s);
    cell.showCaption(u"A %1 caption"_s);
    cell.setThumbPath(u"t"_s);
    cell.setPicPath(u"p"_s);
    cell.setParentPath(u"q"_s);
    EXPECT_EQ(cell.description(),
              u"1000: Long A (A) - July 4, 2011\nt\np\nq\nA %1 caption\nNot used as desktop"_s);
    EXPECT_EQ(cell.debugInfo(), u"Long A - July 4, 2011\n\tt\n\tp\n\tq\n"_s);
}

} // namespace
