// SPDX-License-Identifier: MIT
#include "platform_desktops/SetPicture.h"

#include "platform/linux/desktops/HyprlandPictures.h"
#include "platform/linux/desktops/HyprpaperCommands.h"

#include <QLocalServer>
#include <QLocalSocket>

namespace {

/// Stands in for hyprpaper: notes what it is told.
class FakeHyprpaper
{
public:
    explicit FakeHyprpaper(const QString &path)
    {
        EXPECT_TRUE(m_server.listen(path));
        QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
            QLocalSocket *socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
                socket->write(answer(socket->readAll()));
                if (!staysOpen)
                    socket->disconnectFromServer();
            });
        });
    }

    QByteArray refusal; ///< Not empty: what a picture is answered with.
    bool staysOpen = false;
    QStringList told;

private:
    QByteArray answer(const QByteArray &request)
    {
        if (request == "listactive")
            return active;
        told.append(QString::fromUtf8(request));
        if (!refusal.isEmpty())
            return refusal;
        const qsizetype comma = request.indexOf(',');
        if (request.startsWith("wallpaper "))
            active = request.mid(10, comma - 10) + " = " + request.mid(request.indexOf('/')) + '\n';
        return "ok";
    }

    QByteArray active = "eDP-1 = /old, picture.png\n";
    QLocalServer m_server;
};

struct HyprlandTest : ::testing::Test
{
    QString set(HyprlandPictures &pictures, const QString &path,
                DesktopScaling scaling = DesktopScaling::Fill)
    {
        return setPicture(pictures, path, screen, scaling);
    }

    TempHome home;
    const QString screen = u"eDP-1"_s;
    const QString socket = home.path(u"s"_s);
    const QString a = home.write(u"a.png"_s, "A");
    const QString b = home.write(u"b, c.png"_s, "B");
};

TEST_F(HyprlandTest, speaksToHyprpaper)
{
    FakeHyprpaper hyprpaper(socket);
    HyprlandPictures pictures(socket);
    MORAVEL_WAIT(pictures.desktopImageUrl(screen) == u"file://localhost/old%2C%20picture.png"_s);
    EXPECT_EQ(set(pictures, a), QString());
    EXPECT_EQ(hyprpaper.told,
              (QStringList{u"preload "_s + a, u"wallpaper eDP-1,"_s + a, u"unload unused"_s}));
    EXPECT_EQ(pictures.desktopImageUrl(screen), u"file://localhost"_s + a);

    hyprpaper.staysOpen = true;
    hyprpaper.told.clear();
    home.write(u"a.png"_s, "changed");
    EXPECT_EQ(set(pictures, a, DesktopScaling::Fit), QString());
    EXPECT_EQ(hyprpaper.told.value(0), u"unload "_s + a);
    EXPECT_EQ(hyprpaper.told.value(2), u"wallpaper eDP-1,contain:"_s + a);

    hyprpaper.refusal = "wallpaper failed (no such monitor)";
    EXPECT_EQ(set(pictures, b), u"hyprpaper: wallpaper failed (no such monitor)"_s);
    EXPECT_EQ(pictures.desktopImageUrl(screen), u"file://localhost"_s + a);
    hyprpaper.refusal.clear();
    for (const QString &name : {u"two\nlines.png"_s, u"blank "_s})
        EXPECT_NE(set(pictures, home.write(name, "C")), QString());
    EXPECT_NE(set(pictures, home.path(u"missing.png"_s)), QString());
}

// Newer ones speak another protocol on the socket; their own program is asked then.
TEST_F(HyprlandTest, asksHyprctlWhereTheSocketIsNotUnderstood)
{
    const QString log = home.path(u"log"_s);
    const QString program = home.write(
        u"bin/hyprctl"_s, "#!/bin/sh\nprintf '%s|' \"$@\" >>'" + log.toUtf8() + "'\necho ok\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", home.path(u"bin"_s).toUtf8());
    FakeHyprpaper hyprpaper(socket);
    hyprpaper.refusal = QByteArray("\0\x01", 2);
    HyprlandPictures pictures(socket);
    EXPECT_EQ(set(pictures, a, DesktopScaling::Fit), QString());
    EXPECT_EQ(QString::fromUtf8(TempHome::read(log)),
              u"hyprpaper|wallpaper|eDP-1, %1, contain|"_s.arg(a));
    EXPECT_NE(set(pictures, b), QString()); // a comma ends the name there
    QFile::remove(program);
    EXPECT_NE(set(pictures, a), QString());
    qputenv("PATH", before);
}

} // namespace
