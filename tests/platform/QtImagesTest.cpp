// SPDX-License-Identifier: MIT
#include "platform/qt/QtImages.h"

#include "support/Test.h"

#include <QBuffer>
#include <QIcon>
#include <QImageWriter>
#include <QtEndian>

#include <random>
#include <sys/stat.h>

namespace {

const QSize Size(64, 48);

QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    std::mt19937 random(7);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, uint(random()));
    }
    return image;
}

/// @param turn Rotate90 stands for a camera that was held on its side (Exif orientation 6: turn right).
QByteArray encoded(const QImage &image, const char *format, bool progressive = false,
                   QImageIOHandler::Transformation turn = QImageIOHandler::TransformationNone)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(90);
    writer.setProgressiveScanWrite(progressive);
    writer.setTransformation(turn);
    EXPECT_TRUE(writer.write(image)) << format << qPrintable(writer.errorString());
    return buffer.data();
}

QByteArray turnedJpeg()
{
    return encoded(noise(Size), "jpeg", false, QImageIOHandler::TransformationRotate90);
}

/// A GIF of that size, of one colour.
QByteArray gif(int frames)
{
    const QByteArray frame = QByteArray::fromBase64(
        "LAAAAABAADAAAAI5hI+py+0Po5y02ouz3rz7D4biSJbmiabqyrbuC8fyTNf2jef6zvf+"
        "DwwKh8Si8YhMKpfMpvMJjSYL"
        "AA==");
    return QByteArray::fromBase64("R0lGODlhQAAwAPEAAAAAAP8AAAD/AAAA/w==") + frame.repeated(frames)
        + ';';
}

QByteArray pngHead(quint32 width, quint32 height)
{
    QByteArray bytes = encoded(noise({1, 1}), "png");
    qToBigEndian(width, bytes.data() + 16);
    qToBigEndian(height, bytes.data() + 20);
    quint32 crc = 0xFFFFFFFF; // of the type and the data of the first chunk
    for (int i = 12; i < 29; ++i) {
        crc ^= quint8(bytes[i]);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? (crc >> 1) ^ 0xEDB88320 : crc >> 1;
    }
    qToBigEndian(~crc, bytes.data() + 29);
    return bytes;
}

struct QtImagesTest : ::testing::Test
{
    /// What a call answers, once and not from within.
    template <typename Result, typename Call>
    static Result answer(Call call)
    {
        std::optional<Result> result;
        call([&](const Result &given) { result = given; });
        EXPECT_FALSE(result);
        EXPECT_TRUE(waitFor([&] { return result.has_value(); }));
        return result.value_or(Result());
    }

    QSize check(const QString &path)
    {
        return answer<QSize>([&](const auto &done) { images.check(path, done); });
    }

    QSize check(const QByteArray &bytes) { return check(home.write(u"picture.jpg"_s, bytes)); }

    QSize announced(const QByteArray &bytes)
    {
        const QString path = home.write(u"head"_s, bytes);
        return answer<QSize>([&](const auto &done) { images.size(path, done); });
    }

    QImage load(const QByteArray &bytes, QSize box)
    {
        const QString path = home.write(u"picture"_s, bytes);
        return answer<QImage>([&](const auto &done) { images.load(path, box, done); });
    }

    TempHome home;
    QtImages images;
};

