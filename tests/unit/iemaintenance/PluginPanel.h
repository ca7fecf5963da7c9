// A machine with things attached to its browser, and the panel that lists and removes them.
#ifndef VANTREL_TESTS_UNIT_IEMAINTENANCE_PLUGINPANEL_H_
#define VANTREL_TESTS_UNIT_IEMAINTENANCE_PLUGINPANEL_H_

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "iemaintenance/Attach.h"
#include "iemaintenance/PluginInventory.h"
#include "iemaintenance/PluginRemoval.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameIEPlugin.h"
#include "windows/frmMain.h"

namespace vantrel::test {

inline const std::string Helpers =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\";
inline const std::string MenuExt = "SOFTWARE\\Microsoft\\Internet Explorer\\MenuExt\\";
inline const std::string Extensions = "SOFTWARE\\Microsoft\\Internet Explorer\\Extensions\\";
// What a button's tag begins with.
inline const std::string ButtonTag = "Software\\Microsoft\\Internet Explorer\\Extensions\\";

class PluginPanel : public ComponentFixture {
 protected:
  PluginPanel() {
    iemaintenance::AttachIEMaintenance(program);
    world.registry.MakeKey(platform::HKeyLocalMachine, Helpers);
  }

  windows::FrmFrameIEPlugin& Panel() { return *program.windows.FrmFrameIEPlugin; }
  forms::ListView& List() { return Panel().lstBHO; }
  std::string Total() { return Panel().lblTotalBHO.Caption(); }
  // Presses Refresh as the user does, behind the window that is made by then.
  void Refresh() { Panel().cmdRefreshBHO.SetValue(true); }
  void Show() { program.windows.frmMain->Show(); }

  // Each row as "KEY|NAME|ICON|TYPE|KEY OF THE TYPE|TAG|TOOL TIP".
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int row = 1; row <= List().Count(); ++row) {
      const forms::ListItem& item = List().Item(row);
      rows.push_back(item.Key() + "|" + item.Text() + "|" + item.Icon() + "|" + item.Sub(1).Text +
                     "|" + item.Sub(1).Key + "|" + item.Tag() + "|" + item.ToolTipText());
    }
    return rows;
  }
  std::vector<std::string> Keys() {
    std::vector<std::string> keys;
    for (int row = 1; row <= List().Count(); ++row) keys.push_back(List().Item(row).Key());
    return keys;
  }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int row = 1; row <= List().Count(); ++row) names.push_back(List().Item(row).Text());
    return names;
  }

  void Class(const std::string& id, const std::string& name) {
    world.registry.SetString(platform::HKeyClassesRoot, "CLSID\\" + id, "", name);
  }
  void Helper(const std::string& id, const std::string& name = "") {
    world.registry.MakeKey(platform::HKeyLocalMachine, Helpers + id);
    if (!name.empty()) Class(id, name);
  }
  void MenuExtension(const std::string& name) {
    world.registry.MakeKey(platform::HKeyCurrentUser, MenuExt + name);
  }
  void Button(const std::string& id, const std::string& text) {
    world.registry.SetString(platform::HKeyLocalMachine, Extensions + id, "ButtonText", text);
  }
  void Bar(const std::string& id, const std::string& name) {
    world.registry.SetString(platform::HKeyLocalMachine, ToolbarKey, id, "");
    Class(id, name);
  }
  static std::string PluginPath(const std::string& name) {
    return std::string(PluginFolder) + "\\" + name;
  }
  // A library that names its product in the 8-bit form; "" has no version at all.
  void Library(const std::string& name, const std::string& product) {
    const std::string zeros(3, '\0');
    world.files.Put(
        PluginPath(name),
        product.empty() ? "MZ" : "StringFileInfo" + zeros + "ProductName" + '\0' + product + zeros);
  }

  // One of each kind, the toolbar on a system where it is listed.
  void OneOfEachKind() {
    Helper("{1}", "Helper");
    Library("a.dll", "Plug-in");
    Bar("{2}", "Bar");
    MenuExtension("Entry");
    Button("{3}", "Button");
    world.registry.readsWithoutAccess = true;
  }

  // Checks every row and presses the button; the answers are for the questions in order.
  void DeleteAll(const std::vector<int>& answers) {
    for (int row = 1; row <= List().Count(); ++row) List().Item(row).SetChecked(true);
    process.ClearBoxes();
    process.AnswerBoxes(answers);
    AsEvent([&] { Panel().cmddeleteBHO.SetValue(true); });
    EXPECT_EQ(process.UnusedAnswers(), 0U);
  }
  // Answers every question with Yes and checks every row.
  void DeleteAll() {
    process.AnswerBox = [](const platform::memory::Box& box) {
      return box.style == platform::StyleInformationYesNo ? platform::AnswerYes
                                                          : platform::AnswerOk;
    };
    DeleteAll({});
  }
  bool HasKey(platform::KeyHandle root, const std::string& key) {
    return world.registry.HasKey(root, key);
  }
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_UNIT_IEMAINTENANCE_PLUGINPANEL_H_
