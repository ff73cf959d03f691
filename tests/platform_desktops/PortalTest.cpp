// SPDX-License-Identifier: MIT
#include "platform_desktops/SetPicture.h"
#include "platform_session/FakeServices.h"

#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/PortalPictures.h"

#include <QDBusUnixFileDescriptor>

namespace {

/// Stands in for the portal: reads the picture and answers as it is told.
class FakePortal : public FakeService
{
public:
    explicit FakePortal(const QDBusConnection &connection)
        : FakeService(connection, "org.freedesktop.portal.Desktop",
                      [this](const QDBusMessage &call) { return answer(call); })
    { }

    void respond(uint result)
    {
        tell(object + u" org.freedesktop.portal.Request"_s, "Response", {result, QVariantMap()});
    }

    bool fails = false;
    bool asksTheUser = false; ///< Gives no response by itself.
    uint code = 0;
    QString object;
    QByteArray content;
    QVariantMap options;

private:
    QVariant answer(const QDBusMessage &call)
    {
        if (call.member() == u"Close") // of a question
            return {};
        const auto given = call.arguments().value(1).value<QDBusUnixFileDescriptor>();
        QFile picture;
        EXPECT_TRUE(picture.open(given.fileDescriptor(), QIODevice::ReadOnly));
        content = picture.readAll();
        options = qdbus_cast<QVariantMap>(call.arguments().value(2));
        object = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
            call.service().mid(1).replace(u'.', u'_'), options[u"handle_token"_s].toString());
        if (fails)
            return u"!no such thing"_s;
        if (!asksTheUser)
            respond(code); // before the reply
        return QVariant::fromValue(QDBusObjectPath(object));
    }
};

struct PortalTest : ::testing::Test
{
    using Answer = std::optional<tl::expected<void, DesktopError>>;

    void start(PortalPictures &pictures, const QString &path, Answer &answer)
    {
        pictures.setDesktopImageUrl(u"file://localhost"_s + path, u"A"_s, DesktopScaling::Fill,
                                    [&answer](const auto &result) { answer = result; });
        EXPECT_FALSE(answer);
    }

    static bool set(PortalPictures &pictures, const QString &path)
    {
        return setPicture(pictures, path, u"A"_s).isEmpty();
    }

    TempHome home;
    PosixFiles files;
    PrivateBus bus;
    const QString record = home.path(u"record.json"_s);
    const QString one = home.write(u"one.png"_s, "ONE");
    const QString two = home.write(u"two.png"_s, "TWO");
};

TEST_F(PortalTest, handsThePictureOverAndRemembersIt)
{
    EXPECT_FALSE(PortalPictures::isThere(bus.connection()));
    FakePortal portal(bus.connection());
    EXPECT_TRUE(PortalPictures::isThere(bus.connection()));
    PortalPictures pictures(files, record, bus.connection());
    EXPECT_EQ(pictures.desktopImageUrl(u"A"_s), QString());
    EXPECT_TRUE(set(pictures, one));
    EXPECT_EQ(portal.content, "ONE");
    EXPECT_EQ(portal.options[u"show-preview"_s], false);
    EXPECT_EQ(portal.options[u"set-on"_s], u"background"_s);

    const QString shown = u"file://localhost"_s + one;
    portal.code = 1; // the user refuses
    EXPECT_FALSE(set(pictures, two));
    portal.fails = true;
    EXPECT_FALSE(set(pictures, two));
    EXPECT_FALSE(set(pictures, home.path())); // a folder
    EXPECT_FALSE(set(pictures, home.path(u"missing.png"_s)));
    EXPECT_EQ(pictures.desktopImageUrl(u"B"_s), shown);
    const PortalPictures again(files, record, bus.connection());
    EXPECT_EQ(again.desktopImageUrl(u"A"_s), shown);
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
    EXPECT_EQ(pictures.desktopImageUrl({}), u"file://localhost"_s + two);
}

} // namespace
