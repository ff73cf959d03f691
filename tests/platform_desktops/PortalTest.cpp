// SPDX-License-Identifier: MIT
#include "platform_session/PrivateBus.h"
#include "support/TempHome.h"
#include "support/Wait.h"

#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/PortalPictures.h"

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>

namespace moravel {
namespace {

using namespace moravel::testing;

/// Stands in for the portal: reads the picture and answers as it is told.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Wallpaper")

public:
    explicit FakePortal(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportAllSlots);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    void respond(uint result)
    {
        auto signal = QDBusMessage::createSignal(
            object, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        signal << result << QVariantMap();
        m_bus.send(signal);
    }

    bool fails = false;
    bool asksTheUser = false; ///< Gives no response by itself.
    uint code = 0;
    QString object;
    QByteArray content;
    QVariantMap options;

public Q_SLOTS:

    QDBusObjectPath SetWallpaperFile(const QString &, const QDBusUnixFileDescriptor &file,
                                     const QVariantMap &given)
    {
        QFile picture;
        EXPECT_TRUE(picture.open(file.fileDescriptor(), QIODevice::ReadOnly));
        content = picture.readAll();
        options = given;
        QString sender = message().service().mid(1);
        object =
            QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                .arg(sender.replace(u'.', u'_'), given[QStringLiteral("handle_token")].toString());
        if (fails)
            sendErrorReply(QDBusError::UnknownInterface, QStringLiteral("no such thing"));
        else if (!asksTheUser)
            respond(code); // before the reply
        return QDBusObjectPath(object);
    }

private:
    QDBusConnection m_bus;
};

class PortalTest : public ::testing::Test
{
protected:
    using Answer = std::optional<tl::expected<void, DesktopError>>;

    void start(PortalPictures &pictures, const QString &path, Answer &answer)
    {
        pictures.setDesktopImageUrl(QStringLiteral("file://localhost") + path, QStringLiteral("A"),
                                    DesktopScaling::Fill,
                                    [&answer](const auto &result) { answer = result; });
        EXPECT_FALSE(answer);
    }

    bool set(PortalPictures &pictures, const QString &path)
    {
        Answer answer;
        start(pictures, path, answer);
        EXPECT_TRUE(waitFor([&] { return answer.has_value(); }));
        return answer && answer->has_value();
    }

    TempHome home;
    PosixFiles files;
    PrivateBus bus;
    const QString record = home.path(QStringLiteral("record.json"));
    const QString one = home.write(QStringLiteral("one.png"), "ONE");
    const QString two = home.write(QStringLiteral("two.png"), "TWO");
};

TEST_F(PortalTest, handsThePictureOverAndRemembersIt)
{
    EXPECT_FALSE(PortalPictures::isThere(bus.connection()));
    FakePortal portal(bus.connection());
    EXPECT_TRUE(PortalPictures::isThere(bus.connection()));
    PortalPictures pictures(files, record, bus.connection());
    EXPECT_EQ(pictures.desktopImageUrl(QStringLiteral("A")), QString());
    EXPECT_TRUE(set(pictures, one));
    EXPECT_EQ(portal.content, "ONE");
    EXPECT_EQ(portal.options[QStringLiteral("show-preview")], false);
    EXPECT_EQ(portal.options[QStringLiteral("set-on")], QStringLiteral("background"));

    const QString shown = QStringLiteral("file://localhost") + one;
    portal.code = 1; // the user refuses
    EXPECT_FALSE(set(pictures, two));
    portal.fails = true;
    EXPECT_FALSE(set(pictures, two));
    EXPECT_FALSE(set(pictures, home.path())); // a folder
    EXPECT_FALSE(set(pictures, home.path(QStringLiteral("missing.png"))));
    EXPECT_EQ(pictures.desktopImageUrl(QStringLiteral("B")), shown);
    const PortalPictures again(files, record, bus.connection());
    EXPECT_EQ(again.desktopImageUrl(QStringLiteral("A")), shown);
}

TEST_F(PortalTest, theNewestPictureEndsAnOpenQuestion)
{
    FakePortal portal(bus.connection());
    PortalPictures pictures(files, record, bus.connection());
    portal.asksTheUser = true;
    Answer first, second;
    start(pictures, one, first);
    MORAVEL_WAIT(portal.content == "ONE");
    const QString oldQuestion = portal.object;
    start(pictures, two, second);
    MORAVEL_WAIT(first.has_value());
    EXPECT_FALSE(first->has_value());
    MORAVEL_WAIT(portal.content == "TWO");
    const QString question = std::exchange(portal.object, oldQuestion);
    portal.respond(0); // too late
    portal.object = question;
    portal.respond(0);
    MORAVEL_WAIT(second.has_value());
    EXPECT_TRUE(second->has_value());
    EXPECT_EQ(pictures.desktopImageUrl({}), QStringLiteral("file://localhost") + two);
}

} // namespace
} // namespace moravel

#include "PortalTest.moc"
