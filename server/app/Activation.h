// SPDX-License-Identifier: MIT
#pragma once

namespace moravel::server {

/// The listening socket that a service manager hands over at the start, or -1. To be called once.
int takeActivatedSocket();

} // namespace moravel::server
