// SPDX-License-Identifier: MIT
#include "server/sources/art/Fractal.h"

#include "server/sources/art/Bands.h"
#include "server/sources/art/FractalRender.h"

namespace moravel::server {

namespace {

QString number(double value, int decimals)
{
    QString text = QString::number(std::abs(value), 'f', decimals);
    const bool isZero = text.toDouble() == 0.0;
    return (value < 0 && !isZero ? QStringLiteral("\u2212") : QString()) + text;
}

QString complexNumber(double re, double im, int decimals)
{
    return QStringLiteral("%1 %2 %3i")
        .arg(number(re, decimals), im < 0 ? QStringLiteral("\u2212") : QStringLiteral("+"),
             number(std::abs(im), decimals));
}

QString powerOf(int power)
{
    return power == 2 ? QStringLiteral("z\u00b2")
        : power == 3  ? QStringLiteral("z\u00b3")
                      : QStringLiteral("z\u2074");
}

/// Decimals that tell neighbouring pixels of a large picture apart.
int decimalsFor(double width)
{
    int decimals = 2;
    for (double step = width / 100; step < 0.01 && decimals < 12; step *= 10)
        ++decimals;
    return decimals;
}

} // namespace

QString Fractal::shortName() const
{
    return QStringLiteral("fractal");
}

QString Fractal::longName() const
{
    return QStringLiteral("Fractal of the Day");
}

QString Fractal::credit() const
{
    return QStringLiteral("Computed by the Moravel service; free for any use (CC0).");
}

DayText Fractal::text(QDate date) const
{
    const art::FractalScene scene = art::fractalSceneFor(date);
    const art::FractalView &view = scene.view;
    const int decimals = decimalsFor(view.width);
    const QString centre = complexNumber(view.re, view.im, decimals);
    const QString c = complexNumber(scene.rule.cRe, scene.rule.cIm, 4);
    const QString formula = powerOf(scene.rule.power) + QStringLiteral(" + c");
    const QString frame =
        QStringLiteral("The view is %1 wide, centred on %2 and turned by %3\u00b0.")
            .arg(number(view.width, decimals), centre)
            .arg(view.degrees);
    DayText text;
    if (scene.rule.julia) {
        text.caption = scene.rule.power == 2
            ? QStringLiteral("Julia set for c = %1").arg(c)
            : QStringLiteral("Julia set of %1 for c = %2").arg(formula, c);
        text.info =
            QStringLiteral(
                "Each point z is replaced by %1, over and over, with c = %2; the colours tell how "
                "soon it leaves for good, of at most %3 steps. ")
                .arg(formula, c)
                .arg(scene.rule.limit);
    } else {
        text.caption = QStringLiteral("Mandelbrot set near %1").arg(centre);
        text.info =
            QStringLiteral(
                "For each point c, z starts at 0 and is replaced by %1, over and over; the colours "
                "tell how soon it leaves for good, of at most %2 steps. ")
                .arg(formula)
                .arg(scene.rule.limit);
    }
    text.info += frame;
    return text;
}

QImage Fractal::render(QDate date, QSize size) const
{
    return art::renderFractal(art::fractalSceneFor(date), size, art::defaultThreads());
}

} // namespace moravel::server
