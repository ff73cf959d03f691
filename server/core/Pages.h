// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/SourceList.h"

namespace moravel::server {

/// The pages for people, as UTF-8 HTML. All text that comes from sources is escaped; links are
/// relative.
QByteArray homePage(const SourceList &sources, QDate today);
QByteArray dayPage(const PictureSource &source, QDate date, const DayPicture &day, QDate latest);
QByteArray releasePage();

} // namespace moravel::server
