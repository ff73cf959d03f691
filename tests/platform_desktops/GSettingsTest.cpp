// SPDX-License-Identifier: MIT
// Runs on schemas of its own and GLib's memory backend; the settings of the user are out of reach.
#include "platform_desktops/SetPicture.h"

#include "platform/linux/desktops/FileUrls.h"
#include "platform/linux/desktops/GSettingsPictures.h"
#include "platform/linux/desktops/SettingsPictures.h"

#include <QProcess>

namespace {

TEST(GSettingsReading, tellsWhatIsShown)
{
    const QString zoom = u"zoom"_s;
    const QString light = u"file:///l.jpg"_s;
    const QString dark = u"file:///d.jpg"_s;
    const Table<const char *, GSettingsReading, const char *> cases{
        {"uri", {u"file:///a%20b/%2541.jpg"_s, {}, zoom, {}, {}, {}, {}}, "/a b/%41.jpg"},
        {"uri with a host", {u"file://localhost/a.jpg"_s, {}, zoom, {}, {}, {}, {}}, "/a.jpg"},
        {"plain path", {u"/a%20b.jpg"_s, {}, zoom, {}, {}, {}, {}}, "/a%20b.jpg"},
        {"light", {light, dark, zoom, u"default"_s, {}, {}, {}}, "/l.jpg"},
        {"dark", {light, dark, zoom, u"prefer-dark"_s, {}, {}, {}}, "/d.jpg"},
        {"dark without a key", {light, {}, zoom, u"prefer-dark"_s, {}, {}, {}}, "/l.jpg"},
        {"nothing shown", {light, {}, u"none"_s, {}, {}, {}, {}}, ""},
        {"not drawn", {u"/l.jpg"_s, {}, zoom, {}, false, {}, {}}, ""},
        {"drawn", {u"/l.jpg"_s, {}, zoom, {}, true, {}, {}}, "/l.jpg"},
        {"timed", {u"file:///s/a%20b/t.XML"_s, {}, zoom, {}, {}, {}, {}}, "/s/a b/"},
        {"slideshow", {light, {}, zoom, {}, {}, true, u"directory:///my pics"_s}, "/my pics/"},
        {"timed slideshow", {light, {}, zoom, {}, {}, true, u"xml:///b/c.xml"_s}, "/b/"},
        {"slideshow off", {light, {}, zoom, {}, {}, false, u"directory:///my"_s}, "/l.jpg"},
        {"slideshow of nothing", {light, {}, zoom, {}, {}, true, u""_s}, "/l.jpg"},
        {"other scheme", {u"https://a/b.jpg"_s, {}, zoom, {}, {}, {}, {}}, ""},
        {"no keys", {}, ""},
    };
    for (const auto &[name, reading, shown] : cases)
        EXPECT_EQ(shownPath(reading), QLatin1String(shown)) << name;
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

struct GSettings : ::testing::Test
{
    static void SetUpTestSuite()
    {
        s_schemas = std::make_unique<TempHome>();
        s_schemas->write(u"t.gschema.xml"_s, Schemas);
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

    TempHome m_home;
    static inline std::unique_ptr<TempHome> s_schemas;
};

TEST_F(GSettings, setEveryKeyThatTheDesktopReads)
{
    const QString path = picture(u"a \"b'\n%41ü.png"_s, {20, 10});

    const Table<const char *, const char *, const char *, bool> cases{
        {"ubuntu:GNOME", "org.gnome.desktop.background", "picture-uri", false},
        {"Pantheon", "org.gnome.desktop.background", "picture-uri-dark", false},
        {"MATE", "org.mate.background", "picture-filename", true},
        {"X-Cinnamon", "org.cinnamon.desktop.background", "picture-uri", false},
    };
    for (const auto &[word, schema, key, plain] : cases) {
        SCOPED_TRACE(word);
        const auto desktop = pictures(word);
        ASSERT_TRUE(desktop);
        GSettingsKeys keys(QString::fromLatin1(schema));
        keys.setText(key, {});
        EXPECT_EQ(setPicture(*desktop, path, {}, DesktopScaling::Centred), QString());
        EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
        EXPECT_EQ(keys.text(key), pictureValue(path, plain));
        EXPECT_EQ(keys.text("picture-options"), u"centered"_s);
        EXPECT_EQ(setPicture(*desktop, m_home.path(u"none.png"_s)), u"The picture is not a file.");
        EXPECT_EQ(keys.text("picture-options"), u"centered"_s);
    }
    EXPECT_EQ(GSettingsKeys(u"org.mate.background"_s).flag("draw-background"), true);
    const GSettingsKeys slides(u"org.cinnamon.desktop.background.slideshow"_s);
    EXPECT_EQ(slides.flag("slideshow-enabled"), false);
}

TEST_F(GSettings, givesBudgieALinkToAnOddName)
{
    const QString path = picture(u"50%.png"_s, {20, 10});
    const auto desktop = pictures("Budgie:GNOME");
    EXPECT_EQ(setPicture(*desktop, path), QString());
    EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
    const GSettingsKeys keys(u"org.gnome.desktop.background"_s);
    const QString handed = pathOfUrl(keys.text("picture-uri").value_or(QString()));
    EXPECT_FALSE(handed.contains(u'%'));
    EXPECT_EQ(QFile::symLinkTarget(handed), path);
}

TEST_F(GSettings, followChangesFromOutside)
{
    const auto desktop = pictures("GNOME");
    GSettingsKeys keys(u"org.gnome.desktop.background"_s);
    GSettingsKeys interface(u"org.gnome.desktop.interface"_s);
    const auto becomes = [&](const char *url) {
        return waitFor([&] { return desktop->desktopImageUrl({}) == QLatin1String(url); });
    };
    keys.setText("picture-uri", u"file:///l%20x.jpg"_s);
    keys.setText("picture-uri-dark", u"/dark.jpg"_s);
    EXPECT_TRUE(becomes("file://localhost/l%20x.jpg"));
    interface.setText("color-scheme", u"prefer-dark"_s);
    EXPECT_TRUE(becomes("file://localhost/dark.jpg"));
    keys.setText("picture-options", u"none"_s);
    EXPECT_TRUE(becomes(""));
    keys.setText("picture-options", u"zoom"_s);
    interface.setText("color-scheme", u"default"_s);
    EXPECT_TRUE(becomes("file://localhost/l%20x.jpg"));
}

TEST_F(GSettings, missingSchemasAndKeysAreNoCrash)
{
    GSettingsKeys nothing(u"org.moravel.nothing"_s);
    EXPECT_FALSE(nothing.isOpen() || nothing.text("a") || nothing.setText("a", {}));
    GSettingsKeys keys(u"org.mate.background"_s);
    EXPECT_FALSE(keys.text("picture-uri") || keys.flag("picture-filename"));
    EXPECT_FALSE(keys.setText("draw-background", {}) || keys.setFlag("picture-options", true));
    EXPECT_FALSE(keys.setText("picture-options", u"sideways"_s));
    EXPECT_EQ(pictures("ENLIGHTENMENT:Nothing"), nullptr);
    const GSettingsDesktop row{"Lost",        "lost",  "org.moravel.nothing",
                               "picture-uri", nullptr, nullptr,
                               nullptr,       false,   false};
    GSettingsPictures lost(row, m_home.path());
    EXPECT_FALSE(lost.isUsable());
    EXPECT_EQ(setPicture(lost, picture(u"a.png"_s, {2, 2})),
              u"The desktop's setting is locked or missing.");
}

/// On a screen of its own: the test platform's has no name and counts as none.
class OnOneScreen : public GSettingsPictures
{
public:
    using GSettingsPictures::GSettingsPictures;

    QList<DesktopScreen> screens() const override { return {{u"ONE"_s, {800, 600}, true}}; }
};

TEST_F(GSettings, largePicturesAreHandedOverAsCopiesAndReadAsThemselves)
{
    const QString path = picture(u"large.png"_s, {4000, 3000});
    GSettingsKeys keys(u"org.gnome.desktop.background"_s);
    const auto handed = [&] { return pathOfUrl(keys.text("picture-uri").value_or(QString())); };
    {
        OnOneScreen desktop(*gsettingsDesktop(u"gnome"_s), m_home.path(u"desktop"_s));
        EXPECT_EQ(setPicture(desktop, path), QString());
        EXPECT_EQ(desktop.desktopImageUrl({}), fileUrl(path));
    }
    const QString copy = handed();
    EXPECT_TRUE(copy.startsWith(m_home.path(u"desktop/"_s)));
    EXPECT_EQ(keys.text("picture-uri-dark"), keys.text("picture-uri"));
    ASSERT_TRUE(QFile::remove(copy));
    const auto desktop = pictures("GNOME");
    EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
    MORAVEL_WAIT(handed() != copy);
    EXPECT_TRUE(QFileInfo::exists(handed()));
    EXPECT_EQ(desktop->desktopImageUrl({}), fileUrl(path));
}

} // namespace
