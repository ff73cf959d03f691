// SPDX-License-Identifier: MIT
#include "mainwindow/LargePicPlan.h"

#include "thumb/ThumbView.h"

namespace moravel {

namespace {

constexpr int DoubleClick = 2;

QString fileName(const QString &path)
{
    return path.section(u'/', -1);
}

QString titleFor(const LargePicFacts &facts)
{
    if (facts.longSourceName.isEmpty() && facts.dateString.isEmpty())
        return fileName(facts.path); // a file without a record
    return QStringLiteral("%1 - %2").arg(facts.longSourceName, facts.dateString);
}

} // namespace

LargePicAnswer answerTo(const LargePicWish &wish)
{
    if (wish.deleted)
        return wish.clickCount >= DoubleClick ? LargePicAnswer::Restore : LargePicAnswer::Nothing;
    if (wish.tag == ThumbView::DesktopTag && wish.desktopIsFolder)
        return LargePicAnswer::DesktopSettings;
    return wish.path.isEmpty() ? LargePicAnswer::Nothing : LargePicAnswer::Show;
}

LargePicPlan planLargePic(const LargePicFacts &facts)
{
    LargePicPlan plan;
    plan.title = titleFor(facts);
    plan.captionName = facts.captionString;
    const bool outside = !facts.large.isEmpty() && !facts.pictureFolder.isEmpty()
        && !facts.path.startsWith(facts.pictureFolder);
    if (!facts.isImage) {
        plan.cantShow = true;
        plan.info = true;
    } else if (outside) {
        plan.title = fileName(facts.path);
        plan.captionName = plan.title;
        plan.isOwn = false;
        plan.picture = facts.path;
    } else if (facts.downloading) {
        plan.progress = true;
        plan.info = true;
    } else if (!facts.large.isEmpty()) {
        plan.picture = facts.large;
        plan.info = true;
    }
    return plan;
}

QString pictureExtension(const QString &path)
{
    const QString name = fileName(path).section(u'?', 0, 0);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : name.mid(dot + 1);
}

} // namespace moravel
