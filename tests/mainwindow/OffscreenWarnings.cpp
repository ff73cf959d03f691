// SPDX-License-Identifier: MIT
#include "support/ExpectWarning.h"

#include <gtest/gtest.h>

namespace moravel::testing {

namespace {

/// The offscreen platform warns of what it cannot do, such as passing on a window's minimum size.
class OffscreenWarnings : public ::testing::EmptyTestEventListener
{
    void OnTestStart(const ::testing::TestInfo &) override
    {
        expectWarning(QStringLiteral("This plugin does not support"));
    }
};

[[maybe_unused]] const bool registered = [] {
    ::testing::UnitTest::GetInstance()->listeners().Append(new OffscreenWarnings);
    return true;
}();

} // namespace

} // namespace moravel::testing
