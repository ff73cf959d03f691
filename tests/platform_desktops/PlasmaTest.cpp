// SPDX-License-Identifier: MIT
#include "support/TempHome.h"
#include "support/Wait.h"

#include "platform/linux/desktops/FileUrls.h"
#include "platform/linux/desktops/PlasmaPictures.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>

namespace moravel {
namespace {

using testing::TempHome;

TEST(PlasmaScript, holdsNoTextUnquoted)
{
    const QString texts[] = {QStringLiteral("plain"),
                             QStringLiteral("\"); evil(\""),
                             QStringLiteral("back\\slash \\\" \\u0022"),
                             QStringLiteral("new\nline\r\t\x01"),
                             QStringLiteral("</script> ' ` ${x} %1 %2 %4"),
                             QStringLiteral("line\u2028and\u2029paragraph"),
                             QStringLiteral("\u00fc \u4e2d \U0001F600")};
    for (const QString &text : texts) {
        SCOPED_TRACE(qPrintable(text));
        const QString literal = scriptString(text);
        const auto back = QJsonDocument::fromJson('[' + literal.toUtf8() + ']').array();
        EXPECT_EQ(back, QJsonArray{text});
        for (const QChar c : literal)
            EXPECT_TRUE(c >= u' ' && c != QChar(0x2028) && c != QChar(0x2029));
        const QString script = plasmaSetScript({800, -20}, text, DesktopScaling::Fit);
        EXPECT_TRUE(script.contains(QLatin1String("writeConfig(\"Image\", ") + literal + u')'));
        EXPECT_TRUE(script.contains(QLatin1String("area.x !== 800 || area.y !== -20")));
        EXPECT_TRUE(script.contains(QLatin1String("\"FillMode\", 1")));
    }
    EXPECT_TRUE(plasmaSetScript({}, {}, DesktopScaling::Centred)
                    .contains(QLatin1String("\"FillMode\", 6")));
    EXPECT_TRUE(
        plasmaSetScript({}, {}, DesktopScaling::Fill).contains(QLatin1String("\"FillMode\", 2")));
}

TEST(PlasmaScript, spellsOneFileInTwoWays)
{
    const QString path = QStringLiteral("/a b/c#\"%41\n\u00fc.png");
    const QString one = plasmaImage(path, false);
    const QString other = plasmaImage(path, true);
    EXPECT_EQ(one, u"file:///a%20b/c%23%22%2541%0A%C3%BC.png");
    EXPECT_NE(one, other);
    for (const QString &image : {one, other})
        EXPECT_EQ(plasmaShownPath({{}, QStringLiteral("org.kde.image"), image, {}}), path);
}

TEST(PlasmaScript, answersAreUnderstoodOrRefused)
{
    TempHome home;
    for (const char *name : {"640x480.png", "3840x2160.jpg", "1920x1080.jpg"})
        home.write(QStringLiteral("pack/contents/images/") + QLatin1String(name), "x");
    const QByteArray package = home.path(QStringLiteral("pack/")).toUtf8();
    const QByteArray best =
        home.path(QStringLiteral("pack/contents/images/3840x2160.jpg")).toUtf8();

    struct Case
    {
        const char *plugin;
        QByteArray image;
        const char *folders;
        QByteArray shown;
    };

    const Case cases[] = {
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
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.plugin) + " " + c.image.toStdString() + " " + c.folders);
        EXPECT_EQ(plasmaShownPath({{},
                                   QLatin1String(c.plugin),
                                   QString::fromUtf8(c.image),
                                   QLatin1String(c.folders)}),
                  QString::fromUtf8(c.shown));
    }
    EXPECT_FALSE(parsePlasmaDesktops(QStringLiteral("Widgets are locked")));
    EXPECT_FALSE(parsePlasmaDesktops(QStringLiteral("{}")));
    EXPECT_EQ(parsePlasmaDesktops(QStringLiteral("[7,{\"x\":\"a\"}]\n"))->size(), 2);
}

/// Stands in for the shell: knows one screen and the two scripts.
class FakeShell : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.PlasmaShell")

public:
    QString plugin = QStringLiteral("org.kde.slideshow");
    QString image;
    QStringList images; ///< All that was set.
    QString error; ///< Not empty: what every script is answered with.
    bool isDeaf = false;

public Q_SLOTS:

    QString evaluateScript(const QString &script)
    {
        static const QRegularExpression set(QStringLiteral("writeConfig\\(\"Image\", (\".*\")\\)"));
        if (!error.isEmpty()) {
            sendErrorReply(QDBusError::Failed, error);
            return {};
        }
        const auto match = set.match(script);
        if (!match.hasMatch()) {
            const QJsonObject desktop{{QStringLiteral("x"), 0},
                                      {QStringLiteral("y"), 0},
                                      {QStringLiteral("plugin"), plugin},
                                      {QStringLiteral("image"), image},
                                      {QStringLiteral("folders"), QStringLiteral("/slides,/more")}};
            return QString::fromUtf8(QJsonDocument(QJsonArray{desktop}).toJson());
        }
        const QString text =
            QJsonDocument::fromJson('[' + match.captured(1).toUtf8() + ']')[0].toString();
        images += text;
        if (!isDeaf) {
            plugin = QStringLiteral("org.kde.image");
            image = text;
        }
        return QStringLiteral("[]");
    }
};

