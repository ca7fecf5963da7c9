// The four panels of choices, clicked through from an empty store and from a stored one: after each
// click the settings tree is exactly the expected one, and at the end nothing else in the
// registry, its classes apart, has changed but what the panel is there to change.
#include <stdexcept>

#include "support/FirstRun.h"
#include "support/KeptValue.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

constexpr const char* MessengerKey = "SYSTEM\\CurrentControlSet\\Services\\Messenger";
constexpr const char* ZoneKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\0";
constexpr const char* BrowserMain = "Software\\Microsoft\\Internet Explorer\\Main";
constexpr const char* SoftwareKey = "SOFTWARE";

constexpr std::uint32_t Untouched = 3;  // what a service's start has until the program writes it
constexpr LRESULT DialUpIndex = 1;      // in the list of connections

// A user's own choices, most of them not the designed ones.
Tree StoredTree() {
  Tree tree = FirstRunTree();
  for (const char* name : {"popup", "keepalog", "dialogbox", "spy"}) {
    tree[std::string("block settings\\") + name] = Dword(0);
  }
  for (const char* name : {"adv", "shownotification", "showsound"}) {
    tree[std::string("block settings\\") + name] = Dword(1);
  }
  tree["block settings\\nsounds"] = Text("woosh");
  for (const char* name : {"bpid", "hidesystem", "checkupdates"}) {
    tree[std::string("settings\\") + name] = Dword(1);
  }
  return tree;
}

std::string Lower(std::string text) {
  CharLowerBuffA(text.data(), static_cast<DWORD>(text.size()));
  return text;
}

// The whole registry of the user and the machine's software, and the service.
struct World {
  Tree user;
  Tree machine;
  Tree messenger;
};

class PanelsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Write(HKEY_LOCAL_MACHINE, MessengerKey, "Start", Dword(Untouched));
    CreateKey(HKEY_CURRENT_USER, ZoneKey);
    for (const char* policy : {"1200", "1201"}) DeleteValue(HKEY_CURRENT_USER, ZoneKey, policy);
  }
  void TearDown() override {
    program_.reset();
    DeleteTree(HKEY_LOCAL_MACHINE, MessengerKey);
    ProgramTest::TearDown();
  }

  // Starts the program on a store that holds `stored`, or on an empty one.
  void Start(const Tree& stored = {}) {
    WriteTree(HKEY_CURRENT_USER, RootKey, stored);
    expected_ = Before();
    ExpectTree(stored.empty() ? FirstRunTree() : stored);
    ExpectEngine(true);
    ExpectMachine(std::string("Microsoft\\Internet Explorer\\Toolbar\\") + ToolbarId,
                  Text("Vantrel Toolbar"));
    program_.emplace();
    // No test is to go on without it.
    if (!program_->WaitUntilIdle()) throw std::runtime_error("the program did not become idle");
    if (!stored.empty()) {
      ExpectMessenger(2);
      ExpectZone();
    }
    Check("start");
  }
  const Running& Program() const { return *program_; }

  // What is expected from here on.
  void ExpectTree(const Tree& tree) {
    std::erase_if(expected_.user, [](const auto& row) { return row.first.starts_with(Prefix()); });
    expected_.user[Prefix()] = {};
    for (const auto& [name, value] : tree) expected_.user[Prefix() + name] = value;
  }
  void ExpectBlock(const std::string& name, std::uint32_t value) {
    expected_.user[Prefix() + "block settings\\" + Lower(name)] = Dword(value);
  }
  void ExpectGeneral(const std::string& name, std::uint32_t value) {
    expected_.user[Prefix() + "settings\\" + Lower(name)] = Dword(value);
  }
  void ExpectSound(const std::string& name) {
    expected_.user[Prefix() + "block settings\\nsounds"] = Text(name);
  }
  void ExpectMessenger(std::uint32_t start) { expected_.messenger["start"] = Dword(start); }
  void ExpectZone() {
    expected_.user[Lower(ZoneKey) + "\\1200"] = Dword(0);
    expected_.user[Lower(ZoneKey) + "\\1201"] = Dword(1);
  }
  void ExpectDebugger(const std::string& disabled) {
    expected_.user[Lower(BrowserMain) + "\\disable script debugger"] = Text(disabled);
  }
  void ExpectToolbar(bool present) {
    const std::string name = std::string("Microsoft\\Internet Explorer\\Toolbar\\") + ToolbarId;
    if (present) {
      ExpectMachine(name, Text("Vantrel Toolbar"));
    } else {
      expected_.machine.erase(Lower(name));
    }
  }
  void ExpectEngine(bool present) {
    const std::string key = Lower(std::string(EngineKey).substr(std::string("SOFTWARE\\").size()));
    std::erase_if(expected_.machine, [&](const auto& row) { return row.first.starts_with(key); });
    if (!present) return;
    // The key above comes with the first entry.
    expected_.machine[key.substr(0, key.rfind('\\') + 1)] = {};
    expected_.machine[key + "\\"] = {};
    expected_.machine[key + "\\subkey"] = Text("Grimbolt Helper");
    expected_.machine[key + "\\path"] = Text(ProgramFolder() + "\\Settings");
  }

  // The tree, and what else the panels write.
  void Check(const std::string& after) const {
    Tree tree;
    for (const auto& [name, value] : expected_.user) {
      if (name.starts_with(Prefix()) && name != Prefix()) {
        tree[name.substr(Prefix().size())] = value;
      }
    }
    EXPECT_EQ(Difference(tree, ReadTree(HKEY_CURRENT_USER, RootKey)), "") << "after " << after;
    EXPECT_EQ(Difference(expected_.messenger, ReadTree(HKEY_LOCAL_MACHINE, MessengerKey)), "")
        << "after " << after;
    for (const char* key : {ZoneKey, BrowserMain}) {
      EXPECT_EQ(Difference(Below(expected_.user, key), ReadTree(HKEY_CURRENT_USER, key)), "")
          << "after " << after;
    }
  }
  // All of it.
  void CheckWorld() const {
    const World now = Now();
    EXPECT_EQ(Difference(expected_.user, now.user), "");
    EXPECT_EQ(Difference(expected_.machine, now.machine), "");
    EXPECT_EQ(Difference(expected_.messenger, now.messenger), "");
  }
  void Click(const std::string& control) const {
    ASSERT_TRUE(Program().Click(control)) << control;
    Check(control);
  }
  // A click whose box is answered before the rest of it happens.
  void ClickThroughRestartBox(const std::string& control) const {
    Program().ClickAndLeave(control);
    const auto box = Program().WaitForBox();
    ASSERT_TRUE(box) << control;
    EXPECT_EQ(box->text, "The changes may require a restart of Internet Explorer");
    ASSERT_TRUE(Program().Answer(*box));
    ASSERT_TRUE(Program().Answers());
    EXPECT_EQ(Program().BoxCount(), 0U) << control;
    Check(control);
  }
  // A mark that the next save of the block settings wipes out.
  void MarkUnsaved() {
    Write(HKEY_CURRENT_USER, BlockSettings, "GDisabled", Dword(7));
    ExpectBlock("GDisabled", 7);
  }

 private:
  // The system lists its sound devices when the first sound is played, and notes under its own key
  // what it has looked up, whoever asked.
  static Tree WithoutTheSystemsOwn(Tree tree) {
    std::erase_if(tree, [](const auto& row) {
      return row.first.starts_with("microsoft\\windows\\currentversion\\mmdevices\\") ||
             row.first.starts_with("software\\wine\\");
    });
    return tree;
  }
  // The thousands of classes take seconds to read, and there is none that a panel would change.
  static Tree MachineNow() {
    return WithoutTheSystemsOwn(ReadTree(HKEY_LOCAL_MACHINE, SoftwareKey, "classes"));
  }
  static World WorldOf(const Tree& machine) {
    return {WithoutTheSystemsOwn(ReadTree(HKEY_CURRENT_USER, "")), machine,
            ReadTree(HKEY_LOCAL_MACHINE, MessengerKey)};
  }
  // The machine's part is large and read once: every test must find it as the first did.
  static World Before() {
    static const Tree machine = MachineNow();
    return WorldOf(machine);
  }
  static World Now() { return WorldOf(MachineNow()); }
  static std::string Prefix() { return Lower(RootKey) + "\\"; }
  void ExpectMachine(const std::string& name, const StoredValue& value) {
    expected_.machine[Lower(name)] = value;
  }
  static Tree Below(const Tree& tree, const std::string& key) {
    const std::string prefix = Lower(key) + "\\";
    Tree below;
    for (const auto& [name, value] : tree) {
      if (name.starts_with(prefix) && name != prefix) below[name.substr(prefix.size())] = value;
    }
    return below;
  }

  KeptValue zone1200_{HKEY_CURRENT_USER, ZoneKey, "1200"};
  KeptValue zone1201_{HKEY_CURRENT_USER, ZoneKey, "1201"};
  World expected_;
  std::optional<Running> program_;
};