TEST_F(QtImagesTest, ChecksCompletePicturesAndRefusesEveryCut)
{
    QImage translucent = noise(Size).convertToFormat(QImage::Format_ARGB32);
    translucent.fill(QColor(10, 20, 30, 40));
    const QList<std::pair<const char *, QByteArray>> pictures{
        {"jpeg", encoded(noise(Size), "jpeg")},
        {"progressive jpeg", encoded(noise(Size), "jpeg", true)},
        {"png", encoded(noise(Size), "png")},
        {"translucent png", encoded(translucent, "png")},
        {"palette png", encoded(noise(Size).convertToFormat(QImage::Format_Indexed8), "png")},
        {"webp", encoded(noise(Size), "webp")},
        {"bmp", encoded(noise(Size), "bmp")},
        {"grey bmp", encoded(noise(Size).convertToFormat(QImage::Format_Indexed8), "bmp")},
        {"tiff", encoded(noise(Size), "tiff")},
        {"gif", gif(1)},
        {"animation", gif(3)},
    };
    for (const auto &[name, bytes] : pictures) {
        SCOPED_TRACE(name);
        EXPECT_EQ(check(bytes), Size);
        EXPECT_EQ(announced(bytes), Size);
        EXPECT_EQ(load(bytes, {1000, 1000}).size(), Size);
        const qsizetype step = bytes.size() / 25 + 1;
        for (qsizetype length = 0; length < bytes.size(); length += step) {
            SCOPED_TRACE(length);
            EXPECT_EQ(check(bytes.left(length)), QSize());
        }
        // Of a PNG, the last four bytes are the checksum of the end mark: the picture is whole.
        const qsizetype leastMissing = bytes.startsWith("\x89PNG") ? 5 : 1;
        for (qsizetype missing = leastMissing; missing <= 16; ++missing) {
            SCOPED_TRACE(missing);
            EXPECT_EQ(check(bytes.chopped(missing)), QSize());
        }
    }
}

TEST_F(QtImagesTest, RefusesHostileFiles)
{
    const QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>";
    QByteArray wideBmp = encoded(noise(Size), "bmp");
    qToLittleEndian<qint32>(0x7FFFFFFF, wideBmp.data() + 18);
    qToLittleEndian<qint32>(-0x7FFFFFFF, wideBmp.data() + 22);
    QByteArray tallJpeg = encoded(noise(Size), "jpeg");
    const qsizetype frame = tallJpeg.indexOf("\xFF\xC0");
    tallJpeg.replace(frame + 5, 4, "\xFF\xFE\xFF\xFE");
    QByteArray spoiled = encoded(noise({400, 300}), "png");
    spoiled.replace(spoiled.size() / 2, 100, QByteArray(100, 'x'));
    const QList<std::pair<const char *, QByteArray>> files{
        {"empty", ""},
        {"page", "<html><body>404 Not Found</body></html>"},
        {"vector", svg},
        {"document", "%PDF-1.4\n1 0 obj\n<<>>\nendobj\n"},
        {"bare JPEG mark", "\xFF\xD8\xFF"},
        {"JPEG marks", QByteArray("\xFF\xD8\xFF").repeated(1000)},
        {"bare BMP mark", "BM"},
        {"text in BM", QByteArray("BMW is a car maker. ").repeated(100)},
        {"bare GIF mark", "GIF89a"},
        {"bare TIFF mark", QByteArray("II*\0", 4) + QByteArray(100, '\xFF')},
        {"bare WebP mark", QByteArray("RIFF\0\0\0\0WEBPVP8 ", 16) + QByteArray(100, '\xFF')},
        {"wide and tall PNG", pngHead(60'000, 60'000)},
        {"endless PNG", pngHead(0x7FFFFFFF, 0x7FFFFFFF)},
        {"129 megapixels", pngHead(12'000, 11'500)},
        {"wide BMP", wideBmp},
        {"tall JPEG", tallJpeg},
        {"spoiled PNG", spoiled},
    };
    for (const auto &[name, bytes] : files) {
        SCOPED_TRACE(name);
        EXPECT_EQ(check(bytes), QSize());
        EXPECT_TRUE(load(bytes, {200, 200}).isNull());
    }
}

