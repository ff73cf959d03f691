// SPDX-License-Identifier: MIT
#include "store/Utf8.h"

#include <gtest/gtest.h>
#include <string>

using moravel::isValidUtf8;

TEST(Utf8Test, tellsWellFormedTextAtEveryPlaceOfABlock)
{
    using namespace std::string_literals;

    const struct
    {
        std::string bytes;
        bool valid;
    } cases[] = {
        {"\0"s, true},
        {"\x7F", true},
        {"\xC2\x80", true},
        {"\xDF\xBF", true},
        {"\xE0\xA0\x80", true},
        {"\xED\x9F\xBF", true},
        {"\xEE\x80\x80", true},
        {"\xEF\xBF\xBF", true},
        {"\xF0\x90\x80\x80", true},
        {"\xF4\x8F\xBF\xBF", true},
        {"\x80", false},
        {"\xBF", false},
        {"\xC0\x80", false},
        {"\xC1\xBF", false},
        {"\xE0\x9F\xBF", false},
        {"\xED\xA0\x80", false},
        {"\xED\xBF\xBF", false},
        {"\xF0\x8F\xBF\xBF", false},
        {"\xF4\x90\x80\x80", false},
        {"\xF5\x80\x80\x80", false},
        {"\xFF", false},
        {"\xC2", false},
        {"\xE2\x82", false},
        {"\xF0\x9F\x98", false},
        {"\xC2x", false},
        {"\xE2\x82x", false},
        {"\xF0\x9F\x98x", false},
    };

    for (const auto &c : cases) {
        for (std::size_t before = 0; before <= 70; ++before) {
            for (const std::size_t after : {0U, 1U, 70U}) {
                const std::string text =
                    std::string(before, 'a') + c.bytes + std::string(after, 'b');
                ASSERT_EQ(isValidUtf8(text), c.valid) << ::testing::PrintToString(c.bytes)
                                                      << " after " << before << " before " << after;
            }
        }
    }
    EXPECT_TRUE(isValidUtf8({}));
}
