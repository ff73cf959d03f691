// SPDX-License-Identifier: MIT
// What is taken out of pages and of HTML in answers, which may be anything.
#pragma once

#include <QString>
#include <QUrl>

#include <vector>

namespace moravel::server {

/// The text without tags and entities, on one line.
QString plainText(const QString &html);

/// The addresses of all pictures in the order of their <img> elements, completed by @p base.
std::vector<QUrl> imagesIn(const QString &html, const QUrl &base);

/// The content of <meta property=…> or <meta name=…>; empty when there is none.
QString metaContent(const QString &html, const QString &property);

/// The value of one attribute of a tag's text; empty when it has none.
QString attributeOf(const QString &tag, const QString &name);

} // namespace moravel::server
