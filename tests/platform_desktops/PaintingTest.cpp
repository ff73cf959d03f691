// SPDX-License-Identifier: MIT
// What is seen of a picture on a screen, and what comes out of the decoder for it.
#include "support/Test.h"

#include "platform/linux/desktops/DesktopDecoder.h"
#include "platform/linux/desktops/DesktopRecord.h"
#include "platform/linux/desktops/PicturePlacement.h"

#include <sys/stat.h>

namespace {

constexpr auto Centred = DesktopScaling::Centred;
constexpr auto Fit = DesktopScaling::Fit;
constexpr auto Fill = DesktopScaling::Fill;

TEST(PicturePlacement, keepsBothPartsBounded)
{
    const Table<QSize, QSize, DesktopScaling, QSize, QSize> table{
        {{400, 300}, {800, 600}, Centred, {400, 300}, {400, 300}},
        {{1600, 300}, {800, 600}, Centred, {800, 300}, {800, 300}},
        {{3840, 2160}, {800, 600}, Fit, {3840, 2160}, {800, 450}},
        {{3840, 2160}, {800, 600}, Fill, {2880, 2160}, {800, 600}},
        {{100, 400}, {800, 600}, Fill, {100, 75}, {800, 600}},
        {{100, 50}, {800, 600}, Fit, {100, 50}, {800, 400}},
        {{20000, 1}, {800, 600}, Fit, {20000, 1}, {800, 1}},
        {{20000, 1}, {800, 600}, Fill, {1, 1}, {800, 600}},
        {{0, 0}, {800, 600}, Fill, {0, 0}, {0, 0}},
    };
    for (const auto &[picture, screen, scaling, part, shown] : table) {
        const PicturePlacement is = placePicture(picture, screen, scaling);
        EXPECT_EQ(is.part, part) << picture.width() << 'x' << picture.height();
        EXPECT_EQ(is.shown, shown) << picture.width() << 'x' << picture.height();
    }
}

struct DesktopDecoder : ::testing::Test
{
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    /// Writes a picture with a red left and a blue right half.
    QString halves(const char *name, QSize size) const
    {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.setPixel(x, y, x < size.width() / 2 ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
        EXPECT_TRUE(image.save(path(name)));
        return path(name);
    }

    QTemporaryDir m_folder;
    std::atomic<bool> m_stop = false;
};

TEST_F(DesktopDecoder, cutsTheMiddleInEveryFormat)
{
    for (const char *name : {"a.png", "a.jpg", "a.bmp"}) {
        SCOPED_TRACE(name);
        const QString file = halves(name, {400, 100});
        for (const DesktopScaling scaling : {Centred, Fit, Fill}) {
            const QImage image = decodeForScreen(file, {80, 60}, scaling, m_stop);
            const QSize size = scaling == Fit ? QSize(80, 20) : QSize(80, 60);
            ASSERT_EQ(image.size(), size);
            EXPECT_GT(qRed(image.pixel(30, 10)), 200);
            EXPECT_GT(qBlue(image.pixel(50, 10)), 200);
        }
    }
}

TEST_F(DesktopDecoder, turnsAPictureThatLiesOnItsSide)
{
    // A JPEG with an EXIF block that says "turn right by 90 degrees".
    QFile file(halves("side.jpg", {160, 80}));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    const QByteArray tiff("MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0", 26);
    const QByteArray exif = QByteArray("Exif\0\0", 6) + tiff;
    bytes.insert(2, QByteArray("\xff\xe1\0", 3) + char(exif.size() + 2) + exif);
    file.seek(0);
    file.write(bytes);
    file.close();

    const QImage image = decodeForScreen(file.fileName(), {40, 80}, Fill, m_stop);
    ASSERT_EQ(image.size(), QSize(40, 80));
    EXPECT_GT(qRed(image.pixel(20, 10)), 200);
    EXPECT_GT(qBlue(image.pixel(20, 70)), 200);
}

TEST_F(DesktopDecoder, refusesWhatIsNoPictureFile)
{
    QFile text(path("text.jpg"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    text.close();
    ASSERT_EQ(mkfifo(path("fifo.jpg").toLocal8Bit().constData(), 0600), 0);
    for (const QString &file : {text.fileName(), path("fifo.jpg"), path("none.jpg"), QString()})
        EXPECT_TRUE(decodeForScreen(file, {80, 60}, Fill, m_stop).isNull()) << qPrintable(file);
    m_stop = true;
    EXPECT_TRUE(decodeForScreen(halves("a.png", {40, 30}), {80, 60}, Fill, m_stop).isNull());
}

TEST(DesktopRecord, survivesTheFileAndDamage)
{
    DesktopRecord record{77, {}};
    record.screens[u"DP-1"_s] = {u"/a \"b\"\n\u00fc%41"_s, Fit, 123, 456};
    record.screens[u"DP-2"_s] = {u"/b"_s, Centred, 0, 0};
    const QByteArray bytes = recordBytes(record);
    EXPECT_EQ(recordFromBytes(bytes), record);
    EXPECT_EQ(recordFromBytes(bytes.left(bytes.size() / 2)), DesktopRecord());
    EXPECT_EQ(recordFromBytes(R"({"owner":"x","screens":{"a":{"path":"relative"},"b":7}})"),
              DesktopRecord());
}

} // namespace