// The block preferences.

class BlockPreferencesTest : public PanelsTest {
 protected:
  static std::string Box(const std::string& name) { return "FrmFrameBlockPreferences." + name; }
  void ExpectFive(int popup, int dialog, int flash, int banner, int dhtml) {
    ExpectBlock("Popup", static_cast<std::uint32_t>(popup));
    ExpectBlock("WebDialog", static_cast<std::uint32_t>(dialog));
    ExpectBlock("Flash", static_cast<std::uint32_t>(flash));
    ExpectBlock("Banner", static_cast<std::uint32_t>(banner));
    ExpectBlock("DHTML", static_cast<std::uint32_t>(dhtml));
  }
  void ExpectOthers(int adv, int dialogBox, int spy) {
    ExpectBlock("Adv", static_cast<std::uint32_t>(adv));
    ExpectBlock("DialogBox", static_cast<std::uint32_t>(dialogBox));
    ExpectBlock("Spy", static_cast<std::uint32_t>(spy));
  }
  void ExpectAll(int state) const { EXPECT_EQ(Program().CheckOf(Box("chkAll")), state); }
  void Choose(int preset) const {
    ASSERT_TRUE(Program().Choose(Box("cmbinternet"), preset));
    Check("preset " + std::to_string(preset));
  }
};

constexpr int DialUp = 1;
constexpr int DslCable = 2;
constexpr int HighSpeed = 3;

TEST_F(BlockPreferencesTest, EachBoxIsStoredAtOnce) {
  Start();
  struct Row {
    const char* box;
    const char* value;
    std::uint32_t before;
  };
  constexpr Row rows[] = {{"chkBPopup", "Popup", 1},      {"chkBDhtml", "DHTML", 1},
                          {"chkBDialog", "WebDialog", 1}, {"chkBBanner", "Banner", 1},
                          {"chkBFlash", "Flash", 1},      {"chkBAdv", "Adv", 0}};
  for (const Row& row : rows) {
    ExpectBlock(row.value, 1 - row.before);
    Click(Box(row.box));
    // With the last of the six ticked the master box is ticked, and cascades nothing.
    ExpectAll(row.before == 0 ? 1 : 0);
    ExpectBlock(row.value, row.before);
    Click(Box(row.box));
    ExpectAll(0);
  }
  CheckWorld();
}

TEST_F(BlockPreferencesTest, TheMessengerAndSpywareBoxesChangeTheSystemAsWell) {
  Start();
  ExpectBlock("Adv", 1);
  Click(Box("chkBAdv"));
  ExpectAll(1);
  ExpectBlock("DialogBox", 0);
  ExpectMessenger(2);
  Click(Box("chkBDialogBox"));
  ExpectAll(1);
  ExpectBlock("Spy", 0);
  ExpectZone();
  Click(Box("chkBSpyware"));
  ExpectAll(1);
  ExpectBlock("DialogBox", 1);
  ExpectMessenger(4);
  Click(Box("chkBDialogBox"));
  // The zone stays as clearing the box has made it.
  ExpectBlock("Spy", 1);
  Click(Box("chkBSpyware"));
  CheckWorld();
}

