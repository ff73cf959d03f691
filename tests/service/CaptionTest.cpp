// SPDX-License-Identifier: MIT
#include "World.h"

namespace {

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

struct CaptionLookUp : ::testing::Test
{
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
        to.addSources({u"A"_s});
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

    const Table<FakeHttp::Answer, QString, QString, QString> rows{
        {{{}, 500}, before, u"NEW"_s, u"Info A-7-4-2011"_s},
        {{"\xff\xfe\nx"}, before, u"NEW"_s, u"Info A-7-4-2011"_s},
        {{" NEW_CAPTION\nText  of\r it \nmore "},
         u"New Caption"_s,
         u"Text  of\r it "_s,
         u"Text of it "_s},
        {{"One line"}, u"One line"_s, u"NEW"_s, u"Text of it "_s},
    };

    for (const auto &[answer, label, info, storedInfo] : rows) {
        world.file = [&answer = answer](const QString &) { return answer; };
        window.calls.clear();
        refresh().implementRefreshCaption(cell);
        refresh().implementRefreshCaption(cell); // once more while it looks: nothing
        EXPECT_EQ(cell.captionField(), u"Looking up caption..."_s);
        EXPECT_EQ(window.calls, u"l"_s);
        world.run(0.9);
        EXPECT_TRUE(world.http.requests.isEmpty()) << "the notice is shown first";
        world.run(0.2);
        EXPECT_EQ(world.http.requests.value(0).url.toString(),
                  u"http://service/potd/defs/moravel.irev?option=captionPlusText&source=A"
                  "&date=7/4/2011&refresh=true"_s);
        EXPECT_EQ(cell.captionField(), label);
        EXPECT_EQ(cell.infoString(), info);
        EXPECT_EQ(world.lines().value(0).section(u'\t', 6), storedInfo);
        EXPECT_EQ(window.calls, u"ls"_s);
        EXPECT_EQ(world.http.requests.size(), 1);
        world.http.requests.clear();
    }
    EXPECT_EQ(world.lines().value(0).section(u'\t', 5, 5), u"One line"_s);
}

TEST_F(CaptionLookUp, IsForThePictureThatItBeganWith)
{
    window.visible = false;
    refresh().implementRefreshCaption(cell);
    cell.showDate(u"July 3, 2011"_s);
    world.run(2);
    EXPECT_TRUE(world.http.requests.isEmpty());
    EXPECT_EQ(window.calls, QString());

    cell.setThumbPath(ThumbView::deletedMark());
    refresh().implementRefreshCaption(cell);
    EXPECT_EQ(restored, 1);
    EXPECT_TRUE(world.http.requests.isEmpty());
}

} // namespace
