// SPDX-License-Identifier: MIT
#include "mainwindow/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>

// Outside of any namespace, as the macro wants it.
static void registerIcons()
{
    Q_INIT_RESOURCE(mainwindow_icons); // a static library does not register its resources by itself
}

namespace moravel {

namespace {

/// Whether an icon points along the line of reading, which runs to the left here.
bool isMirrored(const QString &name)
{
    return QGuiApplication::isRightToLeft()
        && (name.startsWith(QLatin1String("previous-")) || name.startsWith(QLatin1String("next-")));
}

QPixmap render(const QString &name, int pixels, const QColor &colour)
{
    registerIcons();
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QSvgRenderer svg(QStringLiteral(":/moravel/mainwindow/%1.svg").arg(name));
    QPainter painter(&pixmap);
    if (isMirrored(name)) {
        painter.translate(pixels, 0);
        painter.scale(-1, 1);
    }
    svg.render(&painter);
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    return pixmap;
}

/// Takes its colour from the application's palette when it is drawn.
class ThemedIcon : public QIconEngine
{
public:
    explicit ThemedIcon(QString name) : m_name(std::move(name)) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        const QPalette palette = QGuiApplication::palette();
        const bool selected = mode == QIcon::Selected;
        QColor colour = palette.color(QPalette::Active,
                                      selected ? QPalette::HighlightedText : QPalette::ButtonText);
        if (mode == QIcon::Disabled)
            colour = blend(colour, palette.color(QPalette::Window), 0.35);
        const int pixels = std::min(size.width(), size.height());
        return iconPixmap(m_name, qRound(pixels / scale), colour, scale);
    }

    QIconEngine *clone() const override { return new ThemedIcon(m_name); }

private:
    QString m_name;
};

} // namespace

QPixmap iconPixmap(const QString &name, int points, const QColor &colour, qreal scale)
{
    const int pixels = static_cast<int>(std::lround(points * scale));
    const QString key = QStringLiteral("moravel-%1-%2-%3").arg(name).arg(pixels).arg(colour.rgba());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = render(name, pixels, colour);
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

QIcon themedIcon(const QString &name)
{
    return QIcon(new ThemedIcon(name));
}

QColor blend(const QColor &front, const QColor &back, double share)
{
    const auto mix = [share](int a, int b) {
        return static_cast<int>(std::lround(a * share + b * (1 - share)));
    };
    return {mix(front.red(), back.red()), mix(front.green(), back.green()),
            mix(front.blue(), back.blue())};
}

} // namespace moravel
