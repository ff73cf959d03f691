// SPDX-License-Identifier: MIT
#include "support/FakeThumbnails.h"
#include "support/Wait.h"

#include "browser/BrowserModel.h"
#include "browser/ImageBrowserView.h"
#include "browser/ImageDelegate.h"
#include "browser/ThumbnailQueue.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

namespace moravel {
namespace {

ShownRows rows(int count)
{
    auto data = std::make_shared<BrowserData>();
    ShownRows shown{data, {}};
    for (int i = 0; i < count; ++i) {
        data->rows.push_back(
            {{}, QStringLiteral("/p/%1.jpg").arg(i), QStringLiteral("Title %1").arg(i), {}});
        shown.rows.push_back(i);
    }
    return shown;
}

class ViewTest : public ::testing::Test
{
protected:
    ViewTest()
    {
        view.setModel(&model);
        view.resize(700, 500);
        model.setRows(rows(100));
        view.show();
        view.setFocus();
    }

    int columns() const { return view.grid().columns(); }

    QPoint middle(int index) const { return view.visualRect(model.index(index)).center(); }

    testing::FakeThumbnails thumbnails;
    ThumbnailQueue queue{thumbnails, 1 << 20};
    BrowserModel model{queue};
    ImageBrowserView view{new ImageDelegate({})};
};

TEST_F(ViewTest, modelIsConsistent)
{
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.append(
        {MyImageObject(QStringLiteral("/q/a.jpg")), MyImageObject(QStringLiteral("/q/b.jpg"))});
    model.remove({0, 2, 100});
    EXPECT_EQ(model.rowCount(), 99);
    EXPECT_EQ(model.itemAtIndex(1).imageTitle(), u"Title 3");
    EXPECT_EQ(model.itemAtIndex(98).imageUID(), u"/q/b.jpg");
    EXPECT_EQ(model.rowAt(98), nullptr);
    model.setRows(rows(5));
    model.setRows({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ViewTest, keysMoveThroughTheWholeGrid)
{
    ASSERT_EQ(columns(), 3);
    view.setCurrentIndex(model.index(0));

    const struct
    {
        Qt::Key key;
        int current;
    } steps[] = {{Qt::Key_Left, 0},  {Qt::Key_Right, 1}, {Qt::Key_Down, 4}, {Qt::Key_Up, 1},
                 {Qt::Key_Up, 1},    {Qt::Key_End, 99},  {Qt::Key_Up, 96},  {Qt::Key_Right, 97},
                 {Qt::Key_Down, 99}, {Qt::Key_Down, 99}, {Qt::Key_Home, 0}, {Qt::Key_PageDown, 6},
                 {Qt::Key_PageUp, 0}};

    for (const auto &step : steps) {
        QTest::keyClick(&view, step.key);
        EXPECT_EQ(view.currentIndex().row(), step.current) << step.key;
        EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
    }
    view.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_EQ(view.currentIndex().row(), 1);
    EXPECT_LT(middle(1).x(), middle(0).x());
    EXPECT_EQ(view.indexAt(middle(1)).row(), 1);
}

TEST_F(ViewTest, selectsByKeysClicksAndRubberBand)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle(1));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, middle(3));
    EXPECT_EQ(view.selectedItems(), (QList<int>{1, 2, 3})); // as one reads, not the rectangle
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, middle(2));
    EXPECT_EQ(view.selectedItems(), (QList<int>{1, 3}));
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selectedItems().size(), 100);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {1, 1});
    EXPECT_EQ(view.selectedItems().size(), 0);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, {1, 1});
    QTest::mouseMove(view.viewport(), QPoint(40, 40));
    QTest::mouseMove(view.viewport(), middle(4));
    EXPECT_EQ(view.selectedItems(), (QList<int>{0, 1, 3, 4}));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, middle(4));
    EXPECT_EQ(view.selectedItems(), (QList<int>{0, 1, 3, 4}));
}

