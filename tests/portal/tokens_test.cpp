// SPDX-License-Identifier: Apache-2.0
// Tokens are good once, for one program, and for 300 seconds.
#include "portal/Tokens.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

using namespace std::chrono_literals;
using tapeprint::portal::ChosenSettings;
using tapeprint::portal::Tokens;

class GivenTokens : public testing::Test
{
protected:
    ChosenSettings settings(const QString &path)
    {
        ChosenSettings chosen;
        chosen.job.ppdPath = path;
        return chosen;
    }

    std::chrono::steady_clock::time_point now{1000s};
    Tokens tokens{[this] { return now; }};
};

TEST_F(GivenTokens, Token_GivesItsSettingsOnceAndNoMore)
{
    const std::uint32_t first = tokens.add(u"org.one"_qs, settings(u"first"_qs));
    const std::uint32_t second = tokens.add(u"org.one"_qs, settings(u"second"_qs));
    ASSERT_NE(first, second);
    const auto taken = tokens.take(first, u"org.one"_qs);
    ASSERT_TRUE(taken.has_value());
    EXPECT_EQ(taken->job.ppdPath, u"first"_qs);
    EXPECT_FALSE(tokens.take(first, u"org.one"_qs).has_value());
    EXPECT_EQ(tokens.take(second, u"org.one"_qs)->job.ppdPath, u"second"_qs);
    EXPECT_TRUE(tokens.isEmpty());
}

TEST_F(GivenTokens, TokenOfAnotherProgram_IsRefusedAndStaysGoodForItsOwn)
{
    const std::uint32_t token = tokens.add(u"org.one"_qs, settings(u"kept"_qs));
    EXPECT_FALSE(tokens.take(token, u"org.two"_qs).has_value());
    EXPECT_FALSE(tokens.take(token, QString()).has_value());
    EXPECT_TRUE(tokens.take(token, u"org.one"_qs).has_value());
}

TEST_F(GivenTokens, TokenOf300Seconds_IsGoodAndOneSecondLaterNotAnyMore)
{
    const std::uint32_t token = tokens.add(u"org.one"_qs, {});
    now += 300s;
    EXPECT_FALSE(tokens.isEmpty());
    const std::uint32_t late = tokens.add(u"org.one"_qs, {});
    EXPECT_TRUE(tokens.take(token, u"org.one"_qs).has_value());
    now += 301s;
    EXPECT_TRUE(tokens.isEmpty());
    EXPECT_FALSE(tokens.take(late, u"org.one"_qs).has_value());
}

TEST_F(GivenTokens, NoToken_IsNeverGood)
{
    tokens.add(u"org.one"_qs, {});
    EXPECT_FALSE(tokens.take(0, u"org.one"_qs).has_value());
}

TEST_F(GivenTokens, ThousandsOfTokens_AreNotAllKept)
{
    const std::uint32_t first = tokens.add(u"org.one"_qs, {});
    std::set<std::uint32_t> seen{first};
    for (std::size_t i = 0; i < Tokens::most; ++i) {
        seen.insert(tokens.add(u"org.one"_qs, {}));
    }
    EXPECT_EQ(seen.size(), Tokens::most + 1); // no two alike
    EXPECT_FALSE(tokens.take(first, u"org.one"_qs).has_value());
    EXPECT_TRUE(
        tokens.take(*std::find_if(seen.begin(), seen.end(), [&](auto token) { return token != first; }), u"org.one"_qs)
            .has_value());
}

} // namespace
