// SPDX-License-Identifier: MIT
// moravel-render SOURCE YYYY-MM-DD WIDTHxHEIGHT FILE: draws the picture of a day, prints its texts
// and how long it took.
#include "server/sources/art/Fractal.h"
#include "server/sources/art/Landscape.h"
#if __has_include("server/sources/sky/Moon.h")
#include "server/sources/sky/Moon.h"
#endif
#if __has_include("server/sources/sky/Planets.h")
#include "server/sources/sky/Planets.h"
#endif

#include <QElapsedTimer>
#include <QStringList>

#include <cstdio>
#include <ctime>
#include <memory>
#include <vector>

using namespace moravel::server;

namespace {

std::vector<std::unique_ptr<ComputedSource>> allSources()
{
    std::vector<std::unique_ptr<ComputedSource>> sources;
    sources.push_back(std::make_unique<Fractal>());
    sources.push_back(std::make_unique<Landscape>());
#if __has_include("server/sources/sky/Moon.h")
    sources.push_back(std::make_unique<Moon>());
#endif
#if __has_include("server/sources/sky/Planets.h")
    sources.push_back(std::make_unique<Planets>());
#endif
    return sources;
}

QSize sizeFrom(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('x'));
    const QSize size = parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
    const bool valid = std::min(size.width(), size.height()) >= 16
        && std::max(size.width(), size.height()) <= 8192;
    return valid ? size : QSize();
}

int draw(const ComputedSource &source, QDate date, QSize size, const QString &file)
{
    QElapsedTimer wall;
    wall.start();
    const std::clock_t before = std::clock();
    const QImage image = source.render(date, size);
    const double processor = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    const double elapsed = static_cast<double>(wall.elapsed()) / 1000;
    const DayText text = source.text(date);
    std::printf("%s | %s | %s | %.3f s, %.3f s of processor\n",
                qPrintable(date.toString(Qt::ISODate)), text.caption.toUtf8().constData(),
                text.info.toUtf8().constData(), elapsed, processor);
    if (!image.save(file, nullptr, 92)) {
        std::fprintf(stderr, "cannot write %s\n", file.toLocal8Bit().constData());
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QDate date =
        argc == 5 ? QDate::fromString(QString::fromLocal8Bit(argv[2]), Qt::ISODate) : QDate();
    const QSize size = argc == 5 ? sizeFrom(QString::fromLocal8Bit(argv[3])) : QSize();
    if (!date.isValid() || size.isEmpty()) {
        std::fputs("usage: moravel-render SOURCE YYYY-MM-DD WIDTHxHEIGHT FILE\n", stderr);
        return 2;
    }
    for (const auto &source : allSources())
        if (source->shortName() == QString::fromLocal8Bit(argv[1]))
            return draw(*source, date, size, QString::fromLocal8Bit(argv[4]));
    std::fputs("no such source\n", stderr);
    return 2;
}
