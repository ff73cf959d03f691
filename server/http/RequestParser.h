// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Messages.h"

#include <string_view>

namespace moravel::server {

inline constexpr qsizetype mostBodyBytes = 65'536;

/// What the first bytes of a connection are: the head of a request, the beginning of one, or
/// something that is refused.
struct ParsedHead
{
    enum class State { Incomplete, Refused, Complete };

    State state = State::Incomplete;
    int status = 0; ///< Of the refusal.
    qsizetype headBytes = 0; ///< Up to the body.
    qsizetype bodyBytes = 0; ///< As announced; at most mostBodyBytes.
    bool keepAlive = true;
    bool expectsContinue = false;
    Request request; ///< All but the body.
};

/// Reads the head of an HTTP/1.0 or 1.1 request. Strict where leniency would let two readers of the
/// same bytes disagree: lines end with CR LF, only a POST has a body, of one clear length.
ParsedHead parseHead(std::string_view bytes);

/// One sentence for people on what a status means.
const char *sentenceFor(int status);

} // namespace moravel::server
