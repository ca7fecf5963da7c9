#include <gtest/gtest.h>

#include <vector>

#include "forms/PackedTexts.h"

namespace vantrel::forms {
namespace {

void ExpectTexts(const PackedTexts& packed, const std::vector<std::string>& texts) {
  for (std::size_t place = 0; place < texts.size(); ++place) {
    EXPECT_TRUE(packed.At(place) == texts[place]) << place;
  }
}

// Of the lengths at which a length takes a byte more, of NULs and of bytes beyond ASCII.
const std::vector<std::string> Texts = {
    "",
    "a",
    std::string(1, '\0'),
    "\x80\xFF",
    std::string(127, 'b'),
    std::string(128, 'c'),
    std::string(129, 'd'),
    std::string(16383, 'e'),
    std::string(16384, 'f'),
    "behind",
};

TEST(PackedTexts, TextsOfEveryLengthComeBack) {
  PackedTexts packed;
  for (const std::string& text : Texts) packed.Append(text);
  ExpectTexts(packed, Texts);
}

TEST(PackedTexts, ATextIsSetAmongItsNeighbours) {
  PackedTexts packed;
  for (const std::string& text : Texts) packed.Append(text);
  std::vector<std::string> texts = Texts;
  for (std::size_t place = 0; place < texts.size(); ++place) {
    for (const std::size_t length : {200U, 3U, 0U}) {
      texts[place] = std::string(length, 'z');
      packed.Set(place, texts[place]);
      ExpectTexts(packed, texts);
    }
  }
}

TEST(PackedTexts, ATextIsSetFromAnotherOfThem) {
  PackedTexts packed;
  for (const char* text : {"one", "a longer text", "three"}) packed.Append(text);
  packed.Set(0, packed.At(1));
  ExpectTexts(packed, {"a longer text", "a longer text", "three"});
}

}  // namespace
}  // namespace vantrel::forms
