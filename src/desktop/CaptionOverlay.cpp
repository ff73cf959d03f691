// SPDX-License-Identifier: MIT
#include "desktop/CaptionOverlay.h"

#include "desktop/CaptionDrawing.h"
#include "desktop/DesktopSetter.h"
#include "desktop/Logging.h"

#include <QBuffer>
#include <QFileInfo>

namespace moravel {

namespace {

constexpr double StartSize = 16;
constexpr double LeastSize = 6;
constexpr int Band = 20; ///< How far the width may be from the quarter.
constexpr QPointF Margin{10, 20};

// -1 for a text that is too wide, 1 for one that is too narrow. Nothing makes an empty text wider.
int stepFor(double width, int quarter)
{
    if (width > quarter + Band)
        return -1;
    return width > 0 && quarter - Band > width ? 1 : 0;
}

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

FittedFont fitFont(int pictureWidth, const std::function<QSizeF(double)> &measure)
{
    FittedFont font{StartSize, StartSize, measure(StartSize)};
    int last = 0;
    while (const int step = stepFor(font.text.width(), pictureWidth / 4)) {
        font.lastCandidate = font.size + step;
        // A long text jumps over the band from one size to the next: it keeps the smaller one.
        const bool turns = step == -last;
        if (font.lastCandidate < LeastSize || (turns && step > 0))
            break;
        font.size = font.lastCandidate;
        font.text = measure(font.size);
        if (turns)
            break;
        last = step;
    }
    return font;
}

QString overlayPath(const QString &picture, const QString &dataFile)
{
    QString path = dataFile;
    path.replace(QLatin1String("Moravel2.txt"), picture.section(u'/', -1));
    const QString extension = QFileInfo(path).suffix();
    return extension.isEmpty() ? path : path.replace(extension, QLatin1String("png"));
}

CaptionOverlay::CaptionOverlay(const DesktopContext &context, DesktopSetter &setter)
    : m_context(context), m_setter(setter)
{ }

void CaptionOverlay::addTextToDesktop(const QString &path, const ThumbView &currentThumb)
{
    if (!m_context.ports.pixelSize)
        return;
    const QString text = QStringList{currentThumb.longSourceName(), currentThumb.dateString(),
                                     currentThumb.captionString()}
                             .join(u'\n');
    const std::weak_ptr<int> alive = m_alive;
    m_context.ports.pixelSize(path, [this, path, text, alive](QSize size) {
        if (alive.expired())
            return;
        m_context.platform.images.load(path, size, [this, path, text, alive](const QImage &image) {
            if (!alive.expired())
                write(path, text, image);
        });
    });
}

void CaptionOverlay::write(const QString &path, const QString &text, QImage image)
{
    const QSizeF startSize = measureCaption(text, StartSize);
    qCInfo(lcDesktop).noquote()
        << QStringLiteral("Text size: {%1, %2}").arg(startSize.width()).arg(startSize.height());
    const FittedFont font =
        fitFont(image.width(), [&text](double fontSize) { return measureCaption(text, fontSize); });
    qCInfo(lcDesktop).noquote() << "Font size:" << QString::number(font.lastCandidate, 'f', 6);
    const QString newFileName = overlayPath(path, m_context.folders.moravelDataFile());
    qCInfo(lcDesktop).noquote() << "newFileName =" << newFileName;
    QByteArray png;
    if (!image.isNull()) {
        image.convertTo(QImage::Format_ARGB32_Premultiplied);
        drawCaption(image, text, font.size, Margin);
        QBuffer buffer(&png);
        image.save(&buffer, "PNG");
    }
    if (!png.isEmpty()) {
        const auto written = m_context.platform.files.writeAtomically(newFileName, {view(png)});
        if (!written)
            qCWarning(lcDesktop).noquote()
                << "overlay not written:" << newFileName << written.error().description;
    }
    m_setter.setDesktopToFile(newFileName);
}

} // namespace moravel
