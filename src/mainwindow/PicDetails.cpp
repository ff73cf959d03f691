// SPDX-License-Identifier: MIT
#include "mainwindow/PicDetails.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/Contrast.h"
#include "mainwindow/PicInfo.h"

#include <QScrollBar>

namespace moravel {

namespace {

constexpr int TypeSize = 13; // pixels

/// Some dark palettes keep the dark blue of links on white.
QColor readableLink(const QPalette &palette)
{
    return readableOn(palette.color(QPalette::Window), palette.color(QPalette::Link));
}

} // namespace

PicDetails::PicDetails(QWidget *parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("picDetails"));
    setAccessibleName(tr("About this picture"));
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    QFont type(QStringLiteral("Helvetica"));
    type.setPixelSize(TypeSize);
    document()->setDefaultFont(type);
    followPalette();
    connect(this, &QTextBrowser::highlighted, this, [this](const QUrl &link) {
        viewport()->setToolTip(plainToolTip(link.toDisplayString())); // where it leads
    });
}

void PicDetails::showHtml(const QString &safeHtml)
{
    m_html = infoDocument(safeHtml);
    setHtml(m_html);
    verticalScrollBar()->setValue(0);
}

void PicDetails::showText(const QString &text)
{
    m_html.clear();
    setPlainText(text);
    verticalScrollBar()->setValue(0);
}

QVariant PicDetails::loadResource(int, const QUrl &)
{
    return {};
}

void PicDetails::doSetSource(const QUrl &, QTextDocument::ResourceType)
{ }

void PicDetails::followPalette()
{
    viewport()->setAutoFillBackground(false); // the text stands on the window's own ground
    QPalette own;
    own.setColor(QPalette::Text, own.color(QPalette::WindowText));
    setPalette(own);
    const QString link = readableLink(own).name();
    document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 }").arg(link));
    if (!m_html.isEmpty())
        setHtml(m_html);
}

} // namespace moravel