TEST_F(ViewTest, placeStaysWhenCellsMove)
{
    view.verticalScrollBar()->setValue(2000);
    const int first = view.visibleItems().first;
    view.setZoomValue(0.8);
    EXPECT_LE(view.visibleItems().first, first);
    EXPECT_GE(view.visibleItems().last, first);
    view.resize(1400, 500);
    EXPECT_LE(view.visibleItems().first, first);
    EXPECT_GE(view.visibleItems().last, first);
    view.verticalScrollBar()->setValue(0);
    view.setZoomValue(0);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(ViewTest, saysWhatTheUserWants)
{
    QSignalSpy open(&view, &ImageBrowserView::openWanted);
    QSignalSpy typed(&view, &ImageBrowserView::typed);
    QSignalSpy dropped(&view, &ImageBrowserView::dropped);
    QTest::keyClick(&view, Qt::Key_Return);
    QTest::keyClick(&view, Qt::Key_M);
    QTest::keyClick(&view, Qt::Key_Escape);
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(open.size(), 1);
    ASSERT_EQ(typed.size(), 1);
    EXPECT_EQ(typed[0][0].toString(), QStringLiteral("m"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/x/a b.jpg")),
                  QUrl(QStringLiteral("http://x/b.jpg"))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &drop);
    ASSERT_EQ(dropped.size(), 1);
    EXPECT_EQ(dropped[0][0].toStringList(), QStringList{QStringLiteral("/x/a b.jpg")});
}

TEST_F(ViewTest, thumbnailsAreGivenUpWhenScrolledAwayAndForgottenBeyondTheMemory)
{
    const auto path = [](int i) { return QStringLiteral("/p/%1.jpg").arg(i); };
    QStringList wanted;
    for (int i = 0; i < 20; ++i)
        wanted.append(path(i));
    queue.want(wanted, {200, 150});
    const auto atOnce = thumbnails.waiting().size();
    EXPECT_GT(atOnce, 1);
    EXPECT_LT(atOnce, 20);
    thumbnails.deliver();
    EXPECT_TRUE(model.data(model.index(0), Qt::DecorationRole).isValid());
    queue.want({path(50), path(2)}, {200, 150});
    EXPECT_EQ(thumbnails.waiting(), (QStringList{path(2), path(50)}));
    queue.want({path(0)}, {400, 300}); // larger ones are wanted: the old one serves meanwhile
    EXPECT_EQ(thumbnails.waiting(), QStringList{path(0)});
    EXPECT_TRUE(queue.thumbnail(path(0)));
    for (int i = 1; i < 20; ++i) {
        queue.want({path(i)}, {400, 300}); // 480,000 bytes each
        while (thumbnails.deliver()) { }
    }
    EXPECT_FALSE(queue.thumbnail(path(0)));
    EXPECT_TRUE(queue.thumbnail(path(19)));
    queue.want({QStringLiteral("/p/bad.jpg")}, {400, 300});
    while (thumbnails.deliver()) { }
    queue.want({QStringLiteral("/p/bad.jpg")}, {200, 150}); // is not asked for again
    EXPECT_TRUE(thumbnails.waiting().isEmpty());
}

TEST_F(ViewTest, whoScrollsIsLeftAProcessorUntilTheViewRests)
{
    const auto screenAt = [](int first) {
        QStringList paths;
        for (int i = first; i < first + 9; ++i)
            paths.append(QStringLiteral("/p/%1.jpg").arg(i));
        return paths;
    };
    qsizetype atOnce = 0;
    for (int page = 0; page < 2; ++page) {
        queue.want(screenAt(10 * page), {200, 150});
        atOnce = thumbnails.waiting().size();
        EXPECT_GE(atOnce, thumbnails.atOnce()) << "whole pages come at full speed";
    }
    for (int row = 0; row < 3; ++row)
        queue.want(screenAt(100 + 10 * row), {200, 150});
    EXPECT_EQ(thumbnails.waiting(), QStringList{screenAt(120).first()});
    thumbnails.deliver();
    EXPECT_EQ(thumbnails.waiting().size(), 1);
    queue.want(screenAt(120), {200, 150}); // the same ones: nothing moves
    EXPECT_TRUE(testing::waitFor([&] { return thumbnails.waiting().size() == atOnce; }));
}

} // namespace
} // namespace moravel
