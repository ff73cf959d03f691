// SPDX-License-Identifier: MIT
// The desktops that keep one picture for all screens in GSettings.
#include "platform_desktops/DesktopLab.h"

#include "platform/linux/desktops/GSettingsDesktops.h"

#include <QFile>
#include <QRegularExpression>

using namespace moravel;
using namespace moravel::testing;

namespace {

class GSettingsLab : public DesktopLab
{
protected:
    const GSettingsDesktop &row() const
    {
        return *gsettingsDesktop(qEnvironmentVariable("XDG_CURRENT_DESKTOP").section(u':', 0, 0));
    }

    static void write(const char *schema, const char *key, const QString &value)
    {
        ASSERT_EQ(run(QStringLiteral("gsettings"),
                      {QStringLiteral("set"), QString::fromLatin1(schema), QString::fromLatin1(key),
                       value}),
                  0);
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
            QStringLiteral("gdbus call --session -d org.gnome.Mutter.DisplayConfig "
                           "-o /org/gnome/Mutter/DisplayConfig -m org.gnome.Mutter.DisplayConfig.");
        QStringList words = QProcess::splitCommand(call + QStringLiteral("GetCurrentState"));
        const QString state = output(words.takeFirst(), words);
        const QString serial =
            QRegularExpression(QStringLiteral("uint32 (\\d+)")).match(state).captured(1);
        QString monitors =
            QStringLiteral("(0,0,1.0,uint32 0,true,[('%1','800x600@60.000',@a{sv} {})])")
                .arg(first);
        if (in)
            monitors +=
                QStringLiteral(",(800,0,1.0,0,false,[('%1','800x600@60.000',{})])").arg(second);
        words = QProcess::splitCommand(call + QStringLiteral("ApplyMonitorsConfig"));
        const QString program = words.takeFirst();
        words << serial << QStringLiteral("1") << u'[' + monitors + u']' << QStringLiteral("{}");
        EXPECT_EQ(run(program, words), 0);
    }
};

TEST_F(GSettingsLab, setsOneScreenAndBoth)
{
    setsOneScreenAndBoth();
    tellsOnceThatOnePictureServesAll();
}

TEST_F(GSettingsLab, laysOutEachSizing)
{
    laysOutEachSizing();
}

TEST_F(GSettingsLab, takesOddNames)
{
    takesOddNames();
}

TEST_F(GSettingsLab, repaintsARewrittenFile)
{
    repaintsARewrittenFile();
}

TEST_F(GSettingsLab, noticesChangesFromOutside)
{
    noticesChangesFromOutside();
}

TEST_F(GSettingsLab, readsASlideshowAsItsFolderAndEndsIt)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    if (row().slideshowSchema) {
        write(row().slideshowSchema, "image-source",
              QStringLiteral("directory://") + m_folder.path());
        write(row().slideshowSchema, "slideshow-enabled", QStringLiteral("true"));
    } else {
        QFile show(m_folder.filePath(QStringLiteral("show.xml")));
        ASSERT_TRUE(show.open(QIODevice::WriteOnly));
        show.write("<background><static><duration>9</duration><file>" + red.toUtf8()
                   + "</file></static></background>");
        setOutside(show.fileName());
    }
    EXPECT_TRUE(within(1'000, [&] { return shown(first) == m_folder.path() + u'/'; }))
        << qPrintable(shown(first));
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
    ASSERT_EQ(set(blue, first, DesktopScaling::Fill), QString());
    EXPECT_EQ(shown(first), blue);
    EXPECT_TRUE(seenOnAll(Qt::blue));
}

TEST_F(GSettingsLab, reportsAWriteThatIsRefusedLater)
{
    const QString red = picture(QStringLiteral("red.png"), Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), Qt::blue);
    ASSERT_EQ(set(red, first, DesktopScaling::Fill), QString());
    // With a file in the place of its folder the settings' service cannot write.
    const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/dconf");
    ASSERT_TRUE(QFile::rename(folder, folder + u'_') && QFile::copy(red, folder));
    EXPECT_NE(set(blue, first, DesktopScaling::Fill), QString());
    EXPECT_EQ(shown(first), red);
    ASSERT_TRUE(QFile::remove(folder) && QFile::rename(folder + u'_', folder));
    // The service may answer the change after a refused one with that refusal.
    EXPECT_TRUE(within(10'000, [&] { return set(blue, first, DesktopScaling::Fill).isEmpty(); }));
}

TEST_F(GSettingsLab, followsThePluggedScreen)
{
    followsThePluggedScreen();
}

TEST_F(GSettingsLab, comesBackAfterRestart)
{
    if (QGuiApplication::platformName() != u"xcb")
        GTEST_SKIP() << "the session ends with its compositor";
    comesBackAfterRestart(restart);
}

} // namespace
