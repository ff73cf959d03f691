// SPDX-License-Identifier: MIT
// The few kinds of answers that all handlers give.
#pragma once

#include "server/core/PictureSource.h"

namespace moravel::server {

/// UTF-8 text that no cache may keep.
Response textResponse(int status, const QString &text);

Response plainTextResponse(const QByteArray &utf8);

/// A page that may neither run scripts nor load anything but pictures from elsewhere.
Response pageResponse(const QByteArray &html);

/// A picture with its validators, or the one range of bytes that the request wants of it, or 304
/// when the request shows that the client has it, or the way to where it lies.
Response pictureResponse(const Request &request, Content content, bool isFinal);

/// What is said of a page or picture that cannot be given.
Response unavailableResponse(const Unavailable &why);

} // namespace moravel::server
