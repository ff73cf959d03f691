// SPDX-License-Identifier: MIT
#include "platform/linux/session/DBusNotifications.h"

#include "FakeServices.h"
#include "PrivateBus.h"
#include "support/FakeImages.h"
#include "support/TempHome.h"
#include "support/Wait.h"

namespace moravel {

namespace {

using namespace moravel::testing;

const QStringList Everything{QStringLiteral("body"), QStringLiteral("body-markup"),
                             QStringLiteral("actions")};

class Program : public NotificationsDelegate
{
public:
    NotificationRegistration registrationDictionaryForGrowl() const override
    {
        const QStringList names{QStringLiteral("News")};
        return {.allNotifications = names, .defaultNotifications = names};
    }

    void growlNotificationWasClicked(const std::optional<QString> &context) override
    {
        clicks.append(context.value_or(QStringLiteral("(none)")));
    }

    QStringList clicks;
};

class DBusNotificationsTest : public ::testing::Test
{
protected:
    DBusNotificationsTest() { notifications.setGrowlDelegate(&program); }

    static Notification notification(const std::optional<QString> &context = {})
    {
        return {.title = QStringLiteral("A & B"),
                .description = QStringLiteral("<i>x</i>"),
                .name = QStringLiteral("News"),
                .picture = {},
                .clickContext = context,
                .clickLabel = QStringLiteral("Take")};
    }

    // Posts and waits until the program has the answer, in which the id of the notification stands.
    void post(FakeDaemon &daemon, const std::optional<QString> &context)
    {
        const auto before = daemon.shown.size();
        notifications.notify(notification(context));
        ASSERT_TRUE(waitFor([&] { return daemon.shown.size() > before; }));
    }

    // Lets the program see all that the bus did until now.
    void settle()
    {
        PrivateBus::flush(programBus);
        QCoreApplication::processEvents();
    }

