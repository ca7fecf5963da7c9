#include <gmock/gmock.h>

#include "app/console/Names.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> Fruit{"apple", "apricot", "pear", "app"};

std::string Refusal(const std::string& wanted) {
  try {
    PickName("fruit", wanted, Fruit);
  } catch (const CommandError& error) {
    return error.what();
  }
  return {};
}

TEST(PickName, TakesNamesAndTheirBeginningsWithoutRegardToCase) {
  EXPECT_EQ(PickName("fruit", "PEAR", Fruit), 2U);
  EXPECT_EQ(PickName("fruit", "apr", Fruit), 1U);
}

TEST(PickName, TakesAWholeNameThatBeginsAnother) { EXPECT_EQ(PickName("fruit", "app", Fruit), 3U); }

TEST(PickName, NamesAllThatABeginningFits) {
  EXPECT_EQ(Refusal("ap"), "more than one fruit begins with \"ap\": apple, apricot or app");
}

TEST(PickName, NamesTheNearest) {
  EXPECT_EQ(Refusal("peer"), "no fruit \"peer\"; did you mean pear?");
  EXPECT_EQ(Refusal("zzzzzz"), "no fruit \"zzzzzz\"; there are apple, apricot, pear and app");
  EXPECT_NE(Refusal(""), "");
}

TEST(EditDistance, CountsSingleChanges) {
  EXPECT_EQ(EditDistance("", "abc"), 3U);
  EXPECT_EQ(EditDistance("cmdstrt", "CMDSTART"), 1U);
  EXPECT_EQ(EditDistance("kitten", "sitting"), 3U);
}

TEST(EditDistance, IsQuickForAnyLength) {
  EXPECT_GT(EditDistance(std::string(1000000, 'a'), std::string(1000000, 'b')), 0U);
}

TEST(Nearest, TakesNoLongNameForNearByItsLengthAlone) {
  const std::string caption(130, 'a');
  EXPECT_THAT(Nearest("cmdstart", {caption}), IsEmpty());
  EXPECT_THAT(Nearest(std::string(130, 'b'), {caption, "pear"}), IsEmpty());
}

TEST(Suggestion, NamesAllOnlyWhereTheyAreFew) {
  EXPECT_EQ(Suggestion("x", {}), "");
  EXPECT_EQ(Suggestion("x", {"one", "two"}), "; there are one and two");
  EXPECT_EQ(Suggestion("x", std::vector<std::string>(101, "pear")), "");
}

TEST(Nearest, TellsEachNameOnce) {
  EXPECT_THAT(Nearest("appel", {"apple", "apple", "pear"}), ElementsAre("apple"));
  EXPECT_THAT(Nearest("appel", {}), IsEmpty());
}

}  // namespace
}  // namespace vantrel::console
