// SPDX-License-Identifier: MIT
#pragma once

#include "support/Test.h"

#include "platform/DesktopPictures.h"
#include "platform/linux/desktops/FileUrls.h"

namespace moravel::testing {

/// Sets a picture and waits for the answer, which must not come from within: what failed, empty for nothing.
inline QString setPicture(DesktopPictures &desktop, const QString &path, const QString &screen = {},
                          DesktopScaling scaling = DesktopScaling::Fill)
{
    std::optional<QString> failure;
    desktop.setDesktopImageUrl(fileUrl(path), screen, scaling, [&](const auto &outcome) {
        failure = outcome ? QString() : outcome.error().description;
    });
    EXPECT_FALSE(failure);
    EXPECT_TRUE(waitFor([&] { return failure.has_value(); }));
    return failure.value_or(u"no answer"_s);
}

} // namespace moravel::testing
