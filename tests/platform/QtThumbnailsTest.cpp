// SPDX-License-Identifier: MIT
#include "platform/qt/QtThumbnails.h"

#include "support/Test.h"

#include "platform/qt/QtImages.h"

#include <QCryptographicHash>
#include <QImageReader>

namespace {

QString md5Name(const QByteArray &uri)
{
    return QLatin1String(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex())
        + u".png"_s;
}

struct QtThumbnailsTest : ::testing::Test
{
    QString picture(const QString &name, QSize size, QColor colour = Qt::red)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        const QString path = home.write(name, {});
        EXPECT_TRUE(image.save(path));
        return path;
    }

    Thumbnail load(const QString &path, QSize box)
    {
        std::optional<Thumbnail> result;
        const auto call = thumbnails.load(path, box, [&](const Thumbnail &t) { result = t; });
        EXPECT_TRUE(waitFor([&] { return result.has_value(); }));
        thumbnails.waitForDone();
        return *result;
    }

    QString kept(const QString &folder, const QByteArray &uri) const
    {
        return home.path(u"cache/thumbnails/%1/%2"_s.arg(folder, md5Name(uri)));
    }

    TempHome home;
    QtImages limits;
    QtThumbnails thumbnails{home.path(u"cache/thumbnails"_s)};
};

TEST_F(QtThumbnailsTest, sharesThumbnailsWithFileManagers)
{
    const QString path = picture(u"dir/a b;ü.png"_s, {800, 400});
    const Thumbnail thumbnail = load(path, {200, 200});
    EXPECT_EQ(thumbnail.image.size(), QSize(200, 100));
    EXPECT_EQ(thumbnail.fileSize, QFileInfo(path).size());
    const QByteArray uri = "file://" + home.path(u"dir"_s).toUtf8() + "/a%20b%3B%C3%BC.png";
    const QString file = kept(u"large"_s, uri);
    QImageReader reader(file);
    EXPECT_EQ(reader.size(), QSize(256, 128));
    const QImage image = reader.read();
    EXPECT_EQ(image.text(u"Thumb::URI"_s).toUtf8(), uri);
    EXPECT_EQ(image.text(u"Thumb::MTime"_s),
              QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch()));
    for (const auto others : {QFile::ReadGroup, QFile::ReadOther, QFile::ExeOwner})
        EXPECT_FALSE(QFileInfo(file).permission(others));
    const QFileInfo folder(QFileInfo(file).path());
    EXPECT_FALSE(folder.permission(QFile::ReadGroup) || folder.permission(QFile::ReadOther));
    EXPECT_EQ(QDir(folder.filePath()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    EXPECT_TRUE(load(picture(u"small.png"_s, {90, 60}), {200, 200}).image.size() == QSize(90, 60));
    EXPECT_EQ(QDir(folder.filePath()).entryList(QDir::Files).size(), 1); // small ones are not kept
}

TEST_F(QtThumbnailsTest, believesOnlyThumbnailsOfThisVeryFile)
{
    const QString path = picture(u"a.png"_s, {800, 400});
    const QByteArray uri = "file://" + path.toUtf8();
    const QString now = QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch());
    const QString right = QString::fromUtf8(uri);

    const Table<const char *, QSize, QString, QString, QString, bool> cases{
        {"a file manager's", {256, 128}, right, now, {}, true},
        {"of another file", {256, 128}, right + u'x', now, {}, false},
        {"of an older state", {256, 128}, right, u"12"_s, {}, false},
        {"of another length", {256, 128}, right, now, u"7"_s, false},
        {"far too large", {2000, 1000}, right, now, {}, false},
        {"without a word", {256, 128}, {}, {}, {}, false},
    };

    const QString file = kept(u"large"_s, uri);
    ASSERT_FALSE(load(path, {200, 200}).image.isNull());
    for (const auto &[what, size, ofUri, modified, fileSize, believed] : cases) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        image.setText(u"Thumb::URI"_s, ofUri);
        image.setText(u"Thumb::MTime"_s, modified);
        if (!fileSize.isEmpty())
            image.setText(u"Thumb::Size"_s, fileSize);
        ASSERT_TRUE(image.save(file, "png"));
        const QImage got = load(path, {200, 200}).image;
        ASSERT_FALSE(got.isNull()) << what;
        EXPECT_EQ(got.pixelColor(100, 50), QColor(believed ? Qt::blue : Qt::red)) << what;
    }
    QFile cut(file);
    ASSERT_TRUE(cut.resize(cut.size() / 2));
    EXPECT_EQ(load(path, {200, 200}).image.pixelColor(100, 90), QColor(Qt::red));
}

TEST_F(QtThumbnailsTest, givesUpWhatIsNotWantedAndWhatIsNoPicture)
{
    const QString path = picture(u"a.png"_s, {800, 400});
    bool called = false;
    thumbnails.load(path, {200, 200}, [&](const Thumbnail &) { called = true; }).reset();
    EXPECT_TRUE(load(home.write(u"no.png"_s, "GIF89a nothing"), {9, 9}).image.isNull());
    EXPECT_EQ(load(home.path(u"missing.png"_s), {9, 9}).fileSize, -1);
    EXPECT_TRUE(load(home.path(), {9, 9}).image.isNull());
    EXPECT_FALSE(called);
}

} // namespace
