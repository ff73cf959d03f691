// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

namespace moravel {

/// What is told of a picture when it is shared; taken when the user asks for it, since the cell may show
/// another one by the time its page is known.
struct SharedPicture
{
    explicit SharedPicture(const ThumbView &cell);

    QString shortSourceName;
    QString longSourceName;
    QString dateString;
    QString captionString;
    QString page; ///< The original page; "" when no usable one is known.
};

/// The text for the clipboard, to be pasted beside the shared page.
QString clipboardText(const SharedPicture &picture);

// The addresses that share a picture, as ASCII.
QString facebookUrl(const QString &host, const SharedPicture &picture);
QString twitterUrl(const QString &host, const SharedPicture &picture);
/// @p home is the product's own address.
QString emailUrl(const QString &home, const SharedPicture &picture);

} // namespace moravel
