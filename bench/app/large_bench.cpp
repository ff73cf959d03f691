// SPDX-License-Identifier: MIT
// large_bench [MEGAPIXELS]: shows a JPEG of that many megapixels (50) in the large picture window, enlarges
// the window, zooms to its own size and back, and beats a heart every 5 ms meanwhile. Tells how long
// each picture took, the longest stall of the main loop, and the memory.
#include "RealPlatform.h"
#include "bench/ProcessMemory.h"

#include "mainwindow/LargePic.h"
#include "mainwindow/LargePicWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

using namespace moravel;

/// Soft shapes with noise on them, so that the file is as large as a photograph's.
void writePicture(const QString &path, double megapixels)
{
    const int height = static_cast<int>(std::sqrt(megapixels * 1e6 / 1.5));
    QImage image(height * 3 / 2, height, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int noise = static_cast<int>(random.generate() & 15U);
            line[x] = qRgb((x / 40 + noise) & 255, (y / 30 + noise) & 255, ((x + y) / 70) & 255);
        }
    }
    QImageWriter writer(path, "jpeg");
    writer.setQuality(92);
    writer.write(image);
}

/// Counts what the main loop misses.
struct Heart
{
    Heart()
    {
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout,
                         [this] { worst = std::max(worst, beat.restart()); });
        timer.start(5);
    }

    void reset()
    {
        worst = 0;
        beat.start();
    }

    QTimer timer;
    QElapsedTimer beat;
    qint64 worst = 0;
};

class Measure
{
public:
    explicit Measure(LargeImageView &view) : m_view(view) { }

    void step(const char *what, const std::function<void()> &act, const std::function<bool()> &done)
    {
        m_heart.reset();
        QElapsedTimer clock;
        clock.start();
        act();
        while (!done() && clock.elapsed() < 30'000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const qint64 took = clock.elapsed();
        for (QElapsedTimer rest; !rest.isValid() || rest.elapsed() < 300;) { // it is painted, too
            if (!rest.isValid())
                rest.start();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        std::printf(
            "%-12s sharp after %5lld ms, longest gap between 5 ms beats %3lld ms, image %dx%d, "
            "memory %.0f MB (peak %.0f MB)\n",
            what, static_cast<long long>(took), static_cast<long long>(m_heart.worst),
            m_view.image().width(), m_view.image().height(), bench::memoryMb("VmRSS"),
            bench::memoryMb("VmHWM"));
    }

private:
    LargeImageView &m_view;
    Heart m_heart;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const double megapixels = argc > 1 ? std::atof(argv[1]) : 50;
    QTemporaryDir home;
    qputenv("XDG_PICTURES_DIR", home.path().toUtf8());
    qputenv("HOME", home.path().toUtf8());
    bench::RealPlatform platform;
    Folders folders(platform.files, platform.alerts);
    const PictureLinks links(folders, platform.files);
    ThumbCells cells({}, {});
    cells.createSpecialCells({});
    ThumbView &cell = cells.addThumbView(QStringLiteral("Large"), QStringLiteral("large"), {});
    cell.setPicPath(QStringLiteral("http://x/large.jpg"));
    cell.setInfoString(QStringLiteral("Text"));
    const QString path = links.picLinkToPath(cell.picPath(), false, false);
    writePicture(path, megapixels);
    bench::forgetPeak();
    std::printf("%.0f megapixels, %.1f MB on disk, memory before %.0f MB\n", megapixels,
                static_cast<double>(QFile(path).size()) / 1e6, bench::memoryMb("VmRSS"));

    LargePic large({cells, platform.files, platform.images, folders, links}, {});
    QElapsedTimer making;
    making.start();
    large.showLargePic(cell, 1);
    std::printf("window made and shown in %lld ms\n", static_cast<long long>(making.elapsed()));
    LargeImageView &view = large.pic()->largeImage();
    Measure measure(view);
    const auto has = [&view](int width) {
        return [&view, width] { return std::abs(view.image().width() - width) < width / 20; };
    };
    measure.step(
        "open", [] {}, [&view] { return !view.image().isNull(); });
    const int before = view.image().width();
    measure.step(
        "grow", [&] { large.pic()->resize(large.pic()->size() * 1.3); },
        [&view, before] { return view.image().width() > before; });
    const int fitting = view.image().width();
    const int whole = view.pictureSize().width();
    measure.step(
        "own size", [&] { view.zoomToActualSize(); }, has(whole));
    measure.step(
        "fit again", [&] { view.zoomToFit(); }, has(fitting));
    measure.step(
        "close", [&] { large.pic()->close(); }, [&view] { return view.image().isNull(); });
    return 0;
}
