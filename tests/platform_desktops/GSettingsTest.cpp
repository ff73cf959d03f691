// SPDX-License-Identifier: MIT
// Runs on schemas of its own and GLib's memory backend; the settings of the user are out of reach.
#include "support/TempHome.h"
#include "support/Wait.h"

#include "platform/linux/desktops/FileUrls.h"
#include "platform/linux/desktops/GSettingsPictures.h"
#include "platform/linux/desktops/SettingsPictures.h"

#include <QFileInfo>
#include <QImage>
#include <QProcess>

namespace moravel {
namespace {

using testing::TempHome;
using Text = std::optional<QString>;

Text text(const char *value)
{
    return value ? Text(QString::fromUtf8(value)) : std::nullopt;
}

TEST(GSettingsReading, tellsWhatIsShown)
{
    struct Case
    {
        const char *name;
        const char *picture;
        const char *dark;
        const char *options;
        const char *scheme;
        std::optional<bool> draws;
        std::optional<bool> slideshow;
        const char *source;
        const char *shown;
    };

    const Case cases[] = {
        {"uri", "file:///a%20b/%2541.jpg", {}, "zoom", {}, {}, {}, {}, "/a b/%41.jpg"},
        {"uri with a host", "file://localhost/a.jpg", {}, "zoom", {}, {}, {}, {}, "/a.jpg"},
        {"plain path", "/a%20b.jpg", {}, "zoom", {}, {}, {}, {}, "/a%20b.jpg"},
        {"light", "file:///l.jpg", "file:///d.jpg", "zoom", "default", {}, {}, {}, "/l.jpg"},
        {"dark", "file:///l.jpg", "file:///d.jpg", "zoom", "prefer-dark", {}, {}, {}, "/d.jpg"},
        {"dark without a key", "file:///l.jpg", {}, "zoom", "prefer-dark", {}, {}, {}, "/l.jpg"},
        {"nothing shown", "file:///l.jpg", {}, "none", {}, {}, {}, {}, ""},
        {"not drawn", "/l.jpg", {}, "zoom", {}, false, {}, {}, ""},
        {"drawn", "/l.jpg", {}, "zoom", {}, true, {}, {}, "/l.jpg"},
        {"timed", "file:///s/a%20b/t.XML", {}, "zoom", {}, {}, {}, {}, "/s/a b/"},
        {"slideshow",
         "file:///l.jpg",
         {},
         "zoom",
         {},
         {},
         true,
         "directory:///my pics",
         "/my pics/"},
        {"timed slideshow", "file:///l.jpg", {}, "zoom", {}, {}, true, "xml:///b/c.xml", "/b/"},
        {"slideshow off", "file:///l.jpg", {}, "zoom", {}, {}, false, "directory:///my", "/l.jpg"},
        {"slideshow of nothing", "file:///l.jpg", {}, "zoom", {}, {}, true, "", "/l.jpg"},
        {"other scheme", "https://a/b.jpg", {}, "zoom", {}, {}, {}, {}, ""},
        {"no keys", {}, {}, {}, {}, {}, {}, {}, ""},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const GSettingsReading reading{text(c.picture), text(c.dark), text(c.options),
                                       text(c.scheme),  c.draws,      c.slideshow,
                                       text(c.source)};
        EXPECT_EQ(shownPath(reading), QString::fromUtf8(c.shown));
    }
}

constexpr const char *Schemas = R"(<schemalist>
<enum id="t.options"><value nick="none" value="0"/><value nick="centered" value="1"/>
<value nick="scaled" value="2"/><value nick="zoom" value="3"/></enum>
<schema id="org.gnome.desktop.background" path="/t/gnome/"><key name="picture-uri" type="s"><default>''</default></key>
<key name="picture-uri-dark" type="s"><default>''</default></key>
<key name="picture-options" enum="t.options"><default>'zoom'</default></key></schema>
<schema id="org.gnome.desktop.interface" path="/t/interface/"><key name="color-scheme" type="s"><default>'default'</default></key></schema>
<schema id="org.mate.background" path="/t/mate/"><key name="picture-filename" type="s"><default>''</default></key>
<key name="draw-background" type="b"><default>false</default></key>
<key name="picture-options" enum="t.options"><default>'none'</default></key></schema>
<schema id="org.cinnamon.desktop.background" path="/t/cinnamon/"><key name="picture-uri" type="s"><default>''</default></key>
<key name="picture-options" enum="t.options"><default>'zoom'</default></key></schema>
<schema id="org.cinnamon.desktop.background.slideshow" path="/t/slides/"><key name="slideshow-enabled" type="b"><default>true</default></key>
<key name="image-source" type="s"><default>'directory:///usr/share/slides'</default></key></schema>
</schemalist>)";

class GSettings : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_schemas = std::make_unique<TempHome>();
        s_schemas->write(QStringLiteral("t.gschema.xml"), Schemas);
        ASSERT_EQ(QProcess::execute(QStringLiteral(GLIB_COMPILE_SCHEMAS), {s_schemas->path()}), 0);
        qputenv("GSETTINGS_SCHEMA_DIR", s_schemas->path().toUtf8());
        qputenv("GSETTINGS_BACKEND", "memory");
    }

    static void TearDownTestSuite() { s_schemas.reset(); }

    std::unique_ptr<DesktopPictures> pictures(const char *word)
    {
        return makeSettingsPictures(QString::fromLatin1(word), m_home.path());
    }

    QString picture(const QString &name, QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        EXPECT_TRUE(image.save(m_home.path(name)));
        return m_home.path(name);
    }

    /// Sets and returns what failed; "-" when nothing did.
    QString set(DesktopPictures &desktop, const QString &path, DesktopScaling scaling)
    {
        QString result;
        desktop.setDesktopImageUrl(fileUrl(path), {}, scaling, [&](const auto &outcome) {
            result = outcome ? QStringLiteral("-") : outcome.error().description;
        });
        EXPECT_TRUE(result.isEmpty()) << "answered from within";
        EXPECT_TRUE(testing::waitFor([&] { return !result.isEmpty(); }));
        return result;
    }

    TempHome m_home;
    static inline std::unique_ptr<TempHome> s_schemas;
};

