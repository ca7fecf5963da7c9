// Which window a box belongs to.
#include <gtest/gtest.h>

#include "support/ComponentFixture.h"
#include "windows/FrmAbout.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::program {
namespace {

class BoxOwner : public test::ComponentFixture {
 protected:
  platform::WindowHandle OwnerOfABox() {
    process.ClearBoxes();
    program.MsgBox("up");
    return process.Boxes().at(0).owner;
  }
  Windows& Forms() { return program.windows; }
};

TEST_F(BoxOwner, IsNoneBeforeThereIsAMainWindowAndWhileItIsHidden) {
  EXPECT_EQ(OwnerOfABox(), 0U);
  Forms().frmMain.EnsureLoaded();
  EXPECT_EQ(OwnerOfABox(), 0U);
  Forms().frmMain->Show();
  Forms().frmMain->Hide();
  EXPECT_EQ(OwnerOfABox(), 0U);
}

TEST_F(BoxOwner, IsTheMainWindowAlsoBesideADialogThatLeavesItUsable) {
  Forms().frmMain->Show();
  Forms().frmcustom->Show();
  EXPECT_EQ(OwnerOfABox(), Forms().frmMain->hWnd());
}

TEST_F(BoxOwner, IsTheModalDialogWhileThatIsUp) {
  Forms().frmMain->Show();
  platform::WindowHandle owner = 0;
  toolkit.WhenPumped([&] {
    owner = OwnerOfABox();
    Forms().FrmAbout->Unload();
  });
  Forms().FrmAbout.EnsureLoaded();
  const platform::WindowHandle dialog = Forms().FrmAbout->hWnd();
  Forms().FrmAbout->ShowModal();
  EXPECT_EQ(owner, dialog);
  EXPECT_EQ(OwnerOfABox(), Forms().frmMain->hWnd());
}

TEST_F(BoxOwner, IsNoDialogThatIsHiddenAlready) {
  Forms().frmMain->Show();
  platform::WindowHandle owner = 0;
  toolkit.WhenPumped([&] {
    Forms().FrmAbout->Hide();
    owner = OwnerOfABox();
  });
  Forms().FrmAbout->ShowModal();
  EXPECT_EQ(owner, Forms().frmMain->hWnd());
}

TEST_F(BoxOwner, IsTheInnerOneOfTwoModalDialogs) {
  Forms().frmMain->Show();
  platform::WindowHandle owner = 0;
  platform::WindowHandle inner = 0;
  toolkit.WhenPumped([&] {
    toolkit.WhenPumped([&] {
      inner = Forms().frmcustom->hWnd();
      owner = OwnerOfABox();
      Forms().frmcustom->Unload();
    });
    Forms().frmcustom->ShowModal();
    Forms().FrmAbout->Unload();
  });
  Forms().FrmAbout->ShowModal();
  EXPECT_NE(inner, 0U);
  EXPECT_EQ(owner, inner);
}

}  // namespace
}  // namespace vantrel::program
