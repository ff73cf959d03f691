// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace moravel {

/// What the info area of the large picture window shows for the text of a picture.
struct InfoPlan
{
    QString text; ///< From outside: may hold markup of any kind.
    bool lookUp = false; ///< There is no text yet; look it up, and show a notice meanwhile.
    bool isOld = false; ///< Kept by a version that knew neither text nor original page.
};

InfoPlan planInfo(const QString &infoString);

/// The notice while a text is being looked up.
QString lookingForInfo();

/// Sets the text, safe markup by now, in the type of the info area.
QString infoDocument(const QString &safeHtml);

enum class LinkAction { Nothing, RefreshCaption, OpenInBrowser };

/// What a click on a link of the text does. Only http and https leave the program.
LinkAction linkAction(const QUrl &link);

bool isWebAddress(const QUrl &address);

} // namespace moravel