TEST_F(GSettings, setEveryKeyThatTheDesktopReads)
{
    const QString path = picture(QStringLiteral("a \"b'\n%41ü.png"), {20, 10});

    struct Case
    {
        const char *word;
        const char *schema;
        const char *key;
        bool plain;
    };

    const Case cases[] = {
        {"ubuntu:GNOME", "org.gnome.desktop.background", "picture-uri", false},
        {"Pantheon", "org.gnome.desktop.background", "picture-uri-dark", false},
        {"MATE", "org.mate.background", "picture-filename", true},
        {"X-Cinnamon", "org.cinnamon.desktop.background", "picture-uri", false},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.word);
        const auto desktop = pictures(c.word);
        ASSERT_TRUE(desktop);
        GSettingsKeys keys(QString::fromLatin1(c.schema));
        keys.setText(c.key, {});
        EXPECT_EQ(set(*desktop, path, DesktopScaling::Centred), u"-");
        EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
        EXPECT_EQ(keys.text(c.key), pictureValue(path, c.plain));
        EXPECT_EQ(keys.text("picture-options"), QStringLiteral("centered"));
        EXPECT_EQ(set(*desktop, m_home.path(QStringLiteral("none.png")), DesktopScaling::Fit),
                  u"The picture is not a file.");
        EXPECT_EQ(keys.text("picture-options"), QStringLiteral("centered"));
    }
    EXPECT_EQ(GSettingsKeys(QStringLiteral("org.mate.background")).flag("draw-background"), true);
    const GSettingsKeys slides(QStringLiteral("org.cinnamon.desktop.background.slideshow"));
    EXPECT_EQ(slides.flag("slideshow-enabled"), false);
}

TEST_F(GSettings, givesBudgieALinkToAnOddName)
{
    const QString path = picture(QStringLiteral("50%.png"), {20, 10});
    const auto desktop = pictures("Budgie:GNOME");
    EXPECT_EQ(set(*desktop, path, DesktopScaling::Fit), u"-");
    EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
    const GSettingsKeys keys(QStringLiteral("org.gnome.desktop.background"));
    const QString handed = pathOfUrl(keys.text("picture-uri").value_or(QString()));
    EXPECT_FALSE(handed.contains(u'%'));
    EXPECT_EQ(QFile::symLinkTarget(handed), path);
}

