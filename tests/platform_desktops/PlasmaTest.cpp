// SPDX-License-Identifier: MIT
#include "platform_desktops/SetPicture.h"
#include "platform_session/FakeServices.h"

#include "platform/linux/desktops/FileUrls.h"
#include "platform/linux/desktops/PlasmaPictures.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QScreen>

namespace {

TEST(PlasmaScript, holdsNoTextUnquoted)
{
    const QString texts[] = {u"plain"_s,
                             u"\"); evil(\""_s,
                             u"back\\slash \\\" \\u0022"_s,
                             u"new\nline\r\t\x01"_s,
                             u"</script> ' ` ${x} %1 %2 %4"_s,
                             u"line\u2028and\u2029paragraph"_s,
                             u"\u00fc \u4e2d \U0001F600"_s};
    for (const QString &text : texts) {
        SCOPED_TRACE(qPrintable(text));
        const QString literal = scriptString(text);
        const auto back = QJsonDocument::fromJson('[' + literal.toUtf8() + ']').array();
        EXPECT_EQ(back, QJsonArray{text});
        for (const QChar c : literal)
            EXPECT_TRUE(c >= u' ' && c != QChar(0x2028) && c != QChar(0x2029));
        const QString script = plasmaSetScript({800, -20}, text, DesktopScaling::Fit);
        EXPECT_TRUE(script.contains("writeConfig(\"Image\", "_L1 + literal + u')'));
        EXPECT_TRUE(script.contains("area.x !== 800 || area.y !== -20"_L1));
        EXPECT_TRUE(script.contains("\"FillMode\", 1"_L1));
    }
    EXPECT_TRUE(plasmaSetScript({}, {}, DesktopScaling::Centred).contains("\"FillMode\", 6"_L1));
    EXPECT_TRUE(plasmaSetScript({}, {}, DesktopScaling::Fill).contains("\"FillMode\", 2"_L1));
}

TEST(PlasmaScript, spellsOneFileInTwoWays)
{
    const QString path = u"/a b/c#\"%41\n\u00fc.png"_s;
    const QString one = plasmaImage(path, false);
    const QString other = plasmaImage(path, true);
    EXPECT_EQ(one, u"file:///a%20b/c%23%22%2541%0A%C3%BC.png");
    EXPECT_NE(one, other);
    for (const QString &image : {one, other})
        EXPECT_EQ(plasmaShownPath({{}, u"org.kde.image"_s, image, {}}), path);
}

TEST(PlasmaScript, answersAreUnderstoodOrRefused)
{
    TempHome home;
    for (const char *name : {"640x480.png", "3840x2160.jpg", "1920x1080.jpg"})
        home.write(u"pack/contents/images/"_s + QLatin1String(name), "x");
    const QByteArray package = home.path(u"pack/"_s).toUtf8();
    const QByteArray best = home.path(u"pack/contents/images/3840x2160.jpg"_s).toUtf8();

    const Table<const char *, QByteArray, const char *, QByteArray> cases{
        {"org.kde.image", "file:///a%20b.png", "/s", "/a b.png"},
        {"org.kde.image", "/a%20b.png", "", "/a%20b.png"},
        {"org.kde.image", "", "/s", ""},
        {"org.kde.image", package, "", best},
        {"org.kde.image", "file://" + package, "", best},
        {"org.kde.slideshow", "file:///a.png", "/s/p", "/s/p/"},
        {"org.kde.slideshow", "", "/s\\,p/,/other", "/s,p/"},
        {"org.kde.slideshow", "", "", ""},
        {"org.kde.potd", "file:///a.png", "/s", ""},
    };
    for (const auto &[plugin, image, folders, shown] : cases)
        EXPECT_EQ(
            plasmaShownPath(
                {{}, QLatin1String(plugin), QString::fromUtf8(image), QLatin1String(folders)}),
            QString::fromUtf8(shown))
            << std::string(plugin) + " " + image.toStdString() + " " + folders;
    EXPECT_FALSE(parsePlasmaDesktops(u"Widgets are locked"_s));
    EXPECT_FALSE(parsePlasmaDesktops(u"{}"_s));
    EXPECT_EQ(parsePlasmaDesktops(u"[7,{\"x\":\"a\"}]\n"_s)->size(), 2);
}

struct Plasma : ::testing::Test
{
    void SetUp() override
    {
        qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
        start();
        m_pictures = std::make_unique<PlasmaPictures>(m_bus.connection());
        m_screen = QGuiApplication::primaryScreen()->name();
        MORAVEL_WAIT(url() == u"file://localhost/slides/");
    }

