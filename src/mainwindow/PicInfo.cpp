// SPDX-License-Identifier: MIT
#include "mainwindow/PicInfo.h"

#include "platform/Texts.h"

namespace moravel {

InfoPlan planInfo(const QString &infoString)
{
    QString text = infoString;
    text.replace(u'_', u' ');
    if (text.isEmpty())
        return {lookingForInfo(), true, false};
    if (text == u"NEW")
        return {Texts::tr("This picture was downloaded using an older version of Moravel, so no "
                          "detailed information is available."),
                false, true};
    return {text, false, false};
}

QString lookingForInfo()
{
    return Texts::tr("Looking for more info...");
}

QString infoDocument(const QString &safeHtml)
{
    return QStringLiteral("<span style='font-family:Helvetica;font-size:13px'>%1</span>")
        .arg(safeHtml);
}

bool isWebAddress(const QUrl &address)
{
    const QString scheme = address.scheme();
    return address.isValid() && !address.host().isEmpty()
        && (scheme == u"http" || scheme == u"https");
}

LinkAction linkAction(const QUrl &link)
{
    if (link.toString().contains(QLatin1String("#updatePODCaption")))
        return LinkAction::RefreshCaption;
    return isWebAddress(link) ? LinkAction::OpenInBrowser : LinkAction::Nothing;
}

} // namespace moravel
