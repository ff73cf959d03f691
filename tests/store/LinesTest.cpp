// SPDX-License-Identifier: MIT
#include "store/Lines.h"

#include <gtest/gtest.h>

using namespace moravel;

TEST(LinesTest, findsAndRemovesAsSplittingAndJoiningWould)
{
    const struct
    {
        const char *text;
        const char *prefix;
        qsizetype number; ///< Of the line found; -1 for none.
        const char *without;
    } cases[] = {
        {"", "a", -1, ""},
        {"a", "a", 0, ""},
        {"a\n", "a", 0, ""},
        {"b\na\n", "a", 1, "b\n"},
        {"b\na", "a", 1, "b"},
        {"ab\nba\nab\n", "ab", 0, "ba\n"},
        {"ab\nac\nab", "ab", 0, "ac"},
        {"\n\na\n\n", "a", 2, "\n\n\n"},
        {"ba\n", "a", -1, ""},
        {"a\nb", "a\nb", -1, ""},
        {"xab\nab", "ab", 1, "xab"},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(::testing::PrintToString(c.text) + c.prefix);
        const auto line = firstLineStartingWith(c.text, c.prefix);
        ASSERT_EQ(line ? line->number : -1, c.number);
        if (line) {
            EXPECT_EQ(withoutLine(c.text, line->in(c.text)), c.without);
        }
    }
}

TEST(LinesTest, findsPartsOfLines)
{
    const std::string_view text = "one/a\t\ntwo/b\tx\rthree/b\t";
    const auto at = [&](std::string_view part, char separator = '\n', std::size_t from = 0) {
        const auto line = firstLineContaining(text, part, separator, from);
        return line ? std::string(line->in(text)) : "none";
    };
    EXPECT_EQ(at("/a\t"), "one/a\t");
    EXPECT_EQ(at("/b\t"), "two/b\tx\rthree/b\t");
    EXPECT_EQ(at("/b\t", '\r'), "one/a\t\ntwo/b\tx");
    EXPECT_EQ(at("/b\t", '\r', 15), "three/b\t");
    EXPECT_EQ(at("/b\t", '\n', text.size()), "none");
    EXPECT_EQ(at("\t\nt"), "none");
    EXPECT_EQ(at(""), "none");
}