    void start()
    {
        m_shell.reset();
        m_shell = std::make_unique<FakeService>(
            m_bus.connection(), "org.kde.plasmashell",
            [this](const QDBusMessage &call) { return evaluate(call.arguments()[0].toString()); });
    }

    /// Knows one screen and the two scripts.
    QString evaluate(const QString &script)
    {
        static const QRegularExpression set(u"writeConfig\\(\"Image\", (\".*\")\\)"_s);
        if (!error.isEmpty())
            return u'!' + error;
        const auto match = set.match(script);
        if (!match.hasMatch()) {
            const QJsonObject desktop{{u"x"_s, 0},
                                      {u"y"_s, 0},
                                      {u"plugin"_s, plugin},
                                      {u"image"_s, image},
                                      {u"folders"_s, u"/slides,/more"_s}};
            return QString::fromUtf8(QJsonDocument(QJsonArray{desktop}).toJson());
        }
        images += QJsonDocument::fromJson('[' + match.captured(1).toUtf8() + ']')[0].toString();
        if (!isDeaf) {
            plugin = u"org.kde.image"_s;
            image = images.last();
        }
        return u"[]"_s;
    }

    QString url() const { return m_pictures->desktopImageUrl(m_screen); }

    QString set(const QString &path) { return setPicture(*m_pictures, path, m_screen); }

    QString plugin = u"org.kde.slideshow"_s;
    QString image;
    QStringList images; ///< All that was set.
    QString error; ///< Not empty: what every script is answered with.
    bool isDeaf = false;
    TempHome m_home;
    PrivateBus m_bus;
    QString m_screen;
    std::unique_ptr<FakeService> m_shell;
    std::unique_ptr<PlasmaPictures> m_pictures;
};

TEST_F(Plasma, setsReadsBackAndSpellsARewrittenFileAnew)
{
    const QString path = m_home.write(u"a \"b'\n%41.png"_s, "one");
    EXPECT_EQ(set(path), QString());
    EXPECT_EQ(url(), fileUrl(path));
    EXPECT_EQ(set(path), QString());
    m_home.write(u"a \"b'\n%41.png"_s, "another");
    EXPECT_EQ(set(path), QString());
    EXPECT_EQ(url(), fileUrl(path));
    const QString usual = plasmaImage(path, false);
    EXPECT_EQ(images, QStringList({usual, usual, plasmaImage(path, true)}));
}

TEST_F(Plasma, tellsWhatFailed)
{
    const QString path = m_home.write(u"a.png"_s, "one");
    EXPECT_EQ(set(path + u'x'), u"The picture is not a file.");
    EXPECT_EQ(setPicture(*m_pictures, path, u"gone"_s), u"The screen is not connected.");
    isDeaf = true;
    EXPECT_EQ(set(path), u"The desktop did not keep the picture that it was given.");
    error = u"Widgets are locked\nbacktrace"_s;
    EXPECT_EQ(set(path), u"Widgets are locked");
    EXPECT_EQ(url(), u"file://localhost/slides/");
}

TEST_F(Plasma, followsTheSettingsFileAlsoWhenItIsReplaced)
{
    const QString file = m_home.path(u"plasma-org.kde.plasma.desktop-appletsrc"_s);
    plugin = u"org.kde.image"_s;
    for (const char *name : {"1", "2", "3"}) {
        image = "file:///"_L1 + QLatin1String(name);
        const QString part = m_home.write(u"part"_s, name);
        ASSERT_EQ(std::rename(qPrintable(part), qPrintable(file)), 0);
        MORAVEL_WAIT(url() == "file://localhost/"_L1 + QLatin1String(name));
    }
}

TEST_F(Plasma, noticesARestartedShell)
{
    int changes = 0;
    m_pictures->onScreensChanged = [&] { ++changes; };
    plugin = u"org.kde.image"_s;
    image = u"/new.png"_s;
    start();
    MORAVEL_WAIT(changes > 0);
    EXPECT_EQ(url(), u"file://localhost/new.png");
}

} // namespace
