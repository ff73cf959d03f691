// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include <QDBusInterface>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>

#include <unistd.h>

using namespace moravel;
using namespace moravel::testing;

namespace {

class PlasmaLab : public DesktopLab
{
protected:
    PlasmaLab() { m_shrinksCentred = true; }

    static bool isWayland() { return QGuiApplication::platformName() != u"xcb"; }

    void setOutside(const QString &path) override
    {
        ASSERT_EQ(run(QStringLiteral("plasma-apply-wallpaperimage"), {path}), 0);
    }

    void plug(bool in) override
    {
        if (!isWayland())
            return DesktopLab::plug(in);
        const QString change = in ? QStringLiteral("enable") : QStringLiteral("disable");
        EXPECT_EQ(run(QStringLiteral("kscreen-doctor"),
                      {QStringLiteral("output.%1.%2").arg(second, change)}),
                  0);
    }

    QImage shot() const override { return isWayland() ? waylandShot() : DesktopLab::shot(); }

    /// The compositor tells the form of the picture in its answer and then writes the pixels into a pipe.
    static QImage waylandShot()
    {
        int ends[2];
        if (::pipe(ends) != 0)
            return {};
        auto call = QDBusMessage::createMethodCall(
            QStringLiteral("org.kde.KWin"), QStringLiteral("/org/kde/KWin/ScreenShot2"),
            QStringLiteral("org.kde.KWin.ScreenShot2"), QStringLiteral("CaptureWorkspace"));
        call << QVariantMap() << QVariant::fromValue(QDBusUnixFileDescriptor(ends[1]));
        const QDBusPendingReply<QVariantMap> reply =
            QDBusConnection::sessionBus().call(call, QDBus::Block);
        ::close(ends[1]);
        const QVariantMap form = reply.value();
        QByteArray bytes(
            form[QStringLiteral("stride")].toInt() * form[QStringLiteral("height")].toInt(), '\0');
        qsizetype done = 0;
        while (done < bytes.size()) {
            const ssize_t more =
                ::read(ends[0], bytes.data() + done, std::size_t(bytes.size() - done));
            if (more <= 0)
                break;
            done += more;
        }
        ::close(ends[0]);
        const QImage image(reinterpret_cast<const uchar *>(bytes.constData()),
                           form[QStringLiteral("width")].toInt(),
                           form[QStringLiteral("height")].toInt(),
                           form[QStringLiteral("stride")].toInt(),
                           QImage::Format(form[QStringLiteral("format")].toInt()));
        return image.copy();
    }

    /// Lets the shell run a script for the desktop of the first screen.
    static void script(const QString &text)
    {
        QDBusInterface shell(QStringLiteral("org.kde.plasmashell"), QStringLiteral("/PlasmaShell"),
                             QStringLiteral("org.kde.PlasmaShell"), QDBusConnection::sessionBus());
        const QString all =
            QStringLiteral("desktops().forEach(function(d) {"
                           "if (d.screen >= 0 && screenGeometry(d.screen).x === 0) {"
                           "%1 } });");
        const QDBusMessage answer = shell.call(QStringLiteral("evaluateScript"), all.arg(text));
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << qPrintable(answer.errorMessage());
    }
};

TEST_F(PlasmaLab, setsOneScreenAndBoth)
{
    setsOneScreenAndBoth();
}

TEST_F(PlasmaLab, laysOutEachSizing)
{
    laysOutEachSizing();
}

TEST_F(PlasmaLab, takesOddNames)
{
    takesOddNames();
}

TEST_F(PlasmaLab, repaintsARewrittenFile)
{
    repaintsARewrittenFile();
}

TEST_F(PlasmaLab, noticesChangesFromOutside)
{
    noticesChangesFromOutside();
}

TEST_F(PlasmaLab, readsASlideshowAsItsFolderAndEndsIt)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    script(QStringLiteral("d.wallpaperPlugin = 'org.kde.slideshow';"
                          "d.currentConfigGroup = ['Wallpaper', 'org.kde.slideshow', 'General'];"
                          "d.writeConfig('SlidePaths', ['%1']);")
               .arg(m_folder.path()));
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }));
    script(QStringLiteral("d.wallpaperPlugin = 'org.kde.color';"));
    // Plasma writes a change of the plug-in alone, which is all that can be watched, when it likes.
    EXPECT_TRUE(within(20'000, [&] { return shown(first).isEmpty(); }));
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
    ASSERT_EQ(set(blue, first, DesktopScaling::Fill), QString());
    EXPECT_EQ(shown(first), blue);
    EXPECT_TRUE(seen(0, Middle, Qt::blue));
}

TEST_F(PlasmaLab, followsThePluggedScreen)
{
    followsThePluggedScreen();
}

TEST_F(PlasmaLab, knowsWhoFillsTheScreen)
{
    knowsWhoFillsTheScreen();
}

TEST_F(PlasmaLab, comesBackAfterRestart)
{
    comesBackAfterRestart(restart);
}

} // namespace
