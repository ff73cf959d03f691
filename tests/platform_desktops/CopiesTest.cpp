// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "platform/linux/desktops/CopyPlan.h"
#include "platform/linux/desktops/ScaledCopies.h"

#include <QPainter>

namespace {

TEST(CopyPlan, showsTheSameOnEveryScreen)
{
    using enum DesktopScaling;
    const QSize small(800, 600);
    const QSize wide(1600, 600);
    const Table<const char *, QSize, QList<QSize>, DesktopScaling, std::optional<CopyPlan>> cases{
        {"fill covers", {6000, 4000}, {small}, Fill, CopyPlan{{900, 600}, {0, 0, 900, 600}}},
        {"fill covers the one that needs most",
         {6000, 4000},
         {small, wide},
         Fill,
         CopyPlan{{1600, 1066}, {0, 0, 1600, 1066}}},
        {"fit stays inside", {6000, 4000}, {small}, Fit, CopyPlan{{800, 533}, {0, 0, 800, 533}}},
        {"centred is cut, an even number off each side",
         {6001, 4000},
         {small},
         Centred,
         CopyPlan{{6001, 4000}, {2600, 1700, 801, 600}}},
        {"centred and long",
         {400, 9000},
         {small},
         Centred,
         CopyPlan{{400, 9000}, {0, 4200, 400, 600}}},
        {"hardly larger", {880, 640}, {small}, Fill, {}},
        {"smaller", {80, 60}, {small}, Fill, {}},
        {"no picture", {}, {small}, Fill, {}},
        {"no screen", {6000, 4000}, {}, Fill, {}},
        {"a line", {100000, 1}, {small}, Fit, CopyPlan{{800, 1}, {0, 0, 800, 1}}},
    };
    for (const auto &[name, picture, screens, scaling, plan] : cases)
        EXPECT_EQ(planCopy(picture, screens, scaling), plan) << name;
}

TEST(CopyPlan, cutsInTheShapeOfTheScreen)
{
    const QSize screen(800, 600);
    EXPECT_EQ(planCut({1600, 200}, screen), (CopyPlan{{4800, 600}, {2000, 0, 800, 600}}));
    EXPECT_EQ(planCut({300, 2000}, screen), (CopyPlan{{800, 5333}, {0, 2367, 800, 600}}));
    EXPECT_EQ(planCut({4000, 3000}, screen), std::nullopt);
    EXPECT_EQ(planCut({}, screen), std::nullopt);
}

struct Copies : ::testing::Test
{
    QString picture(const QString &name, QImage::Format format, const QColor &colour = Qt::red)
    {
        QImage image(1200, 900,
                     colour.alpha() < 255 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
        image.fill(colour);
        const QString path = m_home.path(name);
        EXPECT_TRUE(image.convertToFormat(format).save(path));
        return path;
    }

    QString prepared(ScaledCopies &copies, const QString &path, QSize screen = {120, 90})
    {
        QString result;
        copies.prepare(path, {screen}, DesktopScaling::Fill, [&](const QString &f) { result = f; });
        EXPECT_TRUE(result.isEmpty());
        EXPECT_TRUE(waitFor([&] { return !result.isEmpty(); }));
        return result;
    }

    QStringList files() { return QDir(m_folder).entryList(QDir::Files, QDir::Name); }

    TempHome m_home;
    QString m_folder = m_home.path(u"desktop"_s);
};

TEST_F(Copies, keepSizeColourAndTransparency)
{
    const Table<const char *, QImage::Format, QColor, const char *> cases{
        {"plain.jpg", QImage::Format_RGB32, Qt::red, ".jpg"},
        {"two colours.png", QImage::Format_Mono, Qt::white, ".jpg"},
        {"palette.png", QImage::Format_Indexed8, Qt::red, ".jpg"},
        {"deep.png", QImage::Format_RGBA64, QColor(255, 0, 0, 128), ".png"},
        {"a\"b'\n%41 ü.png", QImage::Format_ARGB32, QColor(0, 0, 255, 100), ".png"},
    };
    ScaledCopies copies(m_folder);
    for (const auto &[name, format, colour, extension] : cases) {
        SCOPED_TRACE(name);
        const QString original = picture(QString::fromUtf8(name), format, colour);
        const QString copy = prepared(copies, original);
        EXPECT_TRUE(copy.startsWith(m_folder + u'/') && copy.endsWith(QLatin1String(extension)));
        const QImage image(copy);
        EXPECT_EQ(image.size(), QSize(120, 90));
        const QColor seen = image.pixelColor(60, 45);
        EXPECT_NEAR(seen.red(), colour.red(), 3);
        EXPECT_NEAR(seen.green(), colour.green(), 3);
        EXPECT_NEAR(seen.blue(), colour.blue(), 3);
        EXPECT_NEAR(seen.alpha(), colour.alpha(), 3);
        EXPECT_EQ(copies.original(copy), original);
    }
}

TEST_F(Copies, areTheLastTwoAndNothingElseIsTouched)
{
    m_home.write(u"desktop/holiday.jpg"_s, "mine");
    QStringList made;
    {
        ScaledCopies copies(m_folder);
        for (const char *name : {"1.png", "2.png", "3.png"})
            made += prepared(copies, picture(QLatin1String(name), QImage::Format_RGB32));
        EXPECT_EQ(prepared(copies, m_home.path(u"2.png"_s)), made[1]); // again
        made += prepared(copies, picture(u"4.png"_s, QImage::Format_RGB32));
    }
    EXPECT_EQ(files().size(), 4); // two copies, their list, the stranger
    EXPECT_TRUE(QFileInfo::exists(made[1]) && QFileInfo::exists(made[3]));
    EXPECT_EQ(TempHome::read(m_folder + "/holiday.jpg"_L1), "mine");
    const ScaledCopies later(m_folder);
    EXPECT_EQ(later.original(made[1]), m_home.path(u"2.png"_s));
    EXPECT_EQ(later.original(made[0]), made[0]);
}

TEST_F(Copies, areMadeAnewUnderAnotherNameWhenTheyAreLostOrTheirPictureChanges)
{
    const QString original = picture(u"1.png"_s, QImage::Format_RGB32);
    QString first;
    {
        ScaledCopies copies(m_folder);
        first = prepared(copies, original);
    }
    QFile::remove(first);
    ScaledCopies copies(m_folder);
    QString second;
    copies.restore(first, [&](const QString &file) { second = file; });
    MORAVEL_WAIT(!second.isEmpty());
    EXPECT_NE(second, first);
    EXPECT_TRUE(QFileInfo::exists(second));
    EXPECT_EQ(copies.original(second), original);
    QImage other(1000, 700, QImage::Format_RGB32);
    other.fill(Qt::green);
    ASSERT_TRUE(other.save(original));
    EXPECT_NE(prepared(copies, original), second);
}

TEST_F(Copies, handOverThePictureItselfWhenACopyHelpsNobody)
{
    m_home.write(u"desktop/copies.json"_s,
                 R"([{"copy":"../../etc/passwd","of":"/x"},{"copy":7},3)");
    ScaledCopies copies(m_folder);
    const QString drawing = m_home.write(
        u"vector.svg"_s, R"(<svg xmlns="http://www.w3.org/2000/svg" width="9000" height="9000"/>)");
    const QString broken = m_home.write(u"broken.png"_s, "\x89PNG\r\n\x1a\n");
    const QString small = picture(u"small.png"_s, QImage::Format_RGB32);
    EXPECT_EQ(prepared(copies, drawing), drawing);
    EXPECT_EQ(prepared(copies, broken), broken);
    EXPECT_EQ(prepared(copies, small, {1920, 1080}), small);
    EXPECT_EQ(prepared(copies, m_home.path(u"none"_s)), m_home.path(u"none"_s));
    EXPECT_EQ(files(), QStringList(u"copies.json"_s));
}

} // namespace
