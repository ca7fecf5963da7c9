// A fixture whose program runs at a chosen resolution, seen from outside in its own pixels.
#ifndef VANTREL_TESTS_E2E_LOOK_LOOKFIXTURE_H_
#define VANTREL_TESTS_E2E_LOOK_LOOKFIXTURE_H_

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Copy.h"
#include "Inside.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {

// A visible control of a window.
struct Seen {
  std::string Name;
  HWND Window;
  std::string Kind;  // its class
  std::string Text;
};

class LookFixture : public ProgramTest {
 protected:
  static constexpr int DesignDpi = 96;
  static constexpr const char* DesktopKey = "Control Panel\\Desktop";

  void SetUp() override {
    ProgramTest::SetUp();
    SeeRealPixels();
    before_ = Read(HKEY_CURRENT_USER, DesktopKey, "LogPixels");
  }
  void TearDown() override {
    End();
    if (before_) {
      Write(HKEY_CURRENT_USER, DesktopKey, "LogPixels", *before_);
    } else {
      DeleteValue(HKEY_CURRENT_USER, DesktopKey, "LogPixels");
    }
    ProgramTest::TearDown();
  }

  void Start(int dpi = DesignDpi) {
    Write(HKEY_CURRENT_USER, DesktopKey, "LogPixels", Dword(static_cast<std::uint32_t>(dpi)));
    program_ = std::make_unique<Running>();
    ASSERT_TRUE(program_->WaitUntilIdle());
    copy_ = Copy(program_->ProcessId());
    inside_ = std::make_unique<Inside>(program_->Process());
    main_ = copy_.Find("frmMain");
  }

  void End() {
    inside_.reset();
    program_.reset();
  }

  // The visible controls below a window: those of the panel that is given, and of no other.
  std::vector<Seen> ControlsOf(const std::string& form) const {
    std::vector<Seen> seen;
    for (const auto& [name, window] : copy_.Named()) {
      if (name.rfind(form + ".", 0) != 0 || !IsWindowVisible(window)) continue;
      seen.push_back({name, window, ClassNameOf(window), WindowTextOf(window)});
    }
    return seen;
  }

  // Brings the dialog up by the menu, looks at it, and closes it.
  void InDialog(const std::string& entry, const std::string& form,
                const std::function<void()>& look) const {
    Shown().Choose(entry);
    ASSERT_TRUE(WaitFor([&] { return IsWindowVisible(Shown().Find(form)) != FALSE; })) << form;
    look();
    PostMessageA(Shown().Find(form), WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([&] { return !IsWindowVisible(Shown().Find(form)); })) << form;
  }

  const Running& Program() const { return *program_; }
  const Copy& Shown() const { return copy_; }
  const Inside& Within() const { return *inside_; }
  HWND Main() const { return main_; }

 private:
  std::optional<StoredValue> before_;
  std::unique_ptr<Running> program_;
  std::unique_ptr<Inside> inside_;
  Copy copy_{0};
  HWND main_ = nullptr;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_LOOK_LOOKFIXTURE_H_