TEST_F(BlockPreferencesTest, TheMasterBoxSetsAllEight) {
  Start();
  ExpectBlock("Adv", 1);
  Click(Box("chkAll"));
  ExpectAll(1);
  // Ticked all along: the service is not written.
  ExpectFive(0, 0, 0, 0, 0);
  ExpectOthers(0, 0, 0);
  ExpectMessenger(2);
  ExpectZone();
  Click(Box("chkAll"));
  ExpectAll(0);
  ExpectFive(1, 1, 1, 1, 1);
  ExpectOthers(1, 1, 1);
  ExpectMessenger(4);
  Click(Box("chkAll"));
  ExpectAll(1);
  CheckWorld();
}

TEST_F(BlockPreferencesTest, PresetsSetTheirFiveAndAClearedMasterTheRest) {
  Start();
  ExpectFive(1, 1, 1, 0, 0);
  Choose(DialUp);
  ExpectFive(1, 1, 1, 1, 0);
  Choose(DslCable);
  ExpectFive(1, 1, 1, 1, 1);
  Choose(HighSpeed);
  ExpectAll(0);
  // With the last of the six ticked the master is ticked; the next preset clears it first.
  ExpectOthers(1, 1, 1);
  Click(Box("chkBAdv"));
  ExpectAll(1);
  ExpectFive(1, 1, 1, 1, 0);
  ExpectOthers(0, 0, 0);
  ExpectMessenger(2);
  ExpectZone();
  Choose(DslCable);
  ExpectAll(0);
  CheckWorld();
}

TEST_F(BlockPreferencesTest, ATypedPresetCountsOnlyLetterForLetter) {
  Start();
  MarkUnsaved();
  for (const char* text : {"dial up", "DSL", "Custom", ""}) {
    Program().SetText(Box("cmbinternet"), text);
    Check(text);
  }
  ExpectFive(1, 1, 1, 0, 0);
  ExpectBlock("GDisabled", 0);
  Program().SetText(Box("cmbinternet"), "Dial Up");
  Check("Dial Up");
  // The same once more changes nothing.
  MarkUnsaved();
  Program().SetText(Box("cmbinternet"), "Custom");
  Program().SetText(Box("cmbinternet"), "Dial Up");
  Check("Dial Up again");
  CheckWorld();
}

// By key, with the list closed and dropped: each letter goes behind the one before.
TEST_F(BlockPreferencesTest, APresetTypedByKeyCounts) {
  Start();
  HWND combo = Program().Find(Box("cmbinternet"));
  HWND field = FindWindowExA(combo, nullptr, "Edit", nullptr);
  ASSERT_NE(field, nullptr);
  for (const bool dropped : {false, true}) {
    Program().SetText(Box("cmbinternet"), "");
    SendMessageA(combo, CB_SHOWDROPDOWN, dropped ? TRUE : FALSE, 0);
    for (const char letter : std::string("Dial Up")) {
      PostMessageA(field, WM_CHAR, static_cast<WPARAM>(letter), 1);
    }
    EXPECT_TRUE(Program().WaitForText(Box("cmbinternet"), "Dial Up"))
        << dropped << ": " << Program().TextOf(Box("cmbinternet"));
    SendMessageA(combo, CB_SHOWDROPDOWN, FALSE, 0);
    // The list knows it as well, so that an arrow key goes on from there.
    EXPECT_TRUE(WaitFor([&] { return SendMessageA(combo, CB_GETCURSEL, 0, 0) == DialUpIndex; }));
    ExpectFive(1, 1, 1, 0, 0);
    ASSERT_TRUE(Program().Answers());
    Check("Dial Up by key");
  }
}

TEST_F(BlockPreferencesTest, FromAStoredStoreTheSystemIsChangedAtStartAndTheBoxesGoOn) {
  Start(StoredTree());
  ExpectAll(0);
  ExpectBlock("Popup", 1);
  Click(Box("chkBPopup"));
  ExpectAll(1);
  ExpectFive(0, 0, 0, 0, 0);
  ExpectOthers(0, 0, 0);
  Click(Box("chkAll"));
  ExpectFive(1, 1, 1, 1, 1);
  ExpectOthers(1, 1, 1);
  ExpectMessenger(4);
  Click(Box("chkAll"));
  CheckWorld();
}

// The general settings.

