// Starts over stores that something else has damaged: each comes up, says what is to be said, and
// can be used afterwards.
#include "support/FirstRun.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

class BrokenStoreTest : public ProgramTest {
 protected:
  // A store whose choices all differ from the designed ones, as a user may have left it.
  void SetUp() override {
    ProgramTest::SetUp();
    WriteTree(HKEY_CURRENT_USER, RootKey, FirstRunTree());
    for (const char* name : {"Popup", "DHTML", "WebDialog", "Banner", "Flash", "KeepaLog"}) {
      Write(HKEY_CURRENT_USER, BlockSettings, name, Dword(0));
    }
    for (const char* name : {"Adv", "ShowNotification", "ShowPH", "ShowPHF"}) {
      Write(HKEY_CURRENT_USER, BlockSettings, name, Dword(1));
    }
    for (const char* name : {"BpID", "HideSystem", "CheckUpdates"}) {
      Write(HKEY_CURRENT_USER, Settings, name, Dword(1));
    }
  }

  // Whether the window takes clicks and stores what they mean.
  static void ExpectUsable(const Running& program) {
    EXPECT_TRUE(program.Answers());
    EXPECT_EQ(program.BoxCount(), 0U);
    EXPECT_TRUE(program.IsVisible("frmMain"));
    program.MouseClick("frmMain.LnkSettings");
    EXPECT_TRUE(program.WaitUntilVisible("FrmFrameSettings"));
    const int before = program.CheckOf("FrmFrameSettings.chkGUpdate");
    EXPECT_TRUE(program.Click("FrmFrameSettings.chkGUpdate"));
    EXPECT_EQ(program.CheckOf("FrmFrameSettings.chkGUpdate"), 1 - before);
    EXPECT_EQ(Number(Settings, "CheckUpdates"), static_cast<std::uint32_t>(1 - before));
  }

  // The load of the block settings ended at a value: what stands before it in the order of loading
  // is loaded, the rest stays as designed.
  static void ExpectLoadedUpTo(const Running& program, const std::string& stopAt) {
    struct Row {
      const char* value;
      const char* box;
      int stored;
      int designed;
    };
    constexpr Row rows[] = {
        {"Popup", "FrmFrameBlockPreferences.chkBPopup", 0, 1},
        {"DHTML", "FrmFrameBlockPreferences.chkBDhtml", 0, 1},
        {"WebDialog", "FrmFrameBlockPreferences.chkBDialog", 0, 1},
        {"Banner", "FrmFrameBlockPreferences.chkBBanner", 0, 1},
        {"Flash", "FrmFrameBlockPreferences.chkBFlash", 0, 1},
        {"Adv", "FrmFrameBlockPreferences.chkBAdv", 1, 0},
        {"KeepaLog", "FrmFrameSettings.chkGLog", 0, 0},
        {"ShowNotification", "FrmFrameNotification.chkNW", 1, 0},
        {"ShowPH", "FrmFrameNotification.chkNPH", 1, 0},
        {"ShowPHF", "FrmFrameNotification.chkNPHF", 1, 0},
        {"Spy", "FrmFrameBlockPreferences.chkBSpyware", 1, 1},
        {"HideSystem", "FrmFrameSettings.chkGHideSystray", 1, 0},
        {"CheckUpdates", "FrmFrameSettings.chkGUpdate", 1, 0},
    };
    bool reached = true;
    for (const Row& row : rows) {
      reached = reached && stopAt != row.value;
      EXPECT_EQ(program.CheckOf(row.box), reached ? row.stored : row.designed) << row.box;
    }
  }
};

