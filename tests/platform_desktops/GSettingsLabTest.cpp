// SPDX-License-Identifier: MIT
// The desktops that keep one picture for all screens in GSettings.
#include "platform_desktops/DesktopLab.h"

#include "platform/linux/desktops/GSettingsDesktops.h"

#include <QRegularExpression>

#include <cstdio>
#include <fcntl.h>

namespace {

struct GSettingsLab : DesktopLab
{
    const GSettingsDesktop &row() const
    {
        return *gsettingsDesktop(qEnvironmentVariable("XDG_CURRENT_DESKTOP").section(u':', 0, 0));
    }

    static void write(const char *schema, const char *key, const QString &value)
    {
        const QString line = u"gsettings set %1 %2"_s;
        ASSERT_EQ(run(line.arg(QLatin1String(schema), QLatin1String(key)), {value}), 0);
    }

    void setOutside(const QString &path) override
    {
        write(row().schema, row().pictureKey, pictureValue(path, row().plainPath));
    }

    void plug(bool in) override
    {
        if (QGuiApplication::platformName() == u"xcb")
            DesktopLab::plug(in);
        else
            plugVirtualMonitor(in);
    }

    void plugVirtualMonitor(bool in)
    {
        const QString call =
            u"gdbus call --session -d org.gnome.Mutter.DisplayConfig "
            "-o /org/gnome/Mutter/DisplayConfig -m org.gnome.Mutter.DisplayConfig."_s;
        const QString state = output(call + u"GetCurrentState"_s);
        const QString serial = QRegularExpression(u"uint32 (\\d+)"_s).match(state).captured(1);
        QString monitors =
            u"(0,0,1.0,uint32 0,true,[('%1','800x600@60.000',@a{sv} {})])"_s.arg(first);
        if (in)
            monitors += u",(800,0,1.0,0,false,[('%1','800x600@60.000',{})])"_s.arg(second);
        const QStringList words{serial, u"1"_s, u'[' + monitors + u']', u"{}"_s};
        EXPECT_EQ(run(call + u"ApplyMonitorsConfig"_s, words), 0);
    }
};

DESKTOP_TESTS(GSettingsLab)
DESKTOP_TEST(GSettingsLab, noticesChangesFromOutside)

TEST_F(GSettingsLab, readsASlideshowAsItsFolderAndEndsIt)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    if (row().slideshowSchema) {
        write(row().slideshowSchema, "image-source", u"directory://"_s + m_folder.path());
        write(row().slideshowSchema, "slideshow-enabled", u"true"_s);
    } else {
        QFile show(m_folder.filePath(u"show.xml"_s));
        ASSERT_TRUE(show.open(QIODevice::WriteOnly));
        show.write("<background><static><duration>9</duration><file>" + red.toUtf8()
                   + "</file></static></background>");
        setOutside(show.fileName());
    }
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }))
        << qPrintable(shown(first));
    ASSERT_EQ(set(blue, first, Fill), QString());
    EXPECT_EQ(shown(first), blue);
    EXPECT_TRUE(seenOnAll(Qt::blue));
}

TEST_F(GSettingsLab, reportsAWriteThatIsRefusedLater)
{
    ASSERT_EQ(set(red, first, Fill), QString());
    // With a file in the place of its folder the settings' service cannot write. They change places at
    // one stroke, since the service makes a folder where it finds none.
    const QByteArray folder = qgetenv("XDG_CONFIG_HOME") + "/dconf";
    const QByteArray file = folder + "_";
    const auto exchange = [&] {
        return ::renameat2(AT_FDCWD, file.constData(), AT_FDCWD, folder.constData(),
                           RENAME_EXCHANGE);
    };
    ASSERT_TRUE(QFile::copy(red, QFile::decodeName(file)));
    ASSERT_EQ(exchange(), 0);
    EXPECT_NE(set(blue, first, Fill), QString());
    EXPECT_EQ(shown(first), red);
    ASSERT_EQ(exchange(), 0);
    // The service may answer the change after a refused one with that refusal.
    EXPECT_TRUE(within(10'000, [&] { return set(blue, first, Fill).isEmpty(); }));
}

DESKTOP_TEST(GSettingsLab, followsThePluggedScreen)

TEST_F(GSettingsLab, comesBackAfterRestart)
{
    if (QGuiApplication::platformName() != u"xcb")
        GTEST_SKIP() << "the session ends with its compositor";
    comesBackAfterRestart();
}

} // namespace
