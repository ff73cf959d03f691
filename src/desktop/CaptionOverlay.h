// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopContext.h"

#include <QSizeF>

#include <memory>

namespace moravel {

/// The font size that a caption got, and the last size that was tried for it.
struct FittedFont
{
    double size = 0;
    double lastCandidate = 0;
    QSizeF text; ///< Size of the text as measured last.
};

/// Finds the font size, in steps of one point from 16, at which a text takes about a quarter of the
/// picture's width (20 units more or less). No step leads below 6; where no size fits, the one below the
/// band is taken.
/// @param measure gives the size of the text at a font size; what it gives must grow with it.
FittedFont fitFont(int pictureWidth, const std::function<QSizeF(double size)> &measure);

/// Path of the captioned copy of a picture: its name in the folder of the data file, with the text of
/// its extension replaced by "png" wherever it stands in the path.
QString overlayPath(const QString &picture, const QString &dataFile);

class DesktopSetter;

/// Writes texts onto copies of pictures.
class CaptionOverlay
{
public:
    CaptionOverlay(const DesktopContext &context, DesktopSetter &setter);

    /// Writes source, date and caption of @p currentThumb onto a copy of a picture, kept in the Support
    /// folder, and makes that the desktop, later than the call. Failures are logged.
    void addTextToDesktop(const QString &path, const ThumbView &currentThumb);

private:
    void write(const QString &path, const QString &text, QImage image);

    const DesktopContext &m_context;
    DesktopSetter &m_setter;
    std::shared_ptr<int> m_alive =
        std::make_shared<int>(); ///< Late answers look whether we are there.
};

} // namespace moravel
