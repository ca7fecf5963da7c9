// What a cleaned machine may hold against all custom: jars of any size and bytes, paths that are
// none, files that change while they are cleaned. The answer is quick and silent.
#include <ctime>

#include "unit/cleaning/CleanPanel.h"

namespace vantrel::cleaning {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t Huge = 100'000'000;

class BadInput : public CleanPanel {
 protected:
  static constexpr const char* Jar = "C:\\User\\Data\\Mozilla\\p\\cookies.txt";

  void Install(const std::string& executable, const std::string& path) {
    world.registry.SetString(
        platform::HKeyLocalMachine,
        "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + executable, "Path", path);
  }
  // Chooses Netscape with this jar; the processor's time, since others are at work too.
  void ShowQuickly(const std::string& jar) {
    Install("Netscp.exe", "C:\\Netscape");
    Put(Jar, jar);
    const std::clock_t start = std::clock();
    Click(Panel().optNetscape);
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 5.0);
    EXPECT_THAT(BoxTexts(), IsEmpty());
  }
  static std::string Repeated(const std::string& piece, std::size_t size) {
    std::string text;
    text.reserve(size + piece.size());
    while (text.size() < size) text += piece;
    return text;
  }
};

TEST_F(BadInput, AJarOf100MBOfOtherLines) {
  ShowQuickly(Repeated("www.exact.example\tFALSE\t/\tFALSE\t0\tname\tvalue\r\n", Huge) +
              ".last.example\tTRUE\t/\r\n");
  EXPECT_THAT(Urls(), ElementsAre("NC1|.last.example|ns"));
  EXPECT_EQ(Panel().lblcookies.Caption(), "97,656 Kbs");
}

TEST_F(BadInput, AJarOf100MBInOneLine) {
  ShowQuickly('.' + std::string(Huge, 'x'));
  EXPECT_THAT(Urls(), IsEmpty());
  EXPECT_EQ(Panel().lblcookies.Caption(), "");
}

TEST_F(BadInput, AJarOf100MBWithoutLineEndsThatIsOneCookie) {
  ShowQuickly(".one.example\tTRUE\t/" + std::string(Huge, 'x'));
  EXPECT_THAT(Urls(), ElementsAre("NC1|.one.example|ns"));
}

TEST_F(BadInput, AJarOf100MBOfNULs) {
  ShowQuickly(std::string(Huge, '\0'));
  EXPECT_THAT(Urls(), IsEmpty());
}

TEST_F(BadInput, AJarOf10MBOfLineEnds) {
  ShowQuickly(std::string(Huge / 10, '\n') + ".one.example\tTRUE\t/");
  EXPECT_THAT(Urls(), ElementsAre("NC1|.one.example|ns"));
}

TEST_F(BadInput, AJarOf100000Cookies) {
  ShowQuickly(Repeated(".site.example\tTRUE\t/\n", 2'100'000));
  EXPECT_EQ(Panel().urls.Count(), 100'000);
}

TEST_F(BadInput, NULsInALineStayInTheName) {
  ShowQuickly(std::string(".a\0b.example\tTRUE\t/\r\n", 21));
  EXPECT_THAT(Urls(), ElementsAre(std::string("NC1|.a\0b.example|ns", 19)));
}

TEST_F(BadInput, AnApplicationPathThatIsNoneFindsNothing) {
  for (const char* path : {"no path", "C:", "|<>*?", "\\\\server\\share", "C:\\none\\none", ";"}) {
    Install("Opera.exe", path);
    Click(Panel().optOpera);
    EXPECT_EQ(Panel().lblcookies.Caption(), "No cookies file found") << path;
    EXPECT_THAT(Urls(), IsEmpty()) << path;
    Click(Panel().optNetscape);
    Click(Panel().optIE);
  }
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(BadInput, ASpecialFolderThatIsAFileOrNoPathChangesNoLabel) {
  Put("C:\\User\\file");
  for (const char* path : {"C:\\User\\file", "", "no path", "|"}) {
    world.specialFolders[fileutil::CSIDL_RECENT] = path;
    Click(Panel().lblRefresh);
    EXPECT_THAT(Captions(), testing::Each("")) << path;
    EXPECT_EQ(Panel().lblcleaningstatus.Caption(), "Ready to clean");
  }
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(BadInput, FilesThatChangeMeanwhileGoAllTheSame) {
  for (const char* name : {"a", "b", "c", "d", "e"}) Put(std::string("C:\\wiped\\") + name);
  Put("C:\\wiped\\sub\\f");
  int pumps = 0;
  toolkit.DuringDoEvents = [&] {
    if (++pumps != 1) return;
    world.files.Remove("C:\\wiped\\b");
    Put("C:\\wiped\\c", std::string(100'000, 'x'));
    Put("C:\\wiped\\d", "");
    world.files.Remove("C:\\wiped\\e");
    world.files.MakeFolder("C:\\wiped\\e");
    world.files.Remove("C:\\wiped\\sub");
  };
  EXPECT_TRUE(WipeFolder(program, "C:\\wiped"));
  // "e", which is a folder by now, goes with the folders.
  EXPECT_THAT(world.files.List("C:\\wiped"), IsEmpty());
}

// A folder outside, with what a link must not lead to.
class LinksMeanwhile : public CleanPanel {
 protected:
  LinksMeanwhile() {
    for (const char* name : {"a", "b", "f", "sub\\f"})
      Put(std::string("C:\\outside\\") + name, "kept");
    world.files.MakeFolder("C:\\outside\\empty");
  }
  // Replaces what stands under the path when the messages run for the n-th time.
  void ReplaceAtPump(int pump, const std::string& path, const std::string& target) {
    toolkit.DuringDoEvents = [this, pump, path, target] {
      if (++pumps_ != pump) return;
      world.files.Remove(path);
      world.files.MakeLink(path, target);
    };
  }
  void ExpectOutsideUntouched() {
    for (const char* name : {"a", "b", "f", "sub\\f"}) {
      EXPECT_EQ(world.files.Read(std::string("C:\\outside\\") + name), "kept") << name;
    }
    EXPECT_TRUE(Exists("C:\\outside\\empty"));
  }

 private:
  int pumps_ = 0;
};

TEST_F(LinksMeanwhile, AFileThatBecomesALinkIsNotOverwrittenThroughIt) {
  Put("C:\\wiped\\a");
  Put("C:\\wiped\\b");
  ReplaceAtPump(1, "C:\\wiped\\b", "C:\\outside\\b");
  EXPECT_TRUE(WipeFolder(program, "C:\\wiped"));
  ExpectOutsideUntouched();
}

TEST_F(LinksMeanwhile, AFolderThatBecomesALinkGoesAsALink) {
  Put("C:\\wiped\\a");
  Put("C:\\wiped\\sub\\f");
  ReplaceAtPump(1, "C:\\wiped\\sub", "C:\\outside");
  WipeFolder(program, "C:\\wiped");
  ExpectOutsideUntouched();
  EXPECT_THAT(world.files.List("C:\\wiped"), IsEmpty());
}

TEST_F(LinksMeanwhile, AFolderThatBecomesALinkWhileItsSubfoldersGoLosesNothingBehindIt) {
  Put("C:\\wiped\\sub\\f");
  world.files.MakeFolder("C:\\wiped\\sub\\one");
  ReplaceAtPump(1, "C:\\wiped\\sub", "C:\\outside");
  WipeFolder(program, "C:\\wiped");
  ExpectOutsideUntouched();
  EXPECT_THAT(world.files.List("C:\\wiped"), IsEmpty());
}

TEST_F(LinksMeanwhile, SoDoesALinkFartherUp) {
  for (const char* name : {"empty\\one", "sub\\one", "two"}) {
    world.files.MakeFolder(std::string("C:\\wiped\\up\\") + name);
  }
  Put("C:\\wiped\\up\\sub\\f");
  ReplaceAtPump(1, "C:\\wiped\\up", "C:\\outside");
  WipeFolder(program, "C:\\wiped");
  ExpectOutsideUntouched();
}

TEST_F(LinksMeanwhile, WhatIsMadeWhileFilesGoIsWipedWithTheFolders) {
  Put("C:\\wiped\\a");
  toolkit.DuringDoEvents = [this] {
    Put("C:\\wiped\\new\\f");
    toolkit.DuringDoEvents = nullptr;
  };
  EXPECT_TRUE(WipeFolder(program, "C:\\wiped"));
  EXPECT_THAT(world.files.List("C:\\wiped"), IsEmpty());
}

TEST_F(LinksMeanwhile, AFoldersFilesAreThoseThatAreThereBehindItsSubfolders) {
  Put("C:\\wiped\\sub\\hidden");
  world.files.MakeFolder("C:\\wiped\\sub\\one");
  toolkit.DuringDoEvents = [this] {
    Put("C:\\wiped\\sub\\new");
    world.files.SetHidden("C:\\wiped\\sub\\hidden", true);
    toolkit.DuringDoEvents = nullptr;
  };
  WipeFolder(program, "C:\\wiped");
  EXPECT_THAT(world.files.List("C:\\wiped\\sub"), ElementsAre("hidden"));
}

TEST_F(LinksMeanwhile, AFileThatBecomesReadOnlyGoesAllTheSame) {
  Put("C:\\wiped\\a");
  Put("C:\\wiped\\b");
  toolkit.DuringDoEvents = [this] {
    if (Exists("C:\\wiped\\b")) world.files.SetReadOnly("C:\\wiped\\b", true);
  };
  EXPECT_TRUE(WipeFolder(program, "C:\\wiped"));
}

TEST_F(LinksMeanwhile, AFolderThatVanishesHoldsNothingAndIsFalse) {
  Put("C:\\wiped\\a");
  toolkit.DuringDoEvents = [this] { world.files.Remove("C:\\wiped"); };
  EXPECT_FALSE(WipeFolder(program, "C:\\wiped"));
}

}  // namespace
}  // namespace vantrel::cleaning
