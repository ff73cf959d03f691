// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clipboard.h"

namespace moravel {

/// The clipboard of the running display.
class QtClipboard : public Clipboard
{
public:
    void setText(const QString &text) override;
};

} // namespace moravel
