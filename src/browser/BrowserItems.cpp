// SPDX-License-Identifier: MIT
// What the browser shows of its items: their thumbnails and their texts.
#include "browser/Browser.h"
#include "browser/ImageBrowserView.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace moravel {

namespace {

constexpr qsizetype LongestToolTip = 1500; ///< Of a caption.

} // namespace

/// What is visible comes first, then the screen below it, then the one above.
void Browser::wantThumbnails()
{
    const ImageBrowserView &view = m_window->imageBrowser();
    const ImageGrid::Span visible = view.visibleItems();
    const int screen = visible.last - visible.first + 1;
    const int count = m_model.numberOfItemsInImageBrowser();
    QStringList paths;
    const auto add = [&](int from, int to) {
        for (int index = std::max(0, from); index < std::min(to, count); ++index)
            paths.append(m_model.itemAtIndex(index).imageRepresentation());
    };
    add(visible.first, visible.last + 1);
    add(visible.last + 1, visible.last + 1 + screen);
    add(visible.first - screen, visible.first);
    m_thumbnails.want(paths, view.framePixels());
}

void Browser::thumbnailArrived(const QString &path)
{
    ImageBrowserView &view = m_window->imageBrowser();
    const ImageGrid::Span visible = view.visibleItems();
    for (int index = visible.first; index <= visible.last; ++index) {
        if (m_model.itemAtIndex(index).imageRepresentation() == path)
            view.update(m_model.index(index));
    }
}

QString Browser::toolTip(int index) const
{
    const QString path = m_model.itemAtIndex(index).imageRepresentation();
    const BrowserRow *row = m_model.rowAt(index);
    QString caption = row ? row->caption : QFileInfo(path).fileName();
    if (caption.size() > LongestToolTip)
        caption = caption.left(LongestToolTip) + QChar(0x2026);
    QStringList facts;
    if (row)
        facts << m_context.sourceNames.value(row->source, row->source)
              << m_context.dates.localDateFromSqlDate(row->date);
    const Thumbnail *thumbnail = m_thumbnails.thumbnail(path);
    if (thumbnail && thumbnail->fileSize >= 0)
        facts << QLocale().formattedDataSize(thumbnail->fileSize, 1,
                                             QLocale::DataSizeTraditionalFormat);
    facts.removeAll(QString());
    return QStringLiteral("<b>%1</b><br>%2")
        .arg(caption.toHtmlEscaped(), facts.join(QStringLiteral(" \u00B7 ")).toHtmlEscaped());
}

QString Browser::accessibleText(int index) const
{
    const BrowserRow *row = m_model.rowAt(index);
    if (!row)
        return QFileInfo(m_model.itemAtIndex(index).imageRepresentation()).fileName();
    QStringList texts{row->caption, m_context.sourceNames.value(row->source, row->source),
                      m_context.dates.localDateFromSqlDate(row->date)};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

} // namespace moravel
