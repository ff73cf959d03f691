// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Messages.h"

namespace moravel::server {

/// The status line and header fields of an answer, with the empty line after them.
QByteArray responseHead(const Response &response, bool keepAlive, const QByteArray &date);

/// A moment as HTTP writes it: "Sun, 06 Nov 1994 08:49:37 GMT".
QByteArray httpDate(std::time_t seconds);

} // namespace moravel::server