TEST_F(BrokenStoreTest, AWholeStoreIsLoadedToItsEnd) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "");
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, AMissingLastFlagEndsTheLoadSilentlyBeforeTheGeneralSettings) {
  DeleteValue(HKEY_CURRENT_USER, BlockSettings, "Spy");
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "Spy");
  // The start of blocking at the end of start-up writes it again.
  EXPECT_EQ(Number(BlockSettings, "Spy"), 1U);
  EXPECT_EQ(Number(BlockSettings, "Popup"), 0U);
  EXPECT_EQ(Number(Settings, "HideSystem"), 1U);
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, AFlagOutsideItsRangeEndsTheLoadThere) {
  Write(HKEY_CURRENT_USER, BlockSettings, "Banner", Dword(7));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "Banner");
  EXPECT_EQ(Number(BlockSettings, "Banner"), 1U);
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, AFlagThatIsNoNumberEndsTheLoadThere) {
  Write(HKEY_CURRENT_USER, BlockSettings, "DHTML", Text("abc"));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "DHTML");
  EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockSettings, "DHTML"), Dword(1));
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, AFlagAboveSixteenBitsEndsTheLoadThere) {
  Write(HKEY_CURRENT_USER, BlockSettings, "Flash", Dword(0xFFFFFFFF));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "Flash");
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, AFlagOfTwoThousandBytesReadsAsMissing) {
  Write(HKEY_CURRENT_USER, BlockSettings, "WebDialog", Text(std::string(2000, '1')));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "WebDialog");
  EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockSettings, "WebDialog"), Dword(1));
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, AMarkerOfNoBytesIsARunTimeErrorAndTheWindowStaysUsable) {
  Write(HKEY_CURRENT_USER, BlockSettings, "BpID", Text(""));
  Running program;
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  EXPECT_EQ(box->title, "Vantrel");
  EXPECT_EQ(box->text, "Run-time error '5':\r\n\r\nInvalid procedure call or argument");
  ASSERT_TRUE(program.Answer(*box));
  ASSERT_TRUE(program.WaitUntilVisible("frmMain"));
  // A save reads the marker as well, and says so; the general settings are saved by themselves.
  ExpectUsable(program);
  program.ClickAndLeave("FrmFrameSettings.chkGLog");
  const auto saved = program.WaitForBox();
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->text, "Error occured: Invalid procedure call or argument");
  ASSERT_TRUE(program.Answer(*saved));
  ExpectUsable(program);
  program.ChooseMenu("MnuExit");
  EXPECT_TRUE(program.WaitForExit());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

// The box holds the start up before the first idle moment, and the main window has not shown yet.
TEST_F(BrokenStoreTest, ABoxOfAHiddenStartFindsTheChannelOpen) {
  Write(HKEY_CURRENT_USER, BlockSettings, "BpID", Text(""));
  Running program("/customtoolbar");
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  EXPECT_FALSE(program.IsVisible("frmMain"));
  ASSERT_NE(program.Find("frmMain.cmdDummy"), nullptr);
  EXPECT_EQ(program.TextOf("frmMain.cmdDummy"), "Ready for command");
  ASSERT_TRUE(program.Answer(*box));
}

TEST_F(BrokenStoreTest, AMarkerOfTwoThousandBytesIsAFirstRun) {
  Write(HKEY_CURRENT_USER, BlockSettings, "BpID", Text(std::string(2000, 'x')));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockSettings, "BpID"), Dword(1));
  EXPECT_EQ(Number(BlockSettings, "Popup"), 1U);
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, ALostMarkerRewritesTheKeyFromTheDesignedStates) {
  DeleteValue(HKEY_CURRENT_USER, BlockSettings, "BpID");
  Tree expected = ReadTree(HKEY_CURRENT_USER, RootKey);
  for (const auto& [name, value] : FirstRunTree()) {
    if (name.starts_with("block settings\\")) expected[name] = value;
  }
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_EQ(Difference(expected, ReadTree(HKEY_CURRENT_USER, RootKey)), "");
}

TEST_F(BrokenStoreTest, ASoundStoredAsANumberStaysOneAndBecomesZero) {
  Write(HKEY_CURRENT_USER, BlockSettings, "NSounds", Dword(77));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "");
  EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockSettings, "NSounds"), Dword(0));
  EXPECT_EQ(program.TextOf("FrmFrameNotification.cmbsound"), "");
  ASSERT_TRUE(program.Choose("FrmFrameNotification.cmbsound", 5));
  EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockSettings, "NSounds"), Dword(0));
  ExpectUsable(program);
}

TEST_F(BrokenStoreTest, AnUnknownSoundSelectsNothing) {
  for (const std::string& name : {std::string("no such sound"), std::string(300, 'x')}) {
    Write(HKEY_CURRENT_USER, BlockSettings, "NSounds", Text(name));
    Running program;
    ASSERT_TRUE(program.WaitUntilIdle());
    ExpectLoadedUpTo(program, "");
    EXPECT_EQ(program.TextOf("FrmFrameNotification.cmbsound"), "");
    // The save at the end of start-up stores what is selected.
    EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockSettings, "NSounds"), Text(""));
  }
}

