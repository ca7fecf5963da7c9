#include "forms/win32/ToolTips.h"

#include <commctrl.h>

#include <vector>

#include "forms/Placement.h"
#include "forms/win32/FormLayout.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int WidestTip = 400;  // pixels at 96 dots per inch; longer texts take several lines

struct Neighbours {
  HWND Control;
  std::vector<Place> Places;
};

// Those that a user may want to reach.
BOOL CALLBACK NoteNeighbour(HWND window, LPARAM parameter) {
  auto& neighbours = *reinterpret_cast<Neighbours*>(parameter);
  const bool isStop = (GetWindowLongA(window, GWL_STYLE) & WS_TABSTOP) != 0;
  if (window != neighbours.Control && isStop && IsWindowVisible(window)) {
    neighbours.Places.push_back(PlaceOf(window));
  }
  return TRUE;
}

}  // namespace

ToolTips::~ToolTips() {
  if (tips_ != nullptr && IsWindow(tips_)) DestroyWindow(tips_);
}

void ToolTips::MakeWindow() {
  if (tips_ != nullptr && IsWindow(tips_)) return;
  // A foreign program may have closed it: the new one knows no control yet.
  controls_.clear();
  tips_ = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0,
                          0, owner_, nullptr, GetModuleHandleA(nullptr), nullptr);
}

void ToolTips::Set(HWND control, const std::string& text, const Scale& scale) {
  if (text.empty() && controls_.count(control) == 0) return;
  MakeWindow();
  SendMessageA(tips_, TTM_SETMAXTIPWIDTH, 0, scale.Scaled(WidestTip));
  const bool known = controls_.count(control) != 0;
  TTTOOLINFOA tool{};
  // The first form, which every version of the common controls takes.
  tool.cbSize = TTTOOLINFOA_V1_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = owner_;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = const_cast<char*>(text.c_str());
  const UINT message = text.empty() ? TTM_DELTOOLA : known ? TTM_UPDATETIPTEXTA : TTM_ADDTOOLA;
  SendMessageA(tips_, message, 0, reinterpret_cast<LPARAM>(&tool));
  if (text.empty()) {
    controls_.erase(control);
  } else {
    controls_.insert(control);
  }
}

bool ToolTips::Shows(const NMHDR& notice) const {
  if (notice.code != static_cast<UINT>(TTN_SHOW) || notice.hwndFrom != tips_) return false;
  Neighbours around{reinterpret_cast<HWND>(notice.idFrom), {}};
  EnumChildWindows(owner_, NoteNeighbour, reinterpret_cast<LPARAM>(&around));
  const Place own = PlaceOf(tips_);
  const Place place = TipPlace({own.Width, own.Height}, PlaceOf(around.Control), around.Places,
                               WorkAreaAround(around.Control));
  SetWindowPos(tips_, nullptr, place.Left, place.Top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  return true;
}

}  // namespace vantrel::forms::win32