    PrivateBus bus;
    QDBusConnection programBus = bus.connection();
    FakeImages images;
    Program program;
    DBusNotifications notifications{programBus, images};
};

TEST_F(DBusNotificationsTest, postsWhatTheServiceCanShow)
{
    const QStringList action{QStringLiteral("default"), QStringLiteral("Take")};

    const struct
    {
        QStringList abilities;
        std::optional<QString> context;
        QString body;
        QStringList actions;
    } rows[] = {
        {Everything, {}, QStringLiteral("&lt;i&gt;x&lt;/i&gt;"), {}},
        {Everything, QStringLiteral("c"), QStringLiteral("&lt;i&gt;x&lt;/i&gt;"), action},
        {{QStringLiteral("actions")}, QStringLiteral("c"), QStringLiteral("<i>x</i>"), action},
        {{}, QStringLiteral("c"), QStringLiteral("<i>x</i>"), {}},
    };

    for (const auto &row : rows) {
        SCOPED_TRACE(qPrintable(row.abilities.join(u' ')));
        FakeDaemon daemon(bus.connection(), row.abilities);
        settle();
        notifications.notify(notification(row.context));
        notifications.notify(notification(row.context));
        MORAVEL_WAIT(daemon.shown.size() == 2);
        EXPECT_EQ(daemon.asked, 1);
        const FakeDaemon::Shown &shown = daemon.shown.last();
        EXPECT_EQ(shown.application, QStringLiteral("Moravel"));
        EXPECT_EQ(shown.icon, QStringLiteral("moravel"));
        EXPECT_EQ(shown.title, QStringLiteral("A & B"));
        EXPECT_EQ(shown.body, row.body);
        EXPECT_EQ(shown.actions, row.actions);
        EXPECT_EQ(shown.timeout, -1);
        EXPECT_EQ(shown.hints.value(QStringLiteral("urgency")).value<uchar>(), 1);
        EXPECT_FALSE(shown.hints.contains(QStringLiteral("image-data")));
    }
}

TEST_F(DBusNotificationsTest, showsThePictureIfItCanBeRead)
{
    const TempHome home;
    FakeDaemon daemon(bus.connection(), Everything);
    Notification with = notification();
    with.picture = home.write(QStringLiteral("a.jpg"), "IMG");
    notifications.notify(with);
    with.picture = home.path(QStringLiteral("missing.jpg"));
    notifications.notify(with);
    notifications.notify(notification()); // waits for its turn
    MORAVEL_WAIT(daemon.asked == 1);
    settle();
    EXPECT_TRUE(images.deliver());
    MORAVEL_WAIT(daemon.shown.size() == 3);

    const NotificationPicture picture = daemon.shown.first().picture();
    EXPECT_EQ(picture.width, 4);
    EXPECT_EQ(picture.height, 3);
    EXPECT_EQ(picture.rowStride, 12);
    EXPECT_EQ(picture.channels, 3);
    EXPECT_FALSE(picture.hasAlpha);
    EXPECT_EQ(picture.pixels, QByteArray("\x00\x80\x80", 3).repeated(12));
    EXPECT_FALSE(daemon.shown.last().hints.contains(QStringLiteral("image-data")));
}

TEST_F(DBusNotificationsTest, onlyTheServicesClickOnAnOpenNotificationCounts)
{
    const QDBusConnection serviceBus = bus.connection();
    const QDBusConnection strangerBus = bus.connection();
    FakeDaemon daemon(serviceBus, Everything);
    for (const char *context : {"one", "two", "three"})
        post(daemon, QString::fromLatin1(context));
    post(daemon, std::nullopt);

    QDBusMessage forged = QDBusMessage::createSignal(
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("ActionInvoked"));
    forged << uint(1) << QStringLiteral("default");
    strangerBus.send(forged);
    PrivateBus::flush(strangerBus);
    Q_EMIT daemon.NotificationClosed(2, 1);
    for (const uint id : {0u, 2u, 4u, 5u, 0xFFFFFFFFu})
        Q_EMIT daemon.ActionInvoked(id, QStringLiteral("default"));
    Q_EMIT daemon.ActionInvoked(1, QStringLiteral("other"));
    Q_EMIT daemon.ActionInvoked(3, QStringLiteral("default"));
    MORAVEL_WAIT(!program.clicks.isEmpty());
    EXPECT_EQ(program.clicks, QStringList{QStringLiteral("three")});

    notifications.setGrowlDelegate(nullptr);
    Q_EMIT daemon.ActionInvoked(3, QStringLiteral("default"));
    notifications.notify(notification()); // no one is registered, so no name is
    notifications.setGrowlDelegate(&program);
    post(daemon, QStringLiteral("five"));
    EXPECT_EQ(daemon.shown.size(), 5);
}

TEST_F(DBusNotificationsTest, forgetsTheOldestContexts)
{
    FakeDaemon daemon(bus.connection(), Everything);
    for (int i = 0; i <= DBusNotifications::MostContexts; ++i)
        post(daemon, QString::number(i + 1));
    for (const uint id : {1u, 2u})
        Q_EMIT daemon.ActionInvoked(id, QStringLiteral("default"));
    MORAVEL_WAIT(!program.clicks.isEmpty());
    EXPECT_EQ(program.clicks, QStringList{QStringLiteral("2")});
}

TEST_F(DBusNotificationsTest, aMissingOrBrokenServiceIsNoErrorAndALaterOneIsUsed)
{
    notifications.notify(notification()); // nobody there
    settle();
    const QDBusConnection firstBus = bus.connection();
    {
        FakeDaemon first(firstBus, Everything);
        settle();
        first.broken = true;
        notifications.notify(notification());
        MORAVEL_WAIT(first.asked == 1);
        PrivateBus::flush(firstBus);
        settle();
        first.broken = false;
        post(first, QStringLiteral("old"));
        EXPECT_EQ(first.shown.size(), 1);
    }
    FakeDaemon daemon(bus.connection(), {QStringLiteral("actions")});
    settle();
    post(daemon, std::nullopt);
    post(daemon, QStringLiteral("new"));
    EXPECT_EQ(daemon.asked, 1);
    EXPECT_EQ(daemon.shown.first().body, QStringLiteral("<i>x</i>"));
    for (const uint id : {1u, 2u})
        Q_EMIT daemon.ActionInvoked(id, QStringLiteral("default"));
    MORAVEL_WAIT(!program.clicks.isEmpty());
    EXPECT_EQ(program.clicks, QStringList{QStringLiteral("new")});
}

} // namespace

} // namespace moravel