TEST_F(QtImagesTest, RefusesWhatIsNoFile)
{
    const QString pipe = home.path(u"pipe.jpg"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    for (const QString &path : {QString(), home.path(), home.path(u"missing.jpg"_s), pipe,
                                u"/dev/zero"_s, u":/moravel/blank.png.x"_s})
        EXPECT_EQ(check(path), QSize()) << qPrintable(path);
}

TEST_F(QtImagesTest, FitsTheBoxUprightAndNeverEnlarges)
{
    const QByteArray jpeg = encoded(noise({400, 200}), "jpeg");
    const QByteArray line = encoded(noise({4000, 1}), "png");
    const Table<QByteArray, QSize, QSize> cases{
        {jpeg, {200, 200}, {200, 100}},
        {jpeg, {100, 10}, {20, 10}},
        {jpeg, {400, 200}, {400, 200}},
        {jpeg, {9000, 9000}, {400, 200}},
        {jpeg, {0, 0}, {0, 0}},
        {line, {100, 100}, {100, 1}},
        {turnedJpeg(), {100, 100}, {48, 64}},
        {turnedJpeg(), {24, 1000}, {24, 32}},
        {gif(1), {32, 32}, {32, 24}},
        {encoded(noise(Size), "bmp"), {32, 32}, {32, 24}},
        {encoded(noise(Size), "webp"), {32, 32}, {32, 24}},
        {encoded(noise(Size), "tiff"), {32, 32}, {32, 24}},
    };
    for (const auto &[bytes, box, expected] : cases) {
        SCOPED_TRACE(box.width());
        SCOPED_TRACE(bytes.left(4).toHex().constData());
        EXPECT_EQ(load(bytes, box).size(), expected);
    }
    EXPECT_EQ(check(turnedJpeg()), Size.transposed());
    EXPECT_EQ(announced(turnedJpeg()), Size.transposed());
    EXPECT_EQ(announced(jpeg.left(jpeg.size() / 2)), QSize(400, 200));
}

TEST_F(QtImagesTest, AnswersEachCallOnceAndNoneWhenDestroyed)
{
    const QString path = home.write(u"big.png"_s, encoded(noise({2000, 1500}), "png"));
    int answers = 0;
    for (int i = 0; i < 20; ++i)
        images.load(home.path(u"missing"_s), Size, [&](const QImage &) { ++answers; });
    MORAVEL_WAIT(answers == 20);

    auto brief = std::make_unique<QtImages>();
    const auto captured = std::make_shared<int>();
    for (int i = 0; i < 20; ++i)
        brief->load(path, Size, [captured](const QImage &) { FAIL(); });
    brief.reset();
    EXPECT_EQ(captured.use_count(), 1);
    QCoreApplication::processEvents();
}

TEST_F(QtImagesTest, DecodesOnePictureAtATimeAndDropsWhatIsCancelled)
{
    const QString big = home.write(u"big.png"_s, encoded(noise({2000, 1500}), "png"));
    const QString turned = home.write(u"turned.jpg"_s, turnedJpeg());
    auto cancelled = images.decode(big, {500, 500}, [](const auto &) { FAIL(); });
    cancelled.reset();
    std::optional<DecodedPicture> last;
    const auto kept =
        images.decode(turned, {24, 1000}, [&](const auto &picture) { last = picture; });
    MORAVEL_WAIT(last.has_value());
    EXPECT_EQ(last->size, Size.transposed());
    EXPECT_EQ(last->image.size(), QSize(24, 32));

    auto brief = std::make_unique<QtImages>();
    const auto late = brief->decode(big, {500, 500}, [](const auto &) { FAIL(); });
    brief.reset(); // before its handles
    QCoreApplication::processEvents();
}

TEST_F(QtImagesTest, KnowsExtensionsAndHasItsOwnPictures)
{
    for (const char *known : {"JPG", "Jpeg", "png", "gif", "webp", "bmp", "tif", "TIFF"})
        EXPECT_TRUE(images.isImageExtension(QLatin1String(known))) << known;
    for (const char *unknown : {"", "svg", "pdf", "ico", "html", ".jpg", "jp", "jpg ", "part"})
        EXPECT_FALSE(images.isImageExtension(QLatin1String(unknown))) << unknown;
    for (const char *name : {"blank", "Trashcan", "Prefs"})
        EXPECT_EQ(images.resource(QLatin1String(name)).size(), QSize(400, 225)) << name;
    EXPECT_TRUE(images.resource(u"../moravel/nothing"_s).isNull());
    EXPECT_EQ(QIcon(u":/moravel/icon.svg"_s).pixmap(48).size(), QSize(48, 48));
}

} // namespace
