// SPDX-License-Identifier: MIT
#include "server/core/Pages.h"

#include "server/core/PictureNames.h"
#include "server/core/ReleaseNotes.h"
#include "server/core/Text.h"
#include "server/core/Version.h"

#include <QLocale>

namespace moravel::server {

namespace {

// %1 title, %2 body.
const QString frame = QStringLiteral(R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>%1</title>
<style>
:root { color-scheme: light dark; --back: #f6f5f2; --ink: #22242a; --soft: #666a73; --line: #dddad2; --link: #1f5fa8 }
@media (prefers-color-scheme: dark) { :root { --back: #16181d; --ink: #e8e6e1; --soft: #9a9ea8; --line: #33363e; --link: #8ab8f0 } }
* { box-sizing: border-box }
body { margin: 0 auto; max-width: 72rem; padding: 2rem 1.25rem 3rem; background: var(--back); color: var(--ink); font: 1.0625rem/1.6 system-ui, sans-serif; overflow-wrap: break-word }
h1 { margin: 1.25rem 0 .5rem; font-size: 1.75rem; line-height: 1.25; font-weight: 600 }
h2 { margin: 2rem 0 .5rem; font-size: 1.2rem }
p, ul { max-width: 44rem; margin: .5rem 0 }
a { color: var(--link) }
img { display: block; width: 100%; height: auto; border-radius: .5rem; background: var(--line) }
.soft, nav { color: var(--soft); font-size: .9375rem }
nav { display: flex; justify-content: space-between; gap: 1rem; margin-top: 2rem; padding-top: 1rem; border-top: 1px solid var(--line) }
.days { display: grid; grid-template-columns: repeat(auto-fill, minmax(15rem, 1fr)); gap: 1.5rem; padding: 0; max-width: none; list-style: none }
</style>
</head>
<body>
%2</body>
</html>
)");

QByteArray page(const QString &title, const QString &body)
{
    return frame.arg(escaped(title), body).toUtf8();
}

QString longDate(QDate date)
{
    return QLocale(QLocale::English, QLocale::UnitedStates)
        .toString(date, QStringLiteral("MMMM d, yyyy"));
}

QString pageLink(const PictureSource &source, QDate date, const QString &text)
{
    return QStringLiteral("<a href=\"%1\">%2</a>")
        .arg(pictureName(source.shortName(), date, pageSuffix), text);
}

/// Headings, paragraphs and lists, which is all that our own notes have.
QString htmlOf(const QString &markdown)
{
    QString html;
    QString open;
    const auto close = [&] {
        if (!open.isEmpty())
            html += QStringLiteral("</%1>\n").arg(open == u"li" ? QStringLiteral("li></ul") : open);
        open.clear();
    };
    const QStringList lines = markdown.split(u'\n');
    for (const QString &line : lines) {
        const QString text = escaped(line.section(u' ', 1).trimmed());
        if (line.startsWith(u'#')) {
            close();
            html += QStringLiteral("<h%1>%2</h%1>\n").arg(line.indexOf(u' ')).arg(text);
        } else if (line.startsWith(QLatin1StringView("- "))) {
            if (open != u"li")
                close();
            html += (open == u"li" ? QStringLiteral("</li>\n<li>") : QStringLiteral("<ul>\n<li>"))
                + text;
            open = QStringLiteral("li");
        } else if (line.trimmed().isEmpty()) {
            close();
        } else {
            html += open.isEmpty() ? QStringLiteral("<p>") : QStringLiteral(" ");
            html += escaped(line.trimmed());
            if (open.isEmpty())
                open = QStringLiteral("p");
        }
    }
    close();
    return html;
}

} // namespace

QByteArray homePage(const SourceList &sources, QDate today)
{
    QString items;
    for (const auto &source : sources.all()) {
        items +=
            QStringLiteral("<li><a href=\"/potd/pages/%1\"><img src=\"/potd/pictures/%2\" alt=\"\" "
                           "width=\"400\" height=\"225\">%3</a></li>\n")
                .arg(pictureName(source->shortName(), today, pageSuffix),
                     pictureName(source->shortName(), today, thumbSuffix),
                     escaped(source->longName()));
    }
    return page(
        QStringLiteral("Moravel picture service"),
        QStringLiteral("<h1>Moravel picture service</h1>\n<p>This service gives the application "
                       "Moravel its pictures of the day. These are today’s.</p>\n<ul "
                       "class=\"days\">\n%1</ul>\n<nav><span>Version %2</span><a "
                       "href=\"/potd/release.html\">Release notes</a></nav>\n")
            .arg(items, versionText()));
}

QByteArray dayPage(const PictureSource &source, QDate date, const DayPicture &day, QDate latest)
{
    const QString after =
        date < latest ? pageLink(source, date.addDays(1), QStringLiteral("Day after")) : QString();
    const QString name = source.shortName();
    const QString body =
        QStringLiteral(
            "<a href=\"/potd/pictures/%1\"><img src=\"/potd/pictures/%2\" "
            "alt=\"%3\"></a>\n<h1>%3</h1>\n<p class=\"soft\">%4 · %5</p>\n<p>%6</p>\n<p "
            "class=\"soft\">%7%10</p>\n<nav>%8<a href=\"/potd/\">All sources</a>%9</nav>\n")
            .arg(pictureName(name, date, day.fullSuffix), pictureName(name, date, normalSuffix),
                 escaped(day.caption), escaped(source.longName()), longDate(date),
                 escaped(day.info), escaped(day.credit),
                 pageLink(source, date.addDays(-1), QStringLiteral("Day before")), after,
                 day.elsewhere.page.isEmpty() ? QString()
                                              : QStringLiteral(" <a href=\"%1\">Original page</a>")
                                                    .arg(escaped(day.elsewhere.page)));
    return page(QStringLiteral("%1 – %2").arg(day.caption, source.longName()), body);
}

QByteArray releasePage()
{
    return page(
        QStringLiteral("Moravel release notes"),
        htmlOf(releaseNotes())
            + QStringLiteral("<nav><a href=\"/potd/\">Moravel picture service</a></nav>\n"));
}

} // namespace moravel::server
