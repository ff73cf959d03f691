// SPDX-License-Identifier: MIT
#include "support/TempHome.h"
#include "support/Wait.h"

#include "platform/linux/desktops/HyprlandPictures.h"
#include "platform/linux/desktops/HyprpaperCommands.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

namespace moravel {
namespace {

using namespace moravel::testing;

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

class HyprlandTest : public ::testing::Test
{
protected:
    QString set(HyprlandPictures &pictures, const QString &path,
                DesktopScaling scaling = DesktopScaling::Fill)
    {
        std::optional<QString> answer;
        pictures.setDesktopImageUrl(QStringLiteral("file://localhost") + path, screen, scaling,
                                    [&answer](const auto &result) {
                                        answer = result ? QString() : result.error().description;
                                    });
        EXPECT_FALSE(answer);
        EXPECT_TRUE(waitFor([&] { return answer.has_value(); }));
        return answer.value_or(QStringLiteral("no answer"));
    }

    TempHome home;
    const QString screen = QStringLiteral("eDP-1");
    const QString socket = home.path(QStringLiteral("s"));
    const QString a = home.write(QStringLiteral("a.png"), "A");
    const QString b = home.write(QStringLiteral("b, c.png"), "B");
};

TEST_F(HyprlandTest, speaksToHyprpaper)
{
    FakeHyprpaper hyprpaper(socket);
    HyprlandPictures pictures(socket);
    MORAVEL_WAIT(pictures.desktopImageUrl(screen)
                 == QStringLiteral("file://localhost/old%2C%20picture.png"));
    EXPECT_EQ(set(pictures, a), QString());
    EXPECT_EQ(hyprpaper.told,
              (QStringList{QStringLiteral("preload ") + a, QStringLiteral("wallpaper eDP-1,") + a,
                           QStringLiteral("unload unused")}));
    EXPECT_EQ(pictures.desktopImageUrl(screen), QStringLiteral("file://localhost") + a);

    hyprpaper.staysOpen = true;
    hyprpaper.told.clear();
    home.write(QStringLiteral("a.png"), "changed");
    EXPECT_EQ(set(pictures, a, DesktopScaling::Fit), QString());
    EXPECT_EQ(hyprpaper.told.value(0), QStringLiteral("unload ") + a);
    EXPECT_EQ(hyprpaper.told.value(2), QStringLiteral("wallpaper eDP-1,contain:") + a);

    hyprpaper.refusal = "wallpaper failed (no such monitor)";
    EXPECT_EQ(set(pictures, b), QStringLiteral("hyprpaper: wallpaper failed (no such monitor)"));
    EXPECT_EQ(pictures.desktopImageUrl(screen), QStringLiteral("file://localhost") + a);
    hyprpaper.refusal.clear();
    for (const char *name : {"two\nlines.png", "blank ", "missing.png"}) {
        if (qstrcmp(name, "missing.png") != 0)
            home.write(QLatin1String(name), "C");
        EXPECT_NE(set(pictures, home.path(QLatin1String(name))), QString());
    }
}

// Newer ones speak another protocol on the socket; their own program is asked then.
TEST_F(HyprlandTest, asksHyprctlWhereTheSocketIsNotUnderstood)
{
    const QString log = home.path(QStringLiteral("log"));
    const QString program =
        home.write(QStringLiteral("bin/hyprctl"),
                   "#!/bin/sh\nprintf '%s|' \"$@\" >>'" + log.toUtf8() + "'\necho ok\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", home.path(QStringLiteral("bin")).toUtf8());
    FakeHyprpaper hyprpaper(socket);
    hyprpaper.refusal = QByteArray("\0\x01", 2);
    HyprlandPictures pictures(socket);
    EXPECT_EQ(set(pictures, a, DesktopScaling::Fit), QString());
    EXPECT_EQ(QString::fromUtf8(TempHome::read(log)),
              QStringLiteral("hyprpaper|wallpaper|eDP-1, %1, contain|").arg(a));
    EXPECT_NE(set(pictures, b), QString()); // a comma ends the name there
    QFile::remove(program);
    EXPECT_NE(set(pictures, a), QString());
    qputenv("PATH", before);
}

} // namespace
} // namespace moravel