class Plasma : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address")});
        MORAVEL_WAIT(m_daemon.canReadLine());
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
        qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
        start();
        m_pictures = std::make_unique<PlasmaPictures>(
            QDBusConnection::connectToBus(m_address, QStringLiteral("client")));
        m_screen = QGuiApplication::primaryScreen()->name();
        MORAVEL_WAIT(url() == u"file://localhost/slides/");
    }

    void TearDown() override
    {
        m_pictures.reset();
        stop();
        QDBusConnection::disconnectFromBus(QStringLiteral("client"));
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    void start()
    {
        auto bus = QDBusConnection::connectToBus(m_address, QStringLiteral("shell"));
        EXPECT_TRUE(bus.registerObject(QStringLiteral("/PlasmaShell"), &m_shell,
                                       QDBusConnection::ExportAllSlots));
        EXPECT_TRUE(bus.registerService(QStringLiteral("org.kde.plasmashell")));
    }

    static void stop() { QDBusConnection::disconnectFromBus(QStringLiteral("shell")); }

    QString url() const { return m_pictures->desktopImageUrl(m_screen); }

    QString set(const QString &path, const QString &screen)
    {
        QString result;
        m_pictures->setDesktopImageUrl(
            fileUrl(path), screen, DesktopScaling::Fill, [&](const auto &outcome) {
                result = outcome ? QStringLiteral("-")
                                 : outcome.error().screen + u'/' + outcome.error().description;
            });
        EXPECT_TRUE(result.isEmpty()) << "answered from within";
        EXPECT_TRUE(testing::waitFor([&] { return !result.isEmpty(); }));
        return result;
    }

    TempHome m_home;
    QProcess m_daemon;
    QString m_address;
    QString m_screen;
    FakeShell m_shell;
    std::unique_ptr<PlasmaPictures> m_pictures;
};

TEST_F(Plasma, setsReadsBackAndSpellsARewrittenFileAnew)
{
    const QString path = m_home.write(QStringLiteral("a \"b'\n%41.png"), "one");
    EXPECT_EQ(set(path, m_screen), u"-");
    EXPECT_EQ(url(), fileUrl(path));
    EXPECT_EQ(set(path, m_screen), u"-");
    m_home.write(QStringLiteral("a \"b'\n%41.png"), "another");
    EXPECT_EQ(set(path, m_screen), u"-");
    EXPECT_EQ(url(), fileUrl(path));
    const QString usual = plasmaImage(path, false);
    EXPECT_EQ(m_shell.images, QStringList({usual, usual, plasmaImage(path, true)}));
}

TEST_F(Plasma, tellsWhatFailedAndWhere)
{
    const QString path = m_home.write(QStringLiteral("a.png"), "one");
    EXPECT_EQ(set(path + u'x', m_screen), m_screen + QLatin1String("/The picture is not a file."));
    EXPECT_EQ(set(path, QStringLiteral("gone")), u"gone/The screen is not connected.");
    m_shell.isDeaf = true;
    EXPECT_EQ(set(path, m_screen),
              m_screen + QLatin1String("/The desktop did not keep the picture that it was given."));
    m_shell.error = QStringLiteral("Widgets are locked\nbacktrace");
    EXPECT_EQ(set(path, m_screen), m_screen + QLatin1String("/Widgets are locked"));
    EXPECT_EQ(url(), u"file://localhost/slides/");
}

TEST_F(Plasma, followsTheSettingsFileAlsoWhenItIsReplaced)
{
    const QString file = m_home.path(QStringLiteral("plasma-org.kde.plasma.desktop-appletsrc"));
    m_shell.plugin = QStringLiteral("org.kde.image");
    for (const char *name : {"1", "2", "3"}) {
        m_shell.image = QLatin1String("file:///") + QLatin1String(name);
        const QString part = m_home.write(QStringLiteral("part"), name);
        ASSERT_EQ(std::rename(qPrintable(part), qPrintable(file)), 0);
        MORAVEL_WAIT(url() == QLatin1String("file://localhost/") + QLatin1String(name));
    }
}

TEST_F(Plasma, noticesARestartedShell)
{
    int changes = 0;
    m_pictures->onScreensChanged = [&] { ++changes; };
    stop();
    m_shell.plugin = QStringLiteral("org.kde.image");
    m_shell.image = QStringLiteral("/new.png");
    start();
    MORAVEL_WAIT(changes > 0);
    EXPECT_EQ(url(), u"file://localhost/new.png");
}

} // namespace
} // namespace moravel

#include "PlasmaTest.moc"
