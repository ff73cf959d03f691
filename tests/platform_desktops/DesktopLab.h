// SPDX-License-Identifier: MIT
// What the tests against real desktops share. They run inside a lab of tests/labs.
#pragma once

#include "support/Wait.h"

#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/DesktopChoice.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QColor>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace moravel::testing {

class DesktopLab : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_desktop = make();
        ASSERT_TRUE(m_desktop);
        ASSERT_EQ(m_desktop->screens().size(), 2);
        first = m_desktop->screens()[0].id;
        second = m_desktop->screens()[1].id;
    }

    std::unique_ptr<DesktopPictures> make()
    {
        return makeDesktopPictures({m_files, s_support.path()});
    }

    /// Writes a picture of one colour with a border of white, a tenth of the width on either side.
    QString picture(const QString &name, QSize size, const QColor &colour) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        const int border = size.width() / 10;
        for (int y = 0; y < size.height(); ++y)
            for (int x = border; x < size.width() - border; ++x)
                image.setPixelColor(x, y, colour);
        const QString path = m_folder.filePath(name);
        EXPECT_TRUE(image.save(path, "PNG"));
        return path;
    }

    /// Sets a picture and waits for the answer; returns the error, empty for none.
    QString set(const QString &path, const QString &screen, DesktopScaling scaling)
    {
        std::optional<tl::expected<void, DesktopError>> answer;
        bool within = true;
        m_desktop->setDesktopImageUrl(fileUrl(path), screen, scaling, [&](const auto &result) {
            EXPECT_FALSE(within);
            answer = result;
        });
        within = false;
        EXPECT_TRUE(waitFor([&] { return answer.has_value(); }));
        if (!answer)
            return QStringLiteral("no answer");
        return *answer ? QString() : answer->error().description;
    }

    QString shown(const QString &screen) const
    {
        return pathOfUrl(m_desktop->desktopImageUrl(screen));
    }

    /// A screenshot of all screens, which lie side by side, 800 pixels wide each.
    QImage shot() const
    {
        if (QGuiApplication::platformName() == u"xcb")
            return QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1600, 600).toImage();
        const QString file = m_folder.filePath(QStringLiteral("shot.png"));
        QProcess::execute(QStringLiteral("grim"), {file});
        return QImage(file);
    }

    /// Waits until a pixel of the first (0) or second (1) screen has a colour.
    bool seen(int screen, QPoint at, const QColor &colour) const
    {
        QColor is;
        const auto near = [](int a, int b) { return std::abs(a - b) < 9; };
        const QDeadlineTimer deadline(8'000);
        const bool ended = waitFor([&] {
            const QImage image = shot();
            const QPoint place = at + QPoint(screen * 800, 0);
            is = image.rect().contains(place) ? image.pixelColor(place) : QColor();
            return deadline.hasExpired()
                || (near(is.red(), colour.red()) && near(is.green(), colour.green())
                    && near(is.blue(), colour.blue()));
        });
        const bool ok = ended && !deadline.hasExpired();
        if (!ok)
            ADD_FAILURE() << "screen " << screen << " shows " << qPrintable(is.name());
        return ok;
    }

    /// What every desktop with pictures by screen must do.
    void setsOneScreenAndBoth();
    void laysOutEachSizing();
    void takesOddNames();

    QTemporaryDir m_folder;
    static inline QTemporaryDir s_support; ///< Kept between the tests, as between two starts.
    PosixFiles m_files;
    std::unique_ptr<DesktopPictures> m_desktop;
    QString first, second;
};

inline const QPoint Middle(400, 300);

inline void DesktopLab::setsOneScreenAndBoth()
{
    const QString red = picture(QStringLiteral("red.png"), {900, 700}, Qt::red);
    const QString blue = picture(QStringLiteral("blue.png"), {900, 700}, Qt::blue);
    for (const QString &screen : {first, second})
        ASSERT_EQ(set(red, screen, DesktopScaling::Fill), QString());
    EXPECT_TRUE(seen(0, Middle, Qt::red) && seen(1, Middle, Qt::red));
    ASSERT_EQ(set(blue, second, DesktopScaling::Fill), QString());
    EXPECT_TRUE(seen(1, Middle, Qt::blue) && seen(0, Middle, Qt::red));
    EXPECT_EQ(shown(first), red);
    EXPECT_EQ(shown(second), blue);
    EXPECT_NE(set(red, QStringLiteral("NONE-9"), DesktopScaling::Fill), QString());
}

inline void DesktopLab::laysOutEachSizing()
{
    using enum DesktopScaling;

    const struct
    {
        QSize picture;
        DesktopScaling scaling;
        QPoint inside; ///< A place that has the picture's colour,
        QPoint outside; ///< and one that has not: the border, or the desktop's own background.
    } table[] = {
        {{200, 100}, Centred, {490 - 20, 300}, {395, 300 + 60}},
        {{1600, 1200}, Centred, {5, 5}, {-1, -1}},
        {{1600, 600}, Fit, {400, 300}, {400, 100}},
        {{1600, 600}, Fill, {5, 5}, {-1, -1}},
        {{400, 300}, Fill, {400, 5}, {20, 300}},
        {{300, 2000}, Fit, {400, 300}, {100, 300}},
    };

    int i = 0;
    for (const auto &row : table) {
        SCOPED_TRACE(i);
        const QColor colour = i % 2 ? QColor(0, 200, 0) : QColor(200, 0, 200);
        const QString path = picture(QStringLiteral("p%1.png").arg(i++), row.picture, colour);
        ASSERT_EQ(set(path, first, row.scaling), QString());
        EXPECT_TRUE(seen(0, row.inside, colour));
        if (row.outside.x() >= 0) {
            EXPECT_NE(shot().pixelColor(row.outside), colour);
        }
    }
}

inline void DesktopLab::takesOddNames()
{
    int hue = 0;
    for (const QString &name : {QStringLiteral("a b.png"), QStringLiteral("it's \"q\".png"),
                                QStringLiteral("%41.png"), QStringLiteral("\u00fcml.png"),
                                QStringLiteral("-o #?&.png"), QStringLiteral("two\nlines.png")}) {
        SCOPED_TRACE(qPrintable(name));
        const QColor colour = QColor::fromHsv(hue += 50, 255, 200);
        const QString path = picture(name, {800, 600}, colour);
        ASSERT_EQ(set(path, second, DesktopScaling::Fill), QString());
        EXPECT_EQ(shown(second), path);
        EXPECT_TRUE(seen(1, Middle, colour));
    }
}

} // namespace moravel::testing
