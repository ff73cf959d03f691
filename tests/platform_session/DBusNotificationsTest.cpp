// SPDX-License-Identifier: MIT
#include "platform/linux/session/DBusNotifications.h"

#include "FakeServices.h"
#include "support/FakeImages.h"

#include "platform/linux/session/NotificationPicture.h"

namespace {

const QStringList Everything{u"body"_s, u"body-markup"_s, u"actions"_s};

/// A notification service whose abilities a test sets.
class FakeDaemon : public FakeService
{
public:
    struct Shown
    {
        QString application, icon, title, body;
        QStringList actions;
        QVariantMap hints;
        int timeout;
    };

    FakeDaemon(const QDBusConnection &connection, QStringList abilities)
        : FakeService(connection, "org.freedesktop.Notifications",
                      [this](const QDBusMessage &call) { return answer(call); })
        , capabilities(std::move(abilities))
    { }

    void invoke(const QList<uint> &ids, const QString &action = u"default"_s)
    {
        for (const uint id : ids)
            tell(Place, "ActionInvoked", {id, action});
    }

    static inline const QString Place =
        u"/org/freedesktop/Notifications org.freedesktop.Notifications"_s;
    QStringList capabilities;
    bool broken = false; ///< Answers with errors.
    int asked = 0;
    QList<Shown> shown; ///< The n-th has the id n, from 1.

private:
    QVariant answer(const QDBusMessage &call)
    {
        const bool asks = call.member() == u"GetCapabilities";
        asked += asks;
        if (broken)
            return u"!out of order"_s;
        if (asks)
            return capabilities;
        const QVariantList all = call.arguments();
        shown.append({all[0].toString(), all[2].toString(), all[3].toString(), all[4].toString(),
                      all[5].toStringList(), qdbus_cast<QVariantMap>(all[6]), all[7].toInt()});
        return uint(shown.size());
    }
};

class Program : public NotificationsDelegate
{
public:
    NotificationRegistration registrationDictionaryForGrowl() const override
    {
        const QStringList names{u"News"_s};
        return {.allNotifications = names, .defaultNotifications = names};
    }

    void growlNotificationWasClicked(const std::optional<QString> &context) override
    {
        clicks.append(context.value_or(u"(none)"_s));
    }

    QStringList clicks;
};

struct DBusNotificationsTest : ::testing::Test
{
    DBusNotificationsTest() { notifications.setGrowlDelegate(&program); }

