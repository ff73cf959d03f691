// SPDX-License-Identifier: MIT
#include "store/Utf8.h"

#include "support/Test.h"

#include <string>

namespace {

// Wherever a character stands in a block, and whatever follows.
void expectEverywhere(const std::string &bytes, bool valid)
{
    for (std::size_t before = 0; before <= 70; ++before) {
        for (const std::size_t after : {0U, 1U, 70U}) {
            const std::string text = std::string(before, 'a') + bytes + std::string(after, 'b');
            ASSERT_EQ(isValidUtf8(text), valid)
                << ::testing::PrintToString(bytes) << " after " << before << " before " << after;
        }
    }
}

} // namespace

TEST(Utf8Test, tellsWellFormedTextAtEveryPlaceOfABlock)
{
    using namespace std::string_literals;
    for (const std::string &bytes :
         {""s, "\0"s, "\x7F"s, "\xC2\x80"s, "\xDF\xBF"s, "\xE0\xA0\x80"s, "\xED\x9F\xBF"s,
          "\xEE\x80\x80"s, "\xEF\xBF\xBF"s, "\xF0\x90\x80\x80"s, "\xF4\x8F\xBF\xBF"s})
        expectEverywhere(bytes, true);
    for (const std::string &bytes :
         {"\x80"s, "\xBF"s, "\xC0\x80"s, "\xC1\xBF"s, "\xE0\x9F\xBF"s, "\xED\xA0\x80"s,
          "\xED\xBF\xBF"s, "\xF0\x8F\xBF\xBF"s, "\xF4\x90\x80\x80"s, "\xF5\x80\x80\x80"s, "\xFF"s,
          "\xC2"s, "\xE2\x82"s, "\xF0\x9F\x98"s, "\xC2x"s, "\xE2\x82x"s, "\xF0\x9F\x98x"s})
        expectEverywhere(bytes, false);
}