class GeneralSettingsTest : public PanelsTest {
 protected:
  static std::string Box(const std::string& name) { return "FrmFrameSettings." + name; }
  // The first save stores what the boxes show, which is not what the first run stored.
  void ExpectFirstSave() {
    ExpectGeneral("BpID", 1);
    ExpectGeneral("StartWithWindows", 0);
  }
};

TEST_F(GeneralSettingsTest, EachBoxIsStoredByItsOwnRule) {
  Start();
  ExpectFirstSave();
  ExpectGeneral("HideSystem", 1);
  Click(Box("chkGHideSystray"));
  // The entry for the start with Windows stays as it is.
  ExpectGeneral("StartWithWindows", 1);
  Click(Box("chkGSWindows"));
  ExpectGeneral("CheckUpdates", 1);
  Click(Box("chkGUpdate"));
  ExpectBlock("KeepaLog", 0);
  Click(Box("chkGLog"));
  ExpectGeneral("HideSystem", 0);
  Click(Box("chkGHideSystray"));
  CheckWorld();
}

TEST_F(GeneralSettingsTest, TheToolbarBoxActsAtOnceButIsStoredWithTheNextOther) {
  Start();
  ExpectToolbar(false);
  MarkUnsaved();
  ExpectBlock("GDisabled", 0);
  ClickThroughRestartBox(Box("chkGShowToolbar"));
  EXPECT_FALSE(Program().IsShown(Box("lblviewtoolbar")));
  EXPECT_FALSE(Read(HKEY_LOCAL_MACHINE, ToolbarKey, ToolbarId));
  ExpectFirstSave();
  ExpectGeneral("ShowBrowser", 0);
  ExpectGeneral("CheckUpdates", 1);
  Click(Box("chkGUpdate"));
  ExpectToolbar(true);
  ClickThroughRestartBox(Box("chkGShowToolbar"));
  EXPECT_TRUE(Program().IsShown(Box("lblviewtoolbar")));
  CheckWorld();
}

TEST_F(GeneralSettingsTest, TheScriptBoxWritesTheBrowsersOwnValue) {
  Start();
  ExpectDebugger("no");
  Click(Box("chkScript"));
  ExpectDebugger("yes");
  Click(Box("chkScript"));
  CheckWorld();
}

// Only where the save fails: with the box ticked the entry is written, with it cleared deleted.
TEST_F(GeneralSettingsTest, AFailedSaveTellsSoAndThenMovesTheStartWithWindows) {
  constexpr const char* RunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
  Start();
  Write(HKEY_CURRENT_USER, Settings, "BpID", Text(""));
  for (const bool ticked : {true, false}) {
    Program().ClickAndLeave(Box("chkGSWindows"));
    const auto box = Program().WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text, "Error occured: Invalid procedure call or argument");
    EXPECT_FALSE(Read(HKEY_LOCAL_MACHINE, RunKey, "Vantrel") && ticked) << "before the answer";
    ASSERT_TRUE(Program().Answer(*box));
    ASSERT_TRUE(Program().Answers());
    const auto entry = Read(HKEY_LOCAL_MACHINE, RunKey, "Vantrel");
    ASSERT_EQ(entry.has_value(), ticked);
    // With its terminator.
    if (entry) {
      EXPECT_EQ(*entry, Text(ProgramFolder() + std::string("\\Vantrel.exe\0", 13)));
    }
  }
}

TEST_F(GeneralSettingsTest, ResetSetsOnlyWhatDiffers) {
  Start();
  // The log is kept already; everything is at its reset state.
  MarkUnsaved();
  Click(Box("cmdresetSettings"));
  ExpectFirstSave();
  ExpectGeneral("HideSystem", 1);
  Click(Box("chkGHideSystray"));
  ExpectDebugger("no");
  Click(Box("chkScript"));
  ExpectToolbar(false);
  ExpectBlock("GDisabled", 0);
  ClickThroughRestartBox(Box("chkGShowToolbar"));
  ExpectBlock("KeepaLog", 0);
  Click(Box("chkGLog"));
  ExpectBlock("KeepaLog", 1);
  ExpectToolbar(true);
  ExpectGeneral("HideSystem", 0);
  ExpectDebugger("yes");
  ClickThroughRestartBox(Box("cmdresetSettings"));
  CheckWorld();
}

