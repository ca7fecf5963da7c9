#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "resources/ImageStrips.h"

namespace vantrel::resources {
namespace {

const ImageStrip* Find(std::string_view name) {
  const auto row = std::find_if(ImageStrips.begin(), ImageStrips.end(),
                                [&](const ImageStrip& strip) { return strip.Name == name; });
  return row == ImageStrips.end() ? nullptr : &*row;
}

using Keys = std::vector<std::string_view>;

Keys KeysOf(std::string_view name) {
  const ImageStrip* strip = Find(name);
  return strip ? Keys(strip->Keys.begin(), strip->Keys.end()) : Keys{};
}

TEST(ImageStrips, TheMainWindowsListsHaveTheNumbersThatItAsksFor) {
  ASSERT_TRUE(Find("frmMain.imgexplore"));
  EXPECT_EQ(Find("frmMain.imgexplore")->ImageCount, 26);
  ASSERT_TRUE(Find("frmMain.IMgListTool"));
  EXPECT_EQ(Find("frmMain.IMgListTool")->ImageCount, 10);
  EXPECT_EQ(Find("frmMain.IMgListTool")->Width, 22);
  EXPECT_TRUE(Find("frmMain.imgline"));
  EXPECT_TRUE(Find("frmMain.ImgHelpLogo"));
  EXPECT_TRUE(Find("FrmFrameMain.ImageList2"));
  ASSERT_TRUE(Find("FrmAbout.ImgHelpLogo"));
  EXPECT_EQ(Find("FrmAbout.ImgHelpLogo")->ImageCount, 2);
}

TEST(ImageStrips, RowsOfListsFindTheirPicturesByKey) {
  EXPECT_EQ(KeysOf("FrmFrameAllowList.imglweb"), Keys{"a"});
  EXPECT_EQ(KeysOf("FrmFrameHistory.imgcookies"), (Keys{"ie", "ns", "op"}));
  EXPECT_EQ(KeysOf("FrmFrameIEPlugin.imgbho"), (Keys{"bho", "pgn", "tb", "mnu"}));
}

TEST(ImageStrips, TheToolbarDialogHasFourteenPictures) {
  EXPECT_EQ(KeysOf("frmcustom.ImageList1"),
            (Keys{"Home", "Seperator2", "Seperator", "Clean", "Refresh", "Add Links", "On/Off",
                  "Toolbar Settings", "Notification", "Graph", "IE Plugins", "IE Settings",
                  "Options", "Help Vantrel"}));
  EXPECT_EQ(Find("frmcustom.ImageList1")->Width, 16);
}

TEST(ImageStrips, EachImageHasItsKeyAndNoKeyComesTwice) {
  for (const ImageStrip& strip : ImageStrips) {
    EXPECT_EQ(strip.Keys.size(), static_cast<std::size_t>(strip.ImageCount)) << strip.Name;
    Keys named(strip.Keys.begin(), strip.Keys.end());
    std::erase(named, "");
    EXPECT_EQ(std::set(named.begin(), named.end()).size(), named.size()) << strip.Name;
  }
}

TEST(ImageStrips, NoResourceIsSharedByTwoStrips) {
  std::set<int> numbers;
  for (const ImageStrip& strip : ImageStrips) {
    for (int scale = 0; scale < static_cast<int>(ImageScales.size()); ++scale) {
      EXPECT_TRUE(numbers.insert(strip.Resource + scale).second) << strip.Name;
    }
  }
}

TEST(ImageStrips, AScreenTakesTheStripThatNeedsNoMagnifying) {
  const auto scaleAt = [](int dpi) { return ImageScales[ScaleIndexFor(ImageScales, dpi)]; };
  EXPECT_EQ(scaleAt(72), 100);
  EXPECT_EQ(scaleAt(96), 100);
  EXPECT_EQ(scaleAt(97), 125);
  EXPECT_EQ(scaleAt(120), 125);
  EXPECT_EQ(scaleAt(144), 150);
  EXPECT_EQ(scaleAt(168), 200);
  EXPECT_EQ(scaleAt(192), 200);
  EXPECT_EQ(scaleAt(288), 200);
}

TEST(ImageStrips, ScaledLengthsAreWholePixels) {
  EXPECT_EQ(ScaledLength(22, 100), 22);
  EXPECT_EQ(ScaledLength(22, 125), 28);
  EXPECT_EQ(ScaledLength(22, 150), 33);
  EXPECT_EQ(ScaledLength(16, 125), 20);
}

}  // namespace
}  // namespace vantrel::resources
