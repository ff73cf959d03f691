// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

#include <QImage>

#include <functional>

namespace moravel::server::sky {

/// How many threads to use on this machine.
int threadCount();

/// Calls @p work for 0 to @p count - 1, each once, on @p threads threads, and returns when all are
/// done.
void forEachIndex(int count, int threads, const std::function<void(int)> &work);

/// Paints a picture band by band. @p paint gets a black band and must depend on nothing but it;
/// then the light is mapped to 8 bits a channel with a soft shoulder and dithered against banding.
QImage renderBands(QSize size, const Frame &frame, int threads,
                   const std::function<void(Band &)> &paint);

} // namespace moravel::server::sky
