// The fixture of the cases of the Clean panel: the shipped program beside folders of the test's
// own.
#ifndef VANTREL_TESTS_E2E_SUPPORT_CLEANPANELTEST_H_
#define VANTREL_TESTS_E2E_SUPPORT_CLEANPANELTEST_H_

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/ProgramTest.h"
#include "support/UserFolders.h"

namespace vantrel::e2e {

class CleanPanelTest : public ProgramTest {
 protected:
  static std::string Control(const std::string& name) { return "FrmFrameHistory." + name; }

  // A started program that shows the panel.
  static void Open(const Running& program) {
    ASSERT_TRUE(program.WaitUntilIdle());
    program.MouseClick("frmMain.lnkClean");
    ASSERT_TRUE(program.WaitUntilVisible("FrmFrameHistory"));
    ASSERT_TRUE(program.WaitForText("frmMain.lblVCP1", "Clean - Qorvel Software Vantrel "));
  }
  static void Refresh(const Running& program) {
    program.SetText(Control("lblcleaningstatus"), "not yet");
    program.MouseClick(Control("lblRefresh"));
    ASSERT_TRUE(program.WaitForText(Control("lblcleaningstatus"), "Ready to clean"));
  }
  // Leaves only these boxes set.
  static void Select(const Running& program, std::initializer_list<const char*> boxes) {
    for (const char* box : Boxes) {
      const bool wanted = std::find_if(boxes.begin(), boxes.end(), [box](const char* selected) {
                            return std::string(selected) == box;
                          }) != boxes.end();
      if ((program.CheckOf(Control(box)) != 0) != wanted) {
        ASSERT_TRUE(program.Click(Control(box))) << box;
      }
    }
  }
  static std::string Shown(const Running& program, const char* label) {
    return program.TextOf(Control(label));
  }
  // The four sizes, in the order of the boxes' column.
  static std::vector<std::string> Sizes(const Running& program) {
    return {Shown(program, "lblhistory"), Shown(program, "lbltif"), Shown(program, "lblRecent"),
            Shown(program, "lblotf")};
  }
  // The same by a walk of the test's own.
  std::vector<std::string> WalkedSizes() const {
    std::vector<std::string> sizes;
    for (const std::string* folder :
         {&folders_.History, &folders_.Internet, &folders_.Recent, &folders_.Temporary}) {
      sizes.push_back(std::to_string((BytesBelow(*folder) + 512) / 1024) + " Kbs");
    }
    return sizes;
  }

  static constexpr const char* Boxes[] = {
      "chkCacheHistory",       "chkCacheInternet", "chkCacheRecent",
      "chkCacheHURL",          "chkCachetemp",     "chkWindowsRunHistory",
      "chkWindowsFindHistory", "chkWindowsRecDoc", "chkWindowsRB"};

  const UserFolders folders_;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_CLEANPANELTEST_H_
