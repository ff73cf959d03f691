// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UrlOpener.h"

namespace moravel {

/// Opens addresses as the desktop does it (xdg-open, or its portal).
class QtUrlOpener : public UrlOpener
{
public:
    void open(const QString &url) override;
};

} // namespace moravel
