// SPDX-License-Identifier: MIT
#include "notify/GrowlAlert.h"

#include <gtest/gtest.h>

namespace moravel {

namespace {

class FakeNotifications : public Notifications
{
public:
    void setGrowlDelegate(NotificationsDelegate *theDelegate) override { delegate = theDelegate; }

    void notify(const Notification &notification) override { posted.append(notification); }

    NotificationsDelegate *delegate = nullptr;
    QList<Notification> posted;
};

class GrowlAlertTest : public ::testing::Test
{
protected:
    FakeNotifications notifications;
    QStringList desktops;
    GrowlAlert alert{notifications, [this](const QString &path) { desktops.append(path); }};
};

TEST_F(GrowlAlertTest, registersBothNamesAsShown)
{
    ASSERT_EQ(notifications.delegate, &alert);
    const auto registration = alert.registrationDictionaryForGrowl();
    const QStringList names{QStringLiteral("Moravel"), QStringLiteral("Moravel error")};
    EXPECT_EQ(registration.ticketVersion, 1);
    EXPECT_EQ(registration.allNotifications, names);
    EXPECT_EQ(registration.defaultNotifications, names);
}

TEST_F(GrowlAlertTest, takesItselfOffAtTheEnd)
{
    FakeNotifications other;
    {
        const GrowlAlert shortLived(other, {});
        EXPECT_EQ(other.delegate, &shortLived);
    }
    EXPECT_EQ(other.delegate, nullptr);
}

TEST_F(GrowlAlertTest, postsEachArrivedPictureWithoutAContext)
{
    const ThumbImages images;
    const ThumbCommands commands;
    ThumbView cell(ThumbView::GridTag, images, commands, QDateTime());
    cell.showSource(QStringLiteral("Sky & Stars"), QStringLiteral("sky"));
    cell.setDateString(QStringLiteral("July 4, 2011"));
    cell.showCaption(QStringLiteral("100%2 %1 <b>Moon</b>"));
    alert.newPicture(cell, QStringLiteral("/p/one.jpg"));
    alert.newPicture(cell, QStringLiteral("/p/two.jpg"));

    ASSERT_EQ(notifications.posted.size(), 2);
    const Notification &first = notifications.posted.first();
    EXPECT_EQ(first.title, QStringLiteral("New picture of the day"));
    EXPECT_EQ(first.description,
              QStringLiteral("Sky & Stars\nJuly 4, 2011\n") + cell.captionString());
    EXPECT_EQ(first.name, QStringLiteral("Moravel"));
    EXPECT_EQ(first.picture, QStringLiteral("/p/one.jpg"));
    EXPECT_EQ(first.priority, 0);
    EXPECT_FALSE(first.sticky);
    EXPECT_FALSE(first.clickContext);
    EXPECT_EQ(alert.lastPicFile(), QStringLiteral("/p/two.jpg"));
}

TEST_F(GrowlAlertTest, onlyItsOwnContextSetsTheNewestPictureAsDesktop)
{
    alert.setLastPicFile(QStringLiteral("/p/one.jpg"));
    alert.growlAlertWithClickContext(QStringLiteral("m"), QStringLiteral("t"));
    ASSERT_EQ(notifications.posted.size(), 1);
    const auto context = notifications.posted.first().clickContext;
    EXPECT_EQ(context, QStringLiteral("growlClickContext"));
    alert.setLastPicFile(QStringLiteral("/p/two.jpg"));

    for (const auto &other : {std::optional<QString>(), std::optional(QString()),
                              std::optional(QStringLiteral("growlclickcontext"))}) {
        notifications.delegate->growlNotificationWasClicked(other);
        EXPECT_TRUE(desktops.isEmpty());
    }
    notifications.delegate->growlNotificationWasClicked(context);
    EXPECT_EQ(desktops, QStringList{QStringLiteral("/p/two.jpg")});
}

} // namespace

} // namespace moravel
