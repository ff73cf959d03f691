// SPDX-License-Identifier: MIT
#pragma once

#include "text/InfoWriter.h"

#include <QString>
#include <QStringView>

namespace moravel {

/// The target of a link in an info text that asks for caption and text anew.
inline constexpr QLatin1String updateCaptionTarget("#updatePODCaption");

/// Makes the descriptive text of a picture, which comes from the service and is hostile until shown
/// otherwise, into HTML that is safe and quick to show.
///
/// What is left: the tags a (with href to http and https pages or to updateCaptionTarget), b, i, u, s,
/// sub, sup, small, code, p, blockquote, ul, ol, li, br, and no other attribute. Headings become bold
/// paragraphs; rows of tables and other blocks become lines; scripts, styles and embedded things go
/// with all that they hold; other tags go, and what they hold stays. The result is balanced, at most
/// largestInfoText bytes long, and its own result again.
///
/// Takes any text, in time linear in its length. Every text comes out as text: "5 < 6" too.
QString sanitisedInfoText(QStringView html);

} // namespace moravel