TEST_F(GSettings, followChangesFromOutside)
{
    const auto desktop = pictures("GNOME");
    GSettingsKeys keys(QStringLiteral("org.gnome.desktop.background"));
    GSettingsKeys interface(QStringLiteral("org.gnome.desktop.interface"));
    const auto becomes = [&](const char *url) {
        return testing::waitFor([&] { return desktop->desktopImageUrl({}) == QLatin1String(url); });
    };
    keys.setText("picture-uri", QStringLiteral("file:///l%20x.jpg"));
    keys.setText("picture-uri-dark", QStringLiteral("/dark.jpg"));
    EXPECT_TRUE(becomes("file://localhost/l%20x.jpg"));
    interface.setText("color-scheme", QStringLiteral("prefer-dark"));
    EXPECT_TRUE(becomes("file://localhost/dark.jpg"));
    keys.setText("picture-options", QStringLiteral("none"));
    EXPECT_TRUE(becomes(""));
    keys.setText("picture-options", QStringLiteral("zoom"));
    interface.setText("color-scheme", QStringLiteral("default"));
    EXPECT_TRUE(becomes("file://localhost/l%20x.jpg"));
}

TEST_F(GSettings, missingSchemasAndKeysAreNoCrash)
{
    GSettingsKeys nothing(QStringLiteral("org.moravel.nothing"));
    EXPECT_FALSE(nothing.isOpen() || nothing.text("a") || nothing.setText("a", {}));
    GSettingsKeys keys(QStringLiteral("org.mate.background"));
    EXPECT_FALSE(keys.text("picture-uri") || keys.flag("picture-filename"));
    EXPECT_FALSE(keys.setText("draw-background", {}) || keys.setFlag("picture-options", true));
    EXPECT_FALSE(keys.setText("picture-options", QStringLiteral("sideways")));
    EXPECT_EQ(pictures("ENLIGHTENMENT:Nothing"), nullptr);
    const GSettingsDesktop row{"Lost",        "lost",  "org.moravel.nothing",
                               "picture-uri", nullptr, nullptr,
                               nullptr,       false,   false};
    GSettingsPictures lost(row, m_home.path());
    EXPECT_FALSE(lost.isUsable());
    EXPECT_EQ(set(lost, picture(QStringLiteral("a.png"), {2, 2}), DesktopScaling::Fill),
              u"The desktop's setting is locked or missing.");
}

/// On a screen of its own: the test platform's has no name and counts as none.
class OnOneScreen : public GSettingsPictures
{
public:
    using GSettingsPictures::GSettingsPictures;

    QList<DesktopScreen> screens() const override
    {
        return {{QStringLiteral("ONE"), {800, 600}, true}};
    }
};

TEST_F(GSettings, largePicturesAreHandedOverAsCopiesAndReadAsThemselves)
{
    const QString path = picture(QStringLiteral("large.png"), {4000, 3000});
    GSettingsKeys keys(QStringLiteral("org.gnome.desktop.background"));
    const auto handed = [&] { return pathOfUrl(keys.text("picture-uri").value_or(QString())); };
    {
        OnOneScreen desktop(*gsettingsDesktop(QStringLiteral("gnome")),
                            m_home.path(QStringLiteral("desktop")));
        EXPECT_EQ(set(desktop, path, DesktopScaling::Fill), u"-");
        EXPECT_EQ(desktop.desktopImageUrl({}), fileUrl(path));
    }
    const QString copy = handed();
    EXPECT_TRUE(copy.startsWith(m_home.path(QStringLiteral("desktop/"))));
    EXPECT_EQ(keys.text("picture-uri-dark"), keys.text("picture-uri"));
    ASSERT_TRUE(QFile::remove(copy));
    const auto desktop = pictures("GNOME");
    EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
    MORAVEL_WAIT(handed() != copy);
    EXPECT_TRUE(QFileInfo::exists(handed()));
    EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
}

} // namespace
} // namespace moravel
