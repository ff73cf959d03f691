// SPDX-License-Identifier: MIT
#include "notify/GrowlAlert.h"

#include "support/Test.h"

namespace {

class FakeNotifications : public Notifications
{
public:
    void setGrowlDelegate(NotificationsDelegate *theDelegate) override { delegate = theDelegate; }

    void notify(const Notification &notification) override { posted.append(notification); }

    NotificationsDelegate *delegate = nullptr;
    QList<Notification> posted;
};

struct GrowlAlertTest : ::testing::Test
{
    FakeNotifications notifications;
    QStringList desktops;
    GrowlAlert alert{notifications, [this](const QString &path) { desktops.append(path); }};
};

TEST_F(GrowlAlertTest, isTheDelegateAsLongAsItLives)
{
    EXPECT_EQ(notifications.delegate, &alert);
    EXPECT_EQ(alert.registrationDictionaryForGrowl().defaultNotifications,
              (QStringList{u"Moravel"_s, u"Moravel error"_s}));
    std::make_unique<GrowlAlert>(notifications, nullptr).reset();
    EXPECT_EQ(notifications.delegate, nullptr);
}

TEST_F(GrowlAlertTest, postsEachArrivedPictureWithoutAContext)
{
    const ThumbImages images;
    const ThumbCommands commands;
    ThumbView cell(ThumbView::GridTag, images, commands, QDateTime());
    cell.showSource(u"Sky & Stars"_s, u"sky"_s);
    cell.setDateString(u"July 4, 2011"_s);
    cell.showCaption(u"100%2 %1 <b>Moon</b>"_s);
    alert.newPicture(cell, u"/p/one.jpg"_s);
    alert.newPicture(cell, u"/p/two.jpg"_s);

    ASSERT_EQ(notifications.posted.size(), 2);
    const Notification &first = notifications.posted.first();
    EXPECT_EQ(first.title, u"New picture of the day"_s);
    EXPECT_EQ(first.description, u"Sky & Stars\nJuly 4, 2011\n"_s + cell.captionString());
    EXPECT_EQ(first.name, u"Moravel"_s);
    EXPECT_EQ(first.picture, u"/p/one.jpg"_s);
    EXPECT_FALSE(first.clickContext);
    EXPECT_EQ(alert.lastPicFile(), u"/p/two.jpg"_s);
}

TEST_F(GrowlAlertTest, onlyItsOwnContextSetsTheNewestPictureAsDesktop)
{
    alert.setLastPicFile(u"/p/one.jpg"_s);
    alert.growlAlertWithClickContext(u"m"_s, u"t"_s);
    ASSERT_EQ(notifications.posted.size(), 1);
    const auto context = notifications.posted.first().clickContext;
    EXPECT_EQ(context, u"growlClickContext"_s);
    alert.setLastPicFile(u"/p/two.jpg"_s);

    for (const auto &other : {std::optional<QString>(), std::optional(QString()),
                              std::optional(u"growlclickcontext"_s)}) {
        notifications.delegate->growlNotificationWasClicked(other);
        EXPECT_TRUE(desktops.isEmpty());
    }
    notifications.delegate->growlNotificationWasClicked(context);
    EXPECT_EQ(desktops, QStringList{u"/p/two.jpg"_s});
}

} // namespace
