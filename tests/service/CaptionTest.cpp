// SPDX-License-Identifier: MIT
#include "World.h"

#include <gtest/gtest.h>

namespace moravel {
namespace {

using namespace testing;

struct Window : LargePicPort
{
    bool isVisible() const override { return visible; }

    QString currentLargePicPath() const override { return {}; }

    bool isShowing(const ThumbView &) const override { return true; }

    void showLargePic(ThumbView &) override { calls += u's'; }

    void showLookingForInfo() override { calls += u'l'; }

    void showProgress(std::optional<float>, const QString &) override { }

    void hideProgress() override { }

    void hideCantShow() override { }

    void displayPicFile(const QString &) override { }

    bool visible = true;
    QString calls;
};

class CaptionLookUp : public ::testing::Test
{
protected:
    CaptionLookUp()
    {
        world.ports.reloadDeletedPic = [this](ThumbView &) { ++restored; };
        world.startPass();
        world.ports.largePic = &window;
        world.http.requests.clear();
    }

    CaptionRefresh &refresh() { return world.service->captionRefresh(); }

    static ThumbView &added(World &to)
    {
        to.addSources({QStringLiteral("A")});
        return to.cell(0);
    }

    World world;
    Window window;
    ThumbView &cell = added(world);
    int restored = 0;
};

TEST_F(CaptionLookUp, TakesWhatTheServiceSays)
{
    const QString before = cell.captionString();

    const struct
    {
        FakeHttp::Answer answer;
        QString label;
        QString info;
        QString storedInfo;
    } rows[] = {
        {{{}, 500}, before, QStringLiteral("NEW"), QStringLiteral("Info A-7-4-2011")},
        {{"\xff\xfe\nx"}, before, QStringLiteral("NEW"), QStringLiteral("Info A-7-4-2011")},
        {{" NEW_CAPTION\nText  of\r it \nmore "},
         QStringLiteral("New Caption"),
         QStringLiteral("Text  of\r it "),
         QStringLiteral("Text of it ")},
        {{"One line"},
         QStringLiteral("One line"),
         QStringLiteral("NEW"),
         QStringLiteral("Text of it ")},
    };

    for (const auto &row : rows) {
        world.file = [&row](const QString &) { return row.answer; };
        window.calls.clear();
        refresh().implementRefreshCaption(cell);
        refresh().implementRefreshCaption(cell); // once more while it looks: nothing
        EXPECT_EQ(cell.captionField(), QStringLiteral("Looking up caption..."));
        EXPECT_EQ(window.calls, QStringLiteral("l"));
        world.run(0.9);
        EXPECT_TRUE(world.http.requests.isEmpty()) << "the notice is shown first";
        world.run(0.2);
        EXPECT_EQ(
            world.http.requests.value(0).url.toString(),
            QStringLiteral("http://service/potd/defs/moravel.irev?option=captionPlusText&source=A"
                           "&date=7/4/2011&refresh=true"));
        EXPECT_EQ(cell.captionField(), row.label);
        EXPECT_EQ(cell.infoString(), row.info);
        EXPECT_EQ(world.records().value(0).section(u'\t', 6), row.storedInfo);
        EXPECT_EQ(window.calls, QStringLiteral("ls"));
        EXPECT_EQ(world.http.requests.size(), 1);
        world.http.requests.clear();
    }
    EXPECT_EQ(world.records().value(0).section(u'\t', 5, 5), QStringLiteral("One line"));
}

TEST_F(CaptionLookUp, IsForThePictureThatItBeganWith)
{
    window.visible = false;
    refresh().implementRefreshCaption(cell);
    cell.showDate(QStringLiteral("July 3, 2011"));
    world.run(2);
    EXPECT_TRUE(world.http.requests.isEmpty());
    EXPECT_EQ(window.calls, QString());

    cell.setThumbPath(ThumbView::deletedMark());
    refresh().implementRefreshCaption(cell);
    EXPECT_EQ(restored, 1);
    EXPECT_TRUE(world.http.requests.isEmpty());
}

} // namespace
} // namespace moravel