TEST_F(BrokenStoreTest, ASoundOfNoBytesEndsTheLoadAtTheSound) {
  Write(HKEY_CURRENT_USER, BlockSettings, "NSounds", Text(""));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ExpectLoadedUpTo(program, "ShowPH");
  ExpectUsable(program);
  ASSERT_TRUE(program.Choose("FrmFrameNotification.cmbsound", 0));
  EXPECT_EQ(Read(HKEY_CURRENT_USER, BlockSettings, "NSounds"), Text("alert"));
}

TEST_F(BrokenStoreTest, OnlyTheFirstCounterIsAskedWhetherTheLogExists) {
  for (const char* name : {"DHTML", "WebDialog", "BannerAds", "Flash"}) {
    Write(HKEY_CURRENT_USER, BlockLog, name, Dword(12));
  }
  DeleteValue(HKEY_CURRENT_USER, BlockLog, "Popup");
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  for (const char* name : {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"}) {
    EXPECT_EQ(Number(BlockLog, name), 0U) << name;
  }
  EXPECT_EQ(program.TextOf("FrmFrameMain.lblno"), "0");
}

TEST_F(BrokenStoreTest, AToolbarSwitchedOffSaysSoAtEveryStartAndLosesItsEntry) {
  Write(HKEY_CURRENT_USER, Settings, "ShowBrowser", Dword(0));
  for (int start = 0; start < 2; ++start) {
    Write(HKEY_LOCAL_MACHINE, ToolbarKey, ToolbarId, Text("Vantrel Toolbar"));
    Running program;
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->title, "Vantrel");
    EXPECT_EQ(box->text, "The changes may require a restart of Internet Explorer");
    ASSERT_TRUE(program.Answer(*box));
    ASSERT_TRUE(program.WaitUntilIdle());
    EXPECT_FALSE(Read(HKEY_LOCAL_MACHINE, ToolbarKey, ToolbarId));
    EXPECT_FALSE(program.IsShown("FrmFrameSettings.lblviewtoolbar"));
    EXPECT_EQ(program.CheckOf("FrmFrameSettings.chkGShowToolbar"), 0);
    ExpectUsable(program);
  }
}

TEST_F(BrokenStoreTest, ACounterAboveTheLargestEndsTheLoadButNotTheStart) {
  for (const std::uint32_t count : {40000U, 0x89ABCDEFU, 0xFFFFFFFFU}) {
    Write(HKEY_CURRENT_USER, BlockLog, "Flash", Dword(count));
    Running program;
    // The Graph panel's own first refresh says it; the box comes again with each tick.
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box) << count;
    EXPECT_EQ(box->title, "Vantrel");
    EXPECT_EQ(box->text, "Overflow");
    Write(HKEY_CURRENT_USER, BlockLog, "Flash", Dword(3));
    ASSERT_TRUE(program.Answer(*box));
    ASSERT_TRUE(program.WaitUntilIdle());
    EXPECT_EQ(program.TextOf("FrmFrameMain.lblno"), "3");
    ExpectUsable(program);
  }
}

TEST_F(BrokenStoreTest, WithACounterThatStaysTooLargeTheSettingsStayAsDesigned) {
  Write(HKEY_CURRENT_USER, BlockLog, "Flash", Dword(40000));
  Running program;
  // Boxes come while start-up goes on; each is answered until blocking has started.
  ASSERT_TRUE(WaitFor([&] {
    if (const auto box = program.CurrentBox()) program.Answer(*box);
    return program.TextOf("frmMain.lblVCP1") == "Welcome - Qorvel Software Vantrel " &&
           !program.IsEnabled("FrmFrameMain.cmdstart");
  }));
  ExpectLoadedUpTo(program, "Popup");
  EXPECT_EQ(program.TextOf("FrmFrameGraph.txtFlash"), "40000");
  EXPECT_EQ(program.TextOf("FrmFrameMain.lblno"), "0");
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

}  // namespace
}  // namespace vantrel::e2e
