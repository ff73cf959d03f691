// SPDX-License-Identifier: MIT
#include "platform/qt/QtThumbnails.h"

#include "support/TempHome.h"
#include "support/Wait.h"

#include "platform/qt/QtImages.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include <optional>

namespace moravel {
namespace {

using testing::TempHome;

QString md5Name(const QByteArray &uri)
{
    return QLatin1String(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex())
        + QStringLiteral(".png");
}

class QtThumbnailsTest : public ::testing::Test
{
protected:
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
        EXPECT_TRUE(testing::waitFor([&] { return result.has_value(); }));
        return *result;
    }

    QString kept(const QString &folder, const QByteArray &uri) const
    {
        return home.path(QStringLiteral("cache/thumbnails/%1/%2").arg(folder, md5Name(uri)));
    }

    TempHome home;
    QtImages limits;
    QtThumbnails thumbnails{home.path(QStringLiteral("cache/thumbnails"))};
};

TEST_F(QtThumbnailsTest, sharesThumbnailsWithFileManagers)
{
    const QString path = picture(QStringLiteral("dir/a b;ü.png"), {800, 400});
    const Thumbnail thumbnail = load(path, {200, 200});
    EXPECT_EQ(thumbnail.image.size(), QSize(200, 100));
    EXPECT_EQ(thumbnail.fileSize, QFileInfo(path).size());
    const QByteArray uri =
        "file://" + home.path(QStringLiteral("dir")).toUtf8() + "/a%20b%3B%C3%BC.png";
    const QString file = kept(QStringLiteral("large"), uri);
    QImageReader reader(file);
    EXPECT_EQ(reader.size(), QSize(256, 128));
    const QImage image = reader.read();
    EXPECT_EQ(image.text(QStringLiteral("Thumb::URI")).toUtf8(), uri);
    EXPECT_EQ(image.text(QStringLiteral("Thumb::MTime")),
              QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch()));
    for (const auto others : {QFile::ReadGroup, QFile::ReadOther, QFile::ExeOwner})
        EXPECT_FALSE(QFileInfo(file).permission(others));
    const QFileInfo folder(QFileInfo(file).path());
    EXPECT_FALSE(folder.permission(QFile::ReadGroup) || folder.permission(QFile::ReadOther));
    EXPECT_EQ(QDir(folder.filePath()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    EXPECT_TRUE(load(picture(QStringLiteral("small.png"), {90, 60}), {200, 200}).image.size()
                == QSize(90, 60));
    EXPECT_EQ(QDir(folder.filePath()).entryList(QDir::Files).size(), 1); // small ones are not kept
}

TEST_F(QtThumbnailsTest, believesOnlyThumbnailsOfThisVeryFile)
{
    const QString path = picture(QStringLiteral("a.png"), {800, 400});
    const QByteArray uri = "file://" + path.toUtf8();
    const QString now = QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch());
    const QString right = QString::fromUtf8(uri);

    const struct
    {
        const char *what;
        QSize size;
        QString uri;
        QString modified;
        QString fileSize;
        bool believed;
    } cases[] = {
        {"a file manager's", {256, 128}, right, now, {}, true},
        {"of another file", {256, 128}, right + u'x', now, {}, false},
        {"of an older state", {256, 128}, right, QStringLiteral("12"), {}, false},
        {"of another length", {256, 128}, right, now, QStringLiteral("7"), false},
        {"far too large", {2000, 1000}, right, now, {}, false},
        {"without a word", {256, 128}, {}, {}, {}, false},
    };

    const QString file = kept(QStringLiteral("large"), uri);
    ASSERT_FALSE(load(path, {200, 200}).image.isNull());
    for (const auto &c : cases) {
        QImage image(c.size, QImage::Format_RGB32);
        image.fill(Qt::blue);
        image.setText(QStringLiteral("Thumb::URI"), c.uri);
        image.setText(QStringLiteral("Thumb::MTime"), c.modified);
        if (!c.fileSize.isEmpty())
            image.setText(QStringLiteral("Thumb::Size"), c.fileSize);
        ASSERT_TRUE(image.save(file, "png"));
        const QImage got = load(path, {200, 200}).image;
        ASSERT_FALSE(got.isNull()) << c.what;
        EXPECT_EQ(got.pixelColor(100, 50), QColor(c.believed ? Qt::blue : Qt::red)) << c.what;
    }
    QFile cut(file);
    ASSERT_TRUE(cut.resize(cut.size() / 2));
    EXPECT_EQ(load(path, {200, 200}).image.pixelColor(100, 90), QColor(Qt::red));
}

TEST_F(QtThumbnailsTest, givesUpWhatIsNotWantedAndWhatIsNoPicture)
{
    const QString path = picture(QStringLiteral("a.png"), {800, 400});
    bool called = false;
    thumbnails.load(path, {200, 200}, [&](const Thumbnail &) { called = true; }).reset();
    EXPECT_TRUE(
        load(home.write(QStringLiteral("no.png"), "GIF89a nothing"), {9, 9}).image.isNull());
    EXPECT_EQ(load(home.path(QStringLiteral("missing.png")), {9, 9}).fileSize, -1);
    EXPECT_TRUE(load(home.path(), {9, 9}).image.isNull());
    EXPECT_FALSE(called);
}

} // namespace
} // namespace moravel
