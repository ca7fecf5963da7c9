// The program killed at any moment of what it writes: each value of the store is an old or a new
// one then, each file is in a state that the writing goes through, and the next start works.
#include <algorithm>
#include <cmath>
#include <map>

#include "Soak.h"
#include "support/FirstRun.h"
#include "support/Folders.h"
#include "support/UserFolders.h"

namespace vantrel::e2e {
namespace {

// Seconds since some moment.
double Now() {
  LARGE_INTEGER count{};
  LARGE_INTEGER frequency{};
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// A list of sites as adding them one by one writes it; a line each.
std::vector<std::string> LinesOf(const std::vector<std::string>& sites) {
  std::vector<std::string> lines;
  for (std::size_t site = 0; site < sites.size(); ++site) {
    lines.push_back("id =" + std::to_string(1 + (site + 1) / 2) +
                    ", Popup= 1 ,DHTML = 1, WebDialog =1 ,Banner = 1, Flash = 1 , " + sites[site] +
                    "\r\n");
  }
  return lines;
}
std::string Joined(const std::vector<std::string>& lines) {
  std::string content;
  for (const std::string& line : lines) content += line;
  return content;
}
bool IsStartOf(const std::vector<std::string>& lines, const std::string& content) {
  std::string start;
  if (content == start) return true;
  for (const std::string& line : lines) {
    if (content == (start += line)) return true;
  }
  return false;
}
std::vector<std::string> Sites(int count) {
  std::vector<std::string> sites;
  for (int site = 0; site < count; ++site) {
    sites.push_back("site" + std::to_string(site) + ".example");
  }
  return sites;
}

class KillTest : public SoakTest {
 protected:
  void SetUp() override {
    SoakTest::SetUp();
    PutFile(folders_.Outside + "\\kept", "kept");
    Start();
  }
  void TearDown() override {
    program_.reset();
    SoakTest::TearDown();
  }

  void Start() {
    program_.reset();
    const double start = Now();
    program_.emplace("", copy_.Executable());
    ASSERT_TRUE(program_->WaitUntilIdle(60000));
    startTime_ = Now() - start;
  }
  // Kills the program at some moment within its operation's time.
  void Kill() {
    const double end = Now() + time_ * Random(1'000'000) / 1e6;
    program_->WaitForExit(static_cast<DWORD>(std::max(0.0, std::floor((end - Now()) * 1000))));
    while (Now() < end) YieldProcessor();
    TerminateProcess(program_->Process(), 96);
    ASSERT_TRUE(program_->WaitForExit());
  }
  // How long the button takes when nobody interferes.
  void Measure(const std::string& button) {
    const double start = Now();
    EXPECT_TRUE(program_->Click(button));
    time_ = (Now() - start) * 1.2;
  }
  void Post(const std::string& button) const { program_->ClickAndLeave(button); }

  // The operations: what is there before, the beginning, and what may be there behind the kill.

  void PrepareFirstStart() {
    program_.reset();
    DeleteTree(HKEY_CURRENT_USER, RootKey);
    DeleteTree(HKEY_LOCAL_MACHINE, EngineKey);
    for (const auto& [name, value] : FirstRunTree()) new_.emplace(name, value);
    // Before Start is pressed, and before the sounds are loaded.
    new_.emplace("block settings\\gdisabled", Dword(1));
    for (const char* sound : {"", "Alert"}) new_.emplace("block settings\\nsounds", Text(sound));
  }
  void BeginFirstStart() { program_.emplace("", copy_.Executable()); }

  void PrepareSave() {
    Measure("FrmFrameBlockPreferences.chkAll");
    const int all = 1 - program_->CheckOf("FrmFrameBlockPreferences.chkAll");
    for (const char* name :
         {"popup", "dhtml", "webdialog", "banner", "flash", "adv", "dialogbox", "spy"}) {
      new_.emplace(std::string("block settings\\") + name, Dword(static_cast<std::uint32_t>(all)));
    }
  }
  // Eight saves.
  void BeginSave() { Post("FrmFrameBlockPreferences.chkAll"); }

  void PrepareSites(int count) const {
    WriteFileBytes(SiteFile(), Joined(LinesOf(Sites(count))));
    program_->SetText("frmMain.cmdDummy", "/addlinks");
    EXPECT_TRUE(program_->Click("frmMain.cmdDummy"));
    program_->SetText("FrmFrameAllowList.txtName", "new.example");
  }
  void PrepareAdd() {
    PrepareSites(AddedTo);
    Measure("FrmFrameAllowList.cmdAddWebsite");
    PrepareSites(AddedTo);
  }
  void BeginAdd() { Post("FrmFrameAllowList.cmdAddWebsite"); }
  void CheckAdd() {
    const std::string content = ReadFileBytes(SiteFile());
    auto sites = Sites(AddedTo);
    const std::string before = Joined(LinesOf(sites));
    sites.emplace_back("new.example");
    EXPECT_TRUE(content == before || content == Joined(LinesOf(sites))) << content;
  }
  // The list is emptied and then written: part of its records may be there.
  void PrepareEdit() {
    PrepareSites(Edited);
    Measure("FrmFrameAllowList.cmdEditAllowed");
    PrepareSites(Edited);
  }
  void BeginEdit() { Post("FrmFrameAllowList.cmdEditAllowed"); }
  void CheckEdit() {
    const std::string content = ReadFileBytes(SiteFile());
    auto sites = Sites(Edited);
    const std::string before = Joined(LinesOf(sites));
    sites[0] = "new.example";
    EXPECT_TRUE(content == before || IsStartOf(LinesOf(sites), content)) << content;
  }

  void PrepareClean() {
    for (const std::string& path : Planted()) PutFile(path, std::string(PlantedSize, 'x'));
    program_->SetText("FrmFrameHistory.lblcleaningstatus", "not yet");
    program_->MouseClick("FrmFrameHistory.lblRefresh");
    EXPECT_TRUE(program_->WaitForText("FrmFrameHistory.lblcleaningstatus", "Ready to clean"));
  }
  void BeginClean() { Post("FrmFrameHistory.CmdDeleteCache"); }
  // A file that is overwritten grows by a byte.
  void CheckClean() {
    for (const std::string& path : Planted()) {
      const std::size_t size = ReadFileBytes(path).size();
      EXPECT_TRUE(!Exists(path) || size == PlantedSize || size == PlantedSize + 1) << path;
    }
    EXPECT_EQ(NamesIn(folders_.Outside), std::vector<std::string>{"kept"});
    EXPECT_EQ(ReadFileBytes(folders_.Outside + "\\kept"), "kept");
  }

  void PrepareBackup() { dates_ = ReadFileBytes(DateFile()); }
  void BeginBackup() { Post("FrmFrameIESettings.cmdBackupIESettings"); }
  // The date file is made empty and then written. A program killed while it starts another may
  // leave that one half made.
  void CheckBackup() {
    EndAll("regedit.exe");
    const std::string dates = ReadFileBytes(DateFile());
    const bool whole = dates.starts_with("Last backup date was:") && dates.ends_with("\r\n") &&
                       dates.find("\r\nAt time: ") != std::string::npos;
    EXPECT_TRUE(dates == dates_ || dates.empty() || whole) << dates;
  }

  void CheckNothing() {}

  // Every value is one that was there before, or a new one, and none is lost.
  void CheckStore(const Tree& before) {
    const Tree after = ReadTree(HKEY_CURRENT_USER, RootKey);
    for (const auto& [name, value] : after) {
      const auto old = before.find(name);
      const auto [first, last] = new_.equal_range(name);
      EXPECT_TRUE((old != before.end() && old->second == value) ||
                  std::any_of(first, last, [&](const auto& row) { return row.second == value; }))
          << name << " is " << Show(value);
    }
    for (const auto& [name, value] : before) EXPECT_TRUE(after.contains(name)) << name;
  }

 private:
  static constexpr int AddedTo = 5;
  static constexpr int Edited = 2000;
  static constexpr std::size_t PlantedSize = 20000;

  std::string SiteFile() const { return copy_.Folder() + "\\Settings\\AllowList.txt"; }
  std::string DateFile() const {
    return copy_.Folder() + "\\Settings\\IESettings\\IE Backup date.txt";
  }
  std::vector<std::string> Planted() const {
    std::vector<std::string> paths;
    for (const std::string* folder :
         {&folders_.History, &folders_.Internet, &folders_.Recent, &folders_.Temporary}) {
      for (const char* name : {"\\a", "\\b", "\\c", "\\below\\d"}) paths.push_back(*folder + name);
    }
    return paths;
  }

  const UserFolders folders_;
  const ProgramCopy copy_{"VantrelKilled"};
  std::optional<Running> program_;
  double startTime_ = 0;  // in seconds
  double time_ = 0;       // that the operation takes
  std::multimap<std::string, StoredValue> new_;
  std::string dates_;

 public:
  struct Operation {
    const char* name;
    void (KillTest::*prepare)();
    void (KillTest::*begin)();
    void (KillTest::*check)();
    // How long it takes, as a part of the time of a start, which is longer on a busy machine too;
    // or 0 where the preparation measures it.
    double part;
  };
  static constexpr Operation Operations[] = {
      {"first start", &KillTest::PrepareFirstStart, &KillTest::BeginFirstStart,
       &KillTest::CheckNothing, 1.0},
      {"save", &KillTest::PrepareSave, &KillTest::BeginSave, &KillTest::CheckNothing, 0},
      {"add", &KillTest::PrepareAdd, &KillTest::BeginAdd, &KillTest::CheckAdd, 0},
      {"edit", &KillTest::PrepareEdit, &KillTest::BeginEdit, &KillTest::CheckEdit, 0},
      {"clean", &KillTest::PrepareClean, &KillTest::BeginClean, &KillTest::CheckClean, 0.3},
      {"backup", &KillTest::PrepareBackup, &KillTest::BeginBackup, &KillTest::CheckBackup, 0.3},
  };
  void KillIn(const Operation& operation) {
    new_.clear();
    time_ = startTime_ * operation.part;
    (this->*operation.prepare)();
    const Tree before = ReadTree(HKEY_CURRENT_USER, RootKey);
    (this->*operation.begin)();
    Kill();
    CheckStore(before);
    (this->*operation.check)();
    Start();
  }
};

TEST_F(KillTest, LeavesOldOrNewValuesAndANextStartThatWorks) {
  const int kills = Count({12, 200});
  for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
    const Operation& operation = Operations[static_cast<std::size_t>(kill) % std::size(Operations)];
    SCOPED_TRACE("kill " + std::to_string(kill) + ", " + operation.name);
    KillIn(operation);
  }
}

}  // namespace
}  // namespace vantrel::e2e
