// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Messages.h"

#include <httplib.h>

namespace moravel::server {

inline constexpr std::size_t mostBodyBytes = 65'536;

/// The status that refuses a request because of its announced body or its address, or 0. Only a
/// POST may have a body, uncompressed and of one clear length.
int refusalOf(const httplib::Request &request);

/// One sentence for people on what a status means.
const char *sentenceFor(int status);

/// Takes out of a parsed request what an answer can need.
Request takenFrom(const httplib::Request &request, const std::string &body);

/// Puts an answer into the library's form.
void putInto(httplib::Response &out, const Response &response);

} // namespace moravel::server
