// SPDX-License-Identifier: MIT
// day_bench BASE-URL SECONDS: fills the window from the service at BASE-URL with all sources on, beats a
// heart every 5 ms meanwhile, and tells how long the cells took and the longest stall of the main loop.
// Ends after SECONDS whatever happens, so that a hanging service can be measured too.
#include "RealPlatform.h"

#include "app/MoravelAppDelegate.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace {

bool allShown(const moravel::ThumbCells &cells)
{
    const auto &views = cells.thumbViews();
    return !views.empty() && std::all_of(views.begin(), views.end(), [](const auto &cell) {
        return !cell->thumbPath().isEmpty() && !cell->isSpinning();
    });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: day_bench BASE-URL SECONDS\n");
        return 2;
    }
    moravel::bench::RealPlatform platform;
    moravel::Options options;
    options.sources = QStringList{QStringLiteral("all")};
    moravel::MoravelAppDelegate delegate(platform.lend(), std::nullopt,
                                         platform.shareSetup(arguments[1]), options);
    delegate.applicationWillFinishLaunching();
    delegate.window().show();

    QElapsedTimer clock;
    QElapsedTimer beat;
    qint64 worst = 0;
    double shownAfter = -1;
    QTimer heart;
    heart.setTimerType(Qt::PreciseTimer);
    QObject::connect(&heart, &QTimer::timeout, [&] {
        worst = std::max(worst, beat.restart());
        if (shownAfter < 0 && allShown(delegate.cells()))
            shownAfter = static_cast<double>(clock.elapsed()) / 1000;
    });
    platform.loop.schedule(0, [&] {
        clock.start();
        beat.start();
        heart.start(5);
        delegate.applicationDidFinishLaunching();
    });
    platform.loop.schedule(arguments[2].toDouble(), [] { QCoreApplication::quit(); });
    QApplication::exec();
    const auto cells = delegate.cells().count();
    // The first pass starts after 0.5 s, and requests go out 0.5 s apart.
    std::printf(
        "cells %d, shown after %.2f s (bound %.2f s), longest gap between 5 ms beats %lld ms\n",
        cells, shownAfter, 0.5 + 0.5 * cells, static_cast<long long>(worst));
    return 0;
}
