// SPDX-License-Identifier: MIT
#include "server/sources/folder/FolderSource.h"

#include "support/TempHome.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace moravel::server {

namespace {

QByteArray picture(const char *format, QSize size = {40, 20})
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

struct FolderFixture : ::testing::Test
{
    testing::TempHome home;
    RenderCache cache{home.path(QStringLiteral("cache")), 1 << 20};
    FolderSource source{{QStringLiteral("Ours"), QStringLiteral("Our own"),
                         home.path(QStringLiteral("pics")), QStringLiteral("We"),
                         QStringLiteral("CC0")},
                        cache};
    const QDate epoch{1970, 1, 1};

    void put(const char *name, const QByteArray &bytes) const
    {
        home.write(QStringLiteral("pics/") + QString::fromUtf8(name), bytes);
    }

    QString captionOn(QDate date) const
    {
        const auto day = source.describe(date);
        return day ? day->caption : QStringLiteral("Error ") + day.error().message;
    }
};

} // namespace

TEST_F(FolderFixture, GoesRoundInNameOrderAndSeesNewFiles)
{
    EXPECT_EQ(source.describe(epoch).error().reason, Reason::NothingThatDay); // No folder yet.
    put("b_harbour-at_dusk.png", picture("png"));
    put("a.jpg", picture("jpg"));
    EXPECT_EQ(captionOn(epoch), QStringLiteral("A"));
    EXPECT_EQ(captionOn(epoch.addDays(1)), QStringLiteral("B harbour at dusk"));
    EXPECT_EQ(captionOn(epoch.addDays(-1)), QStringLiteral("B harbour at dusk"));
    put("0.png", picture("png"));
    EXPECT_EQ(captionOn(epoch), QStringLiteral("0"));
}

TEST_F(FolderFixture, OnlyPlainPicturesOfTheFolderItself)
{
    put("good.png", picture("png"));
    put(".hidden.png", picture("png"));
    put("notes.txt", "x");
    put("vector.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    put("sub/deeper.png", picture("png"));
    home.write(QStringLiteral("outside.png"), picture("png"));
    QFile::link(home.path(QStringLiteral("outside.png")),
                home.path(QStringLiteral("pics/link.png")));
    ::mkfifo(home.path(QStringLiteral("pics/pipe.png")).toLocal8Bit().constData(), 0600);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(captionOn(epoch.addDays(i)), QStringLiteral("Good"));
}

TEST_F(FolderFixture, FilesThatAreNoPicturesAreRefused)
{
    QByteArray huge = picture("bmp");
    huge.replace(18, 8, QByteArray("\xff\xff\x00\x00\xff\xff\x00\x00", 8)); // 65535 × 65535
    for (const QByteArray &bad :
         {QByteArray(), QByteArray("x"), QByteArray(5000, '\xff'), picture("png").left(20), huge,
          QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>")}) {
        put("a.png", bad);
        const auto day = source.describe(epoch);
        ASSERT_FALSE(day) << bad.size();
        EXPECT_EQ(day.error().reason, Reason::NotAPicture);
        EXPECT_FALSE(source.picture(epoch, PictureKind::Thumb));
    }
    put("a.png", picture("png").left(60)); // A good head with nothing behind it.
    EXPECT_FALSE(source.picture(epoch, PictureKind::Thumb));
}

TEST_F(FolderFixture, GivesTheOriginalAndFittedPictures)
{
    const QByteArray original = picture("png", {1000, 2000});
    put("a.PNG", original);
    const auto day = source.describe(epoch);
    ASSERT_TRUE(day);
    EXPECT_EQ(day->fullSize, QSize(1000, 2000));
    EXPECT_EQ(day->fullSuffix, QStringLiteral("original.png"));
    EXPECT_EQ(day->credit, QStringLiteral("We, CC0"));
    EXPECT_FALSE(day->isFinal);
    const auto full = source.picture(epoch, PictureKind::Full);
    ASSERT_TRUE(full);
    EXPECT_EQ(full->file->readAll(), original);
    EXPECT_EQ(full->type, "image/png");
    const auto sized = [&](PictureKind kind) {
        const auto content = source.picture(epoch, kind);
        return content ? QImage::fromData(content->file->readAll()) : QImage();
    };
    EXPECT_EQ(sized(PictureKind::Thumb).size(), QSize(112, 225));
    EXPECT_EQ(sized(PictureKind::Normal).size(), QSize(540, 1080));
    EXPECT_EQ(sized(PictureKind::Thumb).pixelColor(50, 50), QColor(Qt::white)); // Was transparent.
    put("a.PNG", picture("png", {30, 30})); // The changed file is made anew, and not enlarged.
    EXPECT_EQ(sized(PictureKind::Thumb).size(), QSize(30, 30));
}

TEST_F(FolderFixture, EmbeddedTitlesAndOrientationAreUsed)
{
    put("a.jpg", picture("jpg"));
    const auto image =
        Exiv2::ImageFactory::open(home.path(QStringLiteral("pics/a.jpg")).toStdString());
    image->readMetadata();
    image->xmpData()["Xmp.dc.title"] = "lang=x-default Harbour\n<at> dusk";
    image->iptcData()["Iptc.Application2.Caption"] = "Taken by night.";
    image->exifData()["Exif.Image.Orientation"] = uint16_t(6);
    image->writeMetadata();
    const auto day = source.describe(epoch);
    ASSERT_TRUE(day);
    EXPECT_EQ(day->caption, QStringLiteral("Harbour <at> dusk"));
    EXPECT_EQ(day->info, QStringLiteral("Taken by night."));
    EXPECT_EQ(day->fullSize, QSize(20, 40));
}

} // namespace moravel::server