    static Notification notification(const std::optional<QString> &context = {})
    {
        return {.title = u"A & B"_s,
                .description = u"<i>x</i>"_s,
                .name = u"News"_s,
                .picture = {},
                .clickContext = context,
                .clickLabel = u"Take"_s};
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
    const QStringList action{u"default"_s, u"Take"_s};

    const Table<QStringList, std::optional<QString>, QString, QStringList> rows{
        {Everything, {}, u"&lt;i&gt;x&lt;/i&gt;"_s, {}},
        {Everything, u"c"_s, u"&lt;i&gt;x&lt;/i&gt;"_s, action},
        {{u"actions"_s}, u"c"_s, u"<i>x</i>"_s, action},
        {{}, u"c"_s, u"<i>x</i>"_s, {}},
    };
    for (const auto &[abilities, context, body, actions] : rows) {
        SCOPED_TRACE(qPrintable(abilities.join(u' ')));
        FakeDaemon daemon(bus.connection(), abilities);
        settle();
        notifications.notify(notification(context));
        notifications.notify(notification(context));
        MORAVEL_WAIT(daemon.shown.size() == 2);
        EXPECT_EQ(daemon.asked, 1);
        const FakeDaemon::Shown &shown = daemon.shown.last();
        EXPECT_EQ(shown.application, u"Moravel"_s);
        EXPECT_EQ(shown.icon, u"moravel"_s);
        EXPECT_EQ(shown.title, u"A & B"_s);
        EXPECT_EQ(shown.body, body);
        EXPECT_EQ(shown.actions, actions);
        EXPECT_EQ(shown.timeout, -1);
        EXPECT_EQ(shown.hints.value(u"urgency"_s).value<uchar>(), 1);
        EXPECT_FALSE(shown.hints.contains(u"image-data"_s));
    }
}

TEST_F(DBusNotificationsTest, showsThePictureIfItCanBeRead)
{
    const TempHome home;
    FakeDaemon daemon(bus.connection(), Everything);
    Notification with = notification();
    with.picture = home.write(u"a.jpg"_s, "IMG");
    notifications.notify(with);
    with.picture = home.path(u"missing.jpg"_s);
    notifications.notify(with);
    notifications.notify(notification()); // waits for its turn
    MORAVEL_WAIT(daemon.asked == 1);
    settle();
    EXPECT_TRUE(images.deliver());
    MORAVEL_WAIT(daemon.shown.size() == 3);

    const auto picture =
        qdbus_cast<NotificationPicture>(daemon.shown.first().hints.value(u"image-data"_s));
    EXPECT_EQ(picture.width, 4);
    EXPECT_EQ(picture.height, 3);
    EXPECT_EQ(picture.rowStride, 12);
    EXPECT_EQ(picture.channels, 3);
    EXPECT_FALSE(picture.hasAlpha);
    EXPECT_EQ(picture.pixels, QByteArray("\x00\x80\x80", 3).repeated(12));
    EXPECT_FALSE(daemon.shown.last().hints.contains(u"image-data"_s));
}

TEST_F(DBusNotificationsTest, onlyTheServicesClickOnAnOpenNotificationCounts)
{
    const QDBusConnection serviceBus = bus.connection();
    FakeService stranger(bus.connection(), "org.example.Stranger", {});
    FakeDaemon daemon(serviceBus, Everything);
    for (const char *context : {"one", "two", "three"})
        post(daemon, QString::fromLatin1(context));
    post(daemon, std::nullopt);

    stranger.tell(FakeDaemon::Place, "ActionInvoked", {1U, u"default"_s});
    PrivateBus::flush(stranger.bus);
    daemon.tell(FakeDaemon::Place, "NotificationClosed", {2U, 1U});
    daemon.invoke({0, 2, 4, 5, 0xFFFFFFFF});
    daemon.invoke({1}, u"other"_s);
    daemon.invoke({3});
    MORAVEL_WAIT(!program.clicks.isEmpty());
    EXPECT_EQ(program.clicks, QStringList{u"three"_s});

    notifications.setGrowlDelegate(nullptr);
    daemon.invoke({3});
    notifications.notify(notification()); // no one is registered, so no name is
    notifications.setGrowlDelegate(&program);
    post(daemon, u"five"_s);
    EXPECT_EQ(daemon.shown.size(), 5);
}

TEST_F(DBusNotificationsTest, forgetsTheOldestContexts)
{
    FakeDaemon daemon(bus.connection(), Everything);
    for (int i = 0; i <= DBusNotifications::MostContexts; ++i)
        post(daemon, QString::number(i + 1));
    daemon.invoke({1, 2});
    MORAVEL_WAIT(!program.clicks.isEmpty());
    EXPECT_EQ(program.clicks, QStringList{u"2"_s});
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
        post(first, u"old"_s);
        EXPECT_EQ(first.shown.size(), 1);
    }
    FakeDaemon daemon(bus.connection(), {u"actions"_s});
    settle();
    post(daemon, std::nullopt);
    post(daemon, u"new"_s);
    EXPECT_EQ(daemon.asked, 1);
    EXPECT_EQ(daemon.shown.first().body, u"<i>x</i>"_s);
    daemon.invoke({1, 2});
    MORAVEL_WAIT(!program.clicks.isEmpty());
    EXPECT_EQ(program.clicks, QStringList{u"new"_s});
}

} // namespace
