#include "startup/AllowList.h"

#include <windows.h>
// Behind what it needs.
#include <commctrl.h>

#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>

#include "Report.h"
#include "startup/Probe.h"

namespace vantrel::bench {
namespace {

constexpr int Loads = 5;
constexpr int Edits = 3;

// The file is another one while this lives.
class ReplacedFile {
 public:
  ReplacedFile(std::string path, const std::string& content) : path_(std::move(path)) {
    if (std::ifstream file(path_, std::ios::binary); file) {
      std::ostringstream kept;
      kept << file.rdbuf();
      kept_ = kept.str();
    }
    std::ofstream(path_, std::ios::binary) << content;
  }
  ~ReplacedFile() {
    if (kept_) {
      std::ofstream(path_, std::ios::binary) << *kept_;
    } else {
      DeleteFileA(path_.c_str());
    }
  }
  ReplacedFile(const ReplacedFile&) = delete;
  ReplacedFile& operator=(const ReplacedFile&) = delete;

 private:
  const std::string path_;
  std::optional<std::string> kept_;
};

std::string ListFileOf(const std::string& program) {
  return program.substr(0, program.find_last_of("\\/")) + "\\Settings\\AllowList.txt";
}

std::string ListOf(int rows) {
  std::string content;
  for (int row = 0; row < rows; ++row) {
    content += "id =" + std::to_string(row / 2 + 1) +
               ", Popup= 1 ,DHTML = 0, WebDialog =1 ,Banner = 0, Flash = 1 , www.site" +
               std::to_string(row) + ".example\r\n";
  }
  return content;
}

// From the request, which returns when it has been handled, to the rows on the screen.
template <class Request>
double MeasureRows(HWND list, int rows, Request request) {
  const double before = Now();
  request();
  const auto shown = [&] {
    return SendMessageA(list, LVM_GETITEMCOUNT, 0, 0) == rows && IsWindowVisible(list) != FALSE &&
           GetUpdateRect(list, nullptr, FALSE) == FALSE;
  };
  if (!WaitUntil(shown)) std::printf("the list does not show %d rows\n", rows);
  return Now() - before;
}

double MeasureBareRead(const std::string& path) {
  const double before = Now();
  std::ifstream file(path, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return Now() - before;
}

struct ListTimes {
  Times loads;
  Times bareReads;
  Times edits;
};

ListTimes MeasureList(const std::string& executable, int rows) {
  const ReplacedFile file(ListFileOf(executable), ListOf(rows));
  Probe program(executable, "", ProgramTitle);
  program.WaitUntilIdle();
  HWND list = program.Find("FrmFrameAllowList.lstGroup");
  HWND link = program.Find("frmMain.LnkAllowedList");
  HWND name = program.Find("FrmFrameAllowList.txtName");
  HWND edit = program.Find("FrmFrameAllowList.cmdEditAllowed");
  ListTimes times;
  for (int load = 0; load < Loads; ++load) {
    times.bareReads.push_back(MeasureBareRead(ListFileOf(executable)));
    times.loads.push_back(MeasureRows(list, rows, [&] {
      SendMessageA(link, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
      SendMessageA(link, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }));
  }
  for (int turn = 0; turn < Edits; ++turn) {
    SendMessageA(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("edited.example"));
    times.edits.push_back(MeasureRows(list, rows, [&] { SendMessageA(edit, BM_CLICK, 0, 0); }));
  }
  program.Close();
  return times;
}

}  // namespace

void MeasureAllowLists(const std::string& program) {
  const ListTimes many = MeasureList(program, 10000);
  const Anchor manyRead{"lines of the file read", Median(many.bareReads)};
  PrintRow("allow list of 10,000 sites read and shown", Median(many.loads), "ms", "300", manyRead);
  PrintRow("one of 10,000 sites edited and all shown", Median(many.edits), "ms", "1000", manyRead);
  const ListTimes most = MeasureList(program, 100000);
  PrintRow("allow list of 100,000 sites read and shown", Median(most.loads), "ms", "2000",
           {"lines of the file read", Median(most.bareReads)});
}

}  // namespace vantrel::bench
