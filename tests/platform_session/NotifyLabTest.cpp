// SPDX-License-Identifier: MIT
// Against a real notification service, named by LAB_DAEMON; what is shown is looked for on the screen.
#include "support/Lab.h"
#include "support/Test.h"

#include "platform/linux/session/DBusNotifications.h"
#include "platform/qt/QtImages.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QElapsedTimer>

#include <csignal>

namespace {

const QString Service = u"org.freedesktop.Notifications"_s;

struct NotifyLab : ::testing::Test, public NotificationsDelegate
{
    NotifyLab() { notifications.setGrowlDelegate(this); }

    NotificationRegistration registrationDictionaryForGrowl() const override
    {
        const QStringList names{u"Moravel"_s};
        return {.allNotifications = names, .defaultNotifications = names};
    }

    void growlNotificationWasClicked(const std::optional<QString> &context) override
    {
        clicks.append(context.value_or(QString()));
    }

    /// Posts a notification with a picture of one colour; returns how long that held the main loop, in ms.
    qint64 post(const QColor &colour, const std::optional<QString> &context)
    {
        QImage image(600, 400, QImage::Format_RGB32);
        image.fill(colour);
        const QString path = folder.filePath(colour.name().mid(1) + u".png"_s);
        EXPECT_TRUE(image.save(path));
        QElapsedTimer timer;
        timer.start();
        notifications.notify({.title = u"New picture of the day"_s,
                              .description = u"Sky & Stars\nJuly 4\n<b>Moon</b>"_s,
                              .name = u"Moravel"_s,
                              .picture = path,
                              .sticky = true,
                              .clickContext = context,
                              .clickLabel = u"Set as desktop"_s});
        return timer.elapsed();
    }

    /// Where its button is: at the lower right corner of what is not background.
    static QPoint button()
    {
        const QImage shot = screenshot();
        QPoint corner;
        for (int y = 0; y < shot.height(); ++y)
            for (int x = 0; x < shot.width(); ++x)
                if (shot.pixelColor(x, y) != Qt::black)
                    corner = {std::max(corner.x(), x), y};
        return corner - QPoint(40, 30);
    }

    /// Does what a user does to take the notification, whose picture is at @p place.
    void click(QPoint place, bool hasAction) const
    {
        if (daemon == "dunst")
            dunst("action 0");
        else
            clickAt(hasAction ? button() : place);
    }

    static QByteArray dunst(const char *arguments)
    {
        const QString line = u"dunstctl "_s + QLatin1String(arguments);
        const Ended ended = runProgram(line.split(u' '));
        EXPECT_EQ(ended.code, 0);
        return ended.output;
    }

    static pid_t daemonId()
    {
        const auto *bus = QDBusConnection::sessionBus().interface();
        return static_cast<pid_t>(bus->servicePid(Service).value());
    }

    const QByteArray daemon = qgetenv("LAB_DAEMON");
    QTemporaryDir folder;
    QtImages images;
    DBusNotifications notifications{QDBusConnection::sessionBus(), images};
    QStringList clicks;
};

TEST_F(NotifyLab, showsThePictureAndTakesAClickOnlyWithAContext)
{
    const Table<QColor, std::optional<QString>, QStringList> table{
        {QColor(200, 0, 100), {}, {}},
        {QColor(0, 150, 200), u"growlClickContext"_s, {u"growlClickContext"_s}},
    };
    for (const auto &[colour, context, expected] : table) {
        clicks.clear();
        EXPECT_LT(post(colour, context), 50);
        std::optional<QPoint> place;
        MORAVEL_WAIT((place = findColour(colour)).has_value());
        keepShot();
        click(*place, context.has_value());
        MORAVEL_WAIT(clicks.size() >= expected.size());
        if (daemon == "dunst")
            dunst("close-all");
        MORAVEL_WAIT(!findColour(colour)); // taken, it goes
        EXPECT_EQ(clicks, expected);
    }
    if (daemon != "dunst")
        return;
    const QByteArray history = dunst("history");
    for (const char *part : {"\"Moravel\"", "New picture of the day",
                             "Sky &amp; Stars\\nJuly 4\\n&lt;b&gt;Moon&lt;/b&gt;", "\"default\""})
        EXPECT_TRUE(history.contains(part)) << part << " is not in " << history.constData();
}

TEST_F(NotifyLab, waitsForNoService)
{
    const pid_t id = daemonId();
    ASSERT_GT(id, 1);
    ::kill(id, SIGSTOP);
    EXPECT_LT(post(QColor(120, 120, 0), {}), 50);
    QElapsedTimer timer;
    timer.start();
    qint64 longest = 0;
    for (qint64 last = 0; timer.elapsed() < 500; last = timer.elapsed()) {
        QCoreApplication::processEvents();
        longest = std::max(longest, timer.elapsed() - last);
    }
    EXPECT_LT(longest, 100);
    ::kill(id, SIGCONT);
    MORAVEL_WAIT(findColour(QColor(120, 120, 0)).has_value());
    // It goes for good, and the program goes on; nothing warns.
    ::kill(id, SIGKILL);
    MORAVEL_WAIT(!daemonId());
    for (int i = 0; i < 20; ++i)
        EXPECT_LT(post(QColor(0, 120, 120), u"x"_s), 50);
    EXPECT_TRUE(waitFor([&] { return timer.elapsed() > 1'500; }));
    EXPECT_FALSE(findColour(QColor(0, 120, 120)));
    if (daemon != "dunst")
        return;
    QProcess again;
    again.start(u"dunst"_s, {});
    MORAVEL_WAIT(daemonId());
    post(QColor(60, 0, 180), {});
    MORAVEL_WAIT(findColour(QColor(60, 0, 180)).has_value());
    again.terminate();
    again.waitForFinished();
}

} // namespace
