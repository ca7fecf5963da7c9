#include <gmock/gmock.h>

#include "engine/Options.h"

namespace vantrel::engine {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(OptionsOfTheDouble, AreQuietDefaultsWithoutArguments) {
  const auto parsed = ParseOptions({});
  EXPECT_EQ(parsed.error, "");
  EXPECT_EQ(parsed.options.rate, 5u);
  EXPECT_EQ(parsed.options.total, 0u);
  EXPECT_EQ(parsed.options.limit, 32767u);
  EXPECT_FALSE(parsed.options.obeyDisabled);
}

TEST(OptionsOfTheDouble, TakeEveryArgument) {
  const auto parsed = ParseOptions({"--rate", "1000", "--seconds", "20", "--total", "7", "--limit",
                                    "40000", "--obey-gdisabled", "yes", "--once", "--verbose",
                                    "--site", "a", "--site", "b"});
  EXPECT_EQ(parsed.error, "");
  EXPECT_EQ(parsed.options.rate, 1000u);
  EXPECT_EQ(parsed.options.seconds, 20u);
  EXPECT_EQ(parsed.options.total, 7u);
  EXPECT_EQ(parsed.options.limit, 40000u);
  EXPECT_TRUE(parsed.options.obeyDisabled);
  EXPECT_TRUE(parsed.options.once);
  EXPECT_TRUE(parsed.options.verbose);
  EXPECT_THAT(parsed.options.sites, ElementsAre("a", "b"));
}

class BadArguments : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(BadArguments, AreRefusedByName) {
  EXPECT_THAT(ParseOptions(GetParam()).error, HasSubstr(GetParam().front()));
}

INSTANTIATE_TEST_SUITE_P(OptionsOfTheDouble, BadArguments,
                         testing::Values(std::vector<std::string>{"--speed"},
                                         std::vector<std::string>{"--rate"},
                                         std::vector<std::string>{"--rate", "0"},
                                         std::vector<std::string>{"--rate", "10001"},
                                         std::vector<std::string>{"--rate", "5x"},
                                         std::vector<std::string>{"--rate", "-5"},
                                         std::vector<std::string>{"--seconds", "99999999999"},
                                         std::vector<std::string>{"--site", ""},
                                         std::vector<std::string>{"--obey-gdisabled", "maybe"}));

}  // namespace
}  // namespace vantrel::engine
