// SPDX-License-Identifier: MIT
#include "thumb/ThumbCells.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace moravel {
namespace {

const QDateTime Now(QDate(2011, 7, 4), QTime(9, 30));

QImage picture(int width)
{
    return QImage(width, 1, QImage::Format_RGB32);
}

class CellTest : public ::testing::Test
{
protected:
    ThumbCommands commands()
    {
        const auto note = [this](const char *name) {
            return [this, name](ThumbView &cell) {
                done.append(QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(cell.tag()));
            };
        };
        return {note("setAsDesktop"),
                note("showLargePic"),
                note("showInFinder"),
                note("refreshData"),
                note("refreshCaption"),
                {},
                {},
                {}};
    }

    void SetUp() override
    {
        cells.createSpecialCells(Now);
        cells.addThumbView(QStringLiteral("Long A"), QStringLiteral("A"), Now);
        cells.addThumbView(QStringLiteral("Long B"), QStringLiteral("B"), Now);
    }

    QStringList done;
    ThumbCells cells{{picture(1), picture(2), picture(3)}, commands()};
};

TEST_F(CellTest, buttonsFollowTheLink)
{
    const struct
    {
        int tag;
        const char *url;
        bool shown;
        bool refresh;
    } cases[] = {
        {1000, "http://x", true, true},   {1000, "", false, false}, {1000, "DELETED", false, false},
        {99, "/home/x.jpg", true, false}, {99, "", false, false},
    };

    for (const auto &c : cases) {
        ThumbView &cell = *cells.thumbForTag(c.tag);
        cell.startSpinner();
        cell.showThumbImage(picture(7), QString::fromLatin1(c.url));
        SCOPED_TRACE(c.url);
        EXPECT_EQ(cell.buttons().deleteBtn, c.shown);
        EXPECT_EQ(cell.buttons().infoButton, c.shown);
        EXPECT_EQ(cell.buttons().refreshButton, c.refresh);
        EXPECT_EQ(cell.buttons().newDesktopBtn, c.tag == 99);
        EXPECT_FALSE(cell.isSpinning());
        EXPECT_EQ(cell.imageView().width(), 7);
    }
}

TEST_F(CellTest, onlyDoubleClicksAct)
{
    ThumbView &grid = cells.at(1);
    grid.setThumbAsDesktop(1);
    grid.refreshCaption(1);
    EXPECT_TRUE(done.isEmpty());
    grid.setThumbAsDesktop(2);
    cells.desktopThumb().setThumbAsDesktop(2);
    grid.refreshCaption(3);
    grid.setCaptionField(QStringLiteral("Looking for new pic..."));
    grid.refreshCaption(2);
    grid.showThumbLarge();
    EXPECT_EQ(
        done.join(u','),
        QStringLiteral("setAsDesktop 1001,showLargePic 99,refreshCaption 1001,showLargePic 1001"));
}

TEST_F(CellTest, captionFieldAndCaptionAreTwoThings)
{
    ThumbView &cell = cells.at(0);
    cell.showCaption(QStringLiteral("SUNSET_OVER_THE_BAY &amp; MORE"));
    EXPECT_EQ(cell.captionString(), QStringLiteral("Sunset Over The Bay & More"));
    cell.setCaptionField(QStringLiteral("Looking up caption..."));
    EXPECT_EQ(cell.captionString(), QStringLiteral("Sunset Over The Bay & More"));
    cell.showCaption(QStringLiteral("Deleted."));
    EXPECT_EQ(cell.captionField(), QStringLiteral("Deleted.\n\nDouble-click to un-delete."));
}

TEST_F(CellTest, foreignDesktopIsEmptied)
{
    ThumbView &cell = cells.desktopThumb();
    cell.showSource(QStringLiteral("Long A"), QStringLiteral("A"));
    cell.showThumbImage(picture(7), QStringLiteral("http://x"));
    cell.prefsImage();
    EXPECT_EQ(cell.imageView().width(), 3);
    EXPECT_TRUE(cell.usedAsDesktop());
    EXPECT_TRUE((cell.longSourceName() + cell.thumbPath() + cell.captionField()).isEmpty());
    EXPECT_FALSE(cell.buttons().deleteBtn || cell.buttons().infoButton);
}

TEST_F(CellTest, toolTips)
{
    EXPECT_EQ(cells.desktopThumb().toolTips().clicker,
              QStringLiteral("Double-click to set as desktop."));
    cells.desktopThumb().showToolTips();
    cells.at(0).showToolTips();
    EXPECT_TRUE(cells.desktopThumb().toolTips().clicker.isEmpty());
    EXPECT_EQ(cells.at(0).toolTips().clicker, QStringLiteral("Double-click to set as desktop."));
    EXPECT_EQ(cells.at(0).toolTips().refreshButton,
              QStringLiteral("Refresh the data for this pic."));
    cells.at(0).hideToolTips();
    EXPECT_TRUE(cells.at(0).toolTips().refreshButton.isEmpty());
}

TEST_F(CellTest, lookUps)
{
    cells.at(1).setThumbPath(QStringLiteral("http://thumb"));
    cells.at(1).setPicPath(QStringLiteral("http://pic"));
    EXPECT_EQ(cells.thumbForTag(99), &cells.desktopThumb());
    EXPECT_EQ(cells.thumbForTag(1001), &cells.at(1));
    EXPECT_EQ(cells.thumbForTag(1002), nullptr);
    EXPECT_EQ(cells.thumbForSource(QStringLiteral("B")), &cells.at(1));
    EXPECT_EQ(cells.thumbForSource(QStringLiteral("Long B")), &cells.at(1));
    EXPECT_EQ(cells.thumbForSource(QStringLiteral("b")), nullptr);
    EXPECT_EQ(cells.thumbForThumbLink(QStringLiteral("http://thumb")), &cells.at(1));
    EXPECT_EQ(cells.thumbSourceForPic(QStringLiteral("http://pic")), QStringLiteral("Long B"));
    EXPECT_TRUE(cells.thumbSourceForPic(QStringLiteral("http://other")).isNull());
    cells.desktopThumb().showSource(QStringLiteral("Long B"), QStringLiteral("B"));
    cells.desktopThumb().showDate(QStringLiteral("July 4, 2011"));
    EXPECT_FALSE(cells.currentDesktopShowingInThumbs());
    cells.at(1).showDate(QStringLiteral("July 4, 2011"));
    EXPECT_TRUE(cells.currentDesktopShowingInThumbs());
    cells.at(0).setHidden(true);
    EXPECT_EQ(cells.visibleThumbs(), 1);
}

TEST_F(CellTest, summaries)
{
    ThumbView &cell = cells.at(0);
    cell.showDate(QStringLiteral("July 4, 2011"));
    cell.showCaption(QStringLiteral("A %1 caption"));
    cell.setThumbPath(QStringLiteral("t"));
    cell.setPicPath(QStringLiteral("p"));
    cell.setParentPath(QStringLiteral("q"));
    EXPECT_EQ(cell.description(),
              QStringLiteral(
                  "1000: Long A (A) - July 4, 2011\nt\np\nq\nA %1 caption\nNot used as desktop"));
    EXPECT_EQ(cell.debugInfo(), QStringLiteral("Long A - July 4, 2011\n\tt\n\tp\n\tq\n"));
}

} // namespace
} // namespace moravel