TEST_F(GeneralSettingsTest, FromAStoredStoreResetPutsTheRestRight) {
  Start(StoredTree());
  EXPECT_EQ(Program().CheckOf(Box("chkGSWindows")), 1);
  ExpectBlock("KeepaLog", 1);
  for (const char* name : {"CheckUpdates", "StartWithWindows", "HideSystem"}) {
    ExpectGeneral(name, 0);
  }
  Click(Box("cmdresetSettings"));
  CheckWorld();
}

TEST_F(GeneralSettingsTest, AnOddScriptDebuggerValueBecomesNoAtTheStart) {
  const KeptValue kept(HKEY_CURRENT_USER, BrowserMain, "Disable Script Debugger");
  for (const char* odd : {"Yes", "no", "", "yes "}) {
    Write(HKEY_CURRENT_USER, BrowserMain, "Disable Script Debugger", Text(std::string(odd) + '\0'));
    Running program;
    ASSERT_TRUE(program.WaitUntilIdle());
    EXPECT_EQ(program.CheckOf(Box("chkScript")), 0) << odd;
    EXPECT_EQ(Read(HKEY_CURRENT_USER, BrowserMain, "Disable Script Debugger"), Text("no")) << odd;
  }
}

// The notification.

class NotificationTest : public PanelsTest {
 protected:
  static std::string Box(const std::string& name) { return "FrmFrameNotification." + name; }
  bool ListShown() const { return Program().IsShown(Box("cmbsound")); }
  void ExpectFour(int window, int sound, int holders, int flashHolders) {
    ExpectBlock("ShowNotification", static_cast<std::uint32_t>(window));
    ExpectBlock("ShowSound", static_cast<std::uint32_t>(sound));
    ExpectBlock("ShowPH", static_cast<std::uint32_t>(holders));
    ExpectBlock("ShowPHF", static_cast<std::uint32_t>(flashHolders));
  }
  // Moves the keyboard's focus as the panel's own keys do.
  void Focus(const std::string& control) const {
    SendMessageTimeoutA(Program().Find("FrmFrameNotification"), WM_NEXTDLGCTL,
                        reinterpret_cast<WPARAM>(Program().Find(Box(control))), TRUE, SMTO_NORMAL,
                        DefaultBound, nullptr);
  }
};

TEST_F(NotificationTest, BoxesAreStoredAndDontNotifyClearsThem) {
  Start();
  // The sound is off, and the list shows all the same.
  EXPECT_TRUE(ListShown());
  ExpectFour(1, 0, 0, 0);
  Click(Box("chkNW"));
  ExpectFour(1, 0, 1, 0);
  Click(Box("chkNPH"));
  ExpectFour(1, 0, 1, 1);
  Click(Box("chkNPHF"));
  ExpectFour(1, 1, 1, 1);
  Click(Box("chkNS"));
  EXPECT_TRUE(ListShown());
  ExpectFour(0, 0, 0, 0);
  Click(Box("chkNAll"));
  EXPECT_FALSE(ListShown());
  EXPECT_TRUE(Program().IsShown(Box("Label35")));
  // Cleared, it brings nothing back; ticked over clear boxes, it saves nothing.
  MarkUnsaved();
  Click(Box("chkNAll"));
  Click(Box("chkNAll"));
  EXPECT_EQ(Program().CheckOf(Box("chkNAll")), 1);
  ExpectBlock("GDisabled", 0);
  ExpectFour(1, 0, 0, 0);
  Click(Box("chkNW"));
  EXPECT_EQ(Program().CheckOf(Box("chkNAll")), 0);
  CheckWorld();
}

TEST_F(NotificationTest, DefaultSetsItsFourAndEndsDontNotify) {
  Start();
  Click(Box("chkNAll"));
  ExpectFour(0, 1, 1, 1);
  Click(Box("cmdDefaultNotify"));
  EXPECT_EQ(Program().CheckOf(Box("chkNAll")), 0);
  EXPECT_TRUE(ListShown());
  // Once more there is nothing to change.
  MarkUnsaved();
  Click(Box("cmdDefaultNotify"));
  CheckWorld();
}

