// SPDX-License-Identifier: MIT
#include "platform_desktops/DesktopLab.h"

#include <QDBusInterface>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>

#include <unistd.h>

namespace {

struct PlasmaLab : DesktopLab
{
    PlasmaLab() { m_shrinksCentred = true; }

    static bool isWayland() { return QGuiApplication::platformName() != u"xcb"; }

    void setOutside(const QString &path) override
    {
        ASSERT_EQ(run(u"plasma-apply-wallpaperimage"_s, {path}), 0);
    }

    void plug(bool in) override
    {
        if (!isWayland())
            return DesktopLab::plug(in);
        const QString change = in ? u"enable"_s : u"disable"_s;
        EXPECT_EQ(run(u"kscreen-doctor output.%1.%2"_s.arg(second, change)), 0);
    }

    QImage shot() const override { return isWayland() ? waylandShot() : DesktopLab::shot(); }

    /// The compositor tells the form of the picture in its answer and then writes the pixels into a pipe.
    static QImage waylandShot()
    {
        int ends[2];
        if (::pipe(ends) != 0)
            return {};
        auto call =
            QDBusMessage::createMethodCall(u"org.kde.KWin"_s, u"/org/kde/KWin/ScreenShot2"_s,
                                           u"org.kde.KWin.ScreenShot2"_s, u"CaptureWorkspace"_s);
        call << QVariantMap() << QVariant::fromValue(QDBusUnixFileDescriptor(ends[1]));
        const QDBusPendingReply<QVariantMap> reply =
            QDBusConnection::sessionBus().call(call, QDBus::Block);
        ::close(ends[1]);
        const QVariantMap form = reply.value();
        QByteArray bytes(form[u"stride"_s].toInt() * form[u"height"_s].toInt(), '\0');
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
                           form[u"width"_s].toInt(), form[u"height"_s].toInt(),
                           form[u"stride"_s].toInt(), QImage::Format(form[u"format"_s].toInt()));
        return image.copy();
    }

    /// Lets the shell run a script for the desktop of the first screen.
    static void script(const QString &text)
    {
        QDBusInterface shell(u"org.kde.plasmashell"_s, u"/PlasmaShell"_s, u"org.kde.PlasmaShell"_s,
                             QDBusConnection::sessionBus());
        const QString all = u"desktops().forEach(function(d) {"
                            "if (d.screen >= 0 && screenGeometry(d.screen).x === 0) {"
                            "%1 } });"_s;
        const QDBusMessage answer = shell.call(u"evaluateScript"_s, all.arg(text));
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << qPrintable(answer.errorMessage());
    }
};

DESKTOP_TESTS(PlasmaLab)
DESKTOP_TEST(PlasmaLab, noticesChangesFromOutside)

TEST_F(PlasmaLab, readsASlideshowAsItsFolderAndEndsIt)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    script(u"d.wallpaperPlugin = 'org.kde.slideshow';"
           "d.currentConfigGroup = ['Wallpaper', 'org.kde.slideshow', 'General'];"
           "d.writeConfig('SlidePaths', ['%1']);"_s.arg(m_folder.path()));
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }));
    script(u"d.wallpaperPlugin = 'org.kde.color';"_s);
    // Plasma writes a change of the plug-in alone, which is all that can be watched, when it likes.
    EXPECT_TRUE(within(20'000, [&] { return shown(first).isEmpty(); }));
    ASSERT_EQ(set(blue, first, Fill), QString());
    EXPECT_EQ(shown(first), blue);
    EXPECT_TRUE(seen(0, Middle, Qt::blue));
}

DESKTOP_TEST(PlasmaLab, followsThePluggedScreen)
DESKTOP_TEST(PlasmaLab, knowsWhoFillsTheScreen)
DESKTOP_TEST(PlasmaLab, comesBackAfterRestart)

} // namespace