TEST_F(NotificationTest, AChosenSoundIsStoredByItsNameAlsoWhileSoundIsOff) {
  Start();
  const char* const names[] = {"alert", "click", "crash",  "double",   "drop", "pop",
                               "pop2",  "slip",  "vanish", "vaporize", "woosh"};
  EXPECT_EQ(Program().TextOf(Box("cmbsound")), "alert");
  for (int index = 10; index >= 0; --index) {
    ExpectSound(names[index]);
    ASSERT_TRUE(Program().Choose(Box("cmbsound"), index));
    Check(names[index]);
  }
  Program().MouseClick(Box("Label35"));
  EXPECT_TRUE(Program().Answers());
  CheckWorld();
}

TEST_F(NotificationTest, LeavingTheListSavesAndNothingElseCanBeTyped) {
  Start();
  Program().ChooseMenu("MnuNotification");
  ASSERT_TRUE(Program().WaitUntilVisible("FrmFrameNotification"));
  Program().SetText(Box("cmbsound"), "no such sound");
  EXPECT_EQ(Program().TextOf(Box("cmbsound")), "alert");
  ExpectSound("alert");
  Focus("cmbsound");
  MarkUnsaved();
  Check("entering the list");
  ExpectBlock("GDisabled", 0);
  Focus("chkNW");
  Check("leaving the list");
  EXPECT_EQ(Program().BoxCount(), 0U);
  CheckWorld();
}

TEST_F(NotificationTest, FromAStoredStoreTheListFollowsTheSoundBox) {
  Start(StoredTree());
  EXPECT_EQ(Program().TextOf(Box("cmbsound")), "woosh");
  EXPECT_EQ(Program().CheckOf(Box("chkNAll")), 0);
  ExpectFour(1, 0, 0, 0);
  Click(Box("chkNS"));
  EXPECT_FALSE(ListShown());
  ExpectFour(0, 1, 1, 1);
  Click(Box("cmdDefaultNotify"));
  EXPECT_TRUE(ListShown());
  EXPECT_EQ(Program().TextOf(Box("cmbsound")), "woosh");
  ExpectFour(0, 0, 0, 0);
  Click(Box("chkNAll"));
  CheckWorld();
}

// The Welcome panel.

class WelcomeTest : public BlockPreferencesTest {
 protected:
  static std::string On(const std::string& name) { return "FrmFrameMain." + name; }
};

TEST_F(WelcomeTest, OptionsSetPresetsAndMinimizeIsStoredAtOnce) {
  Start();
  EXPECT_EQ(Program().CheckOf(On("optMedium")), 1);
  ExpectFive(1, 1, 1, 0, 0);
  Click(On("optDial"));
  EXPECT_EQ(Program().TextOf(Box("cmbinternet")), "Dial Up");
  EXPECT_EQ(Program().CheckOf(On("optMedium")), 0);
  ExpectFive(1, 1, 1, 1, 1);
  Click(On("optFast"));
  ExpectFive(1, 1, 1, 1, 0);
  Click(On("optMedium"));
  ExpectGeneral("BpID", 1);
  ExpectGeneral("StartWithWindows", 0);
  ExpectGeneral("Minimize", 1);
  Click(On("ChkMinimize"));
  EXPECT_TRUE(Program().IsVisible("frmMain"));
  ExpectGeneral("Minimize", 0);
  Click(On("ChkMinimize"));
  CheckWorld();
}

TEST_F(WelcomeTest, StopAndStartMoveTheEnginesEntryAndNothingElse) {
  Start();
  ExpectEngine(false);
  ExpectBlock("GDisabled", 1);
  Click(On("cmdstop"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  ExpectEngine(true);
  ExpectBlock("GDisabled", 0);
  Click(On("cmdstart"));
  CheckWorld();
}

TEST_F(WelcomeTest, FromAStoredStoreAPresetTouchesOnlyItsFive) {
  Start(StoredTree());
  ExpectFive(1, 1, 1, 0, 0);
  Click(On("optDial"));
  // The last of the six ticks the master box.
  ExpectFive(1, 1, 1, 1, 1);
  Click(On("optFast"));
  ExpectAll(1);
  CheckWorld();
}

}  // namespace
}  // namespace vantrel::e2e
