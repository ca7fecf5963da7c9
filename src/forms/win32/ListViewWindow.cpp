#include "forms/win32/ListViewWindow.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "forms/win32/CheckMarks.h"
#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

constexpr UINT ShowGathered = WM_APP + 1;
constexpr unsigned StateShift = 12;
constexpr int HeaderMargin = 6;  // pixels at 96 dots per inch

int ColumnFormat(Align alignment) {
  switch (alignment) {
    case Align::Right:
      return LVCFMT_RIGHT;
    case Align::Center:
      return LVCFMT_CENTER;
    default:
      return LVCFMT_LEFT;
  }
}

// The text in the system code page.
std::string Narrow(const wchar_t* text) {
  if (text == nullptr) return "";
  const int size = WideCharToMultiByte(CP_ACP, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(std::max(size, 1)), '\0');
  WideCharToMultiByte(CP_ACP, 0, text, -1, narrow.data(), size, nullptr, nullptr);
  narrow.pop_back();
  return narrow;
}

// Messages that are answered from rows: what was gathered is shown first.
bool LooksAtRows(UINT message) {
  return message == WM_PAINT || (message >= LVM_FIRST && message < LVM_FIRST + 0x100);
}

}  // namespace

WindowShape ListViewWindow::Shape() const {
  WindowShape shape;
  shape.ClassName = WC_LISTVIEWA;
  shape.Style = WS_BORDER | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                LVS_SHAREIMAGELISTS | LVS_NOSORTHEADER;
  return shape;
}

void ListViewWindow::Prepare() {
  Tell(LVM_SETEXTENDEDLISTVIEWSTYLE, 0,
       LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_INFOTIP | LVS_EX_LABELTIP);
  ShowIcons();
  if (list_.CheckBoxes()) Tell(LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
  AddColumns();
  dpi_ = System().Pixels.Dpi();
  FillWidth();
  ShowColors();
  ShowRows();
}

void ListViewWindow::ShowIcons() {
  if (list_.SmallIcons() == nullptr) return;
  const HIMAGELIST icons = System().Images.ImagesFor(list_.SmallIcons()->QualifiedName());
  Tell(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(icons));
}

// New fonts alone leave the columns as the user has them, another scale as designed.
void ListViewWindow::Rescale() {
  ShowIcons();
  ShowColors();
  if (std::exchange(dpi_, System().Pixels.Dpi()) == System().Pixels.Dpi()) return;
  int index = 0;
  for (const Column& model : list_.Columns()) {
    Tell(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(index++),
         MAKELPARAM(System().Pixels.Pixels(model.Width), 0));
  }
  FillWidth();
}

void ListViewWindow::AddColumns() {
  int index = 0;
  for (const Column& model : list_.Columns()) {
    LVCOLUMNA column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
    column.fmt = ColumnFormat(model.Alignment);
    column.cx = System().Pixels.Pixels(model.Width);
    column.pszText = const_cast<char*>(model.Header.c_str());
    column.iSubItem = index;
    Tell(LVM_INSERTCOLUMNA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
    ++index;
  }
}

// The first column takes what the others leave of the list's width.
void ListViewWindow::FillWidth() {
  const auto count = static_cast<int>(list_.Columns().size());
  int rest = WidthOf(ClientArea(Handle()));
  for (int index = 1; index < count; ++index) {
    rest -= static_cast<int>(Tell(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(index)));
  }
  if (count > 0 && rest > 0) Tell(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(rest, 0));
}

void ListViewWindow::ShowColors() {
  const Colors& colors = System().Palette;
  const Color ground = InputGround();
  Tell(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(colors.Of(ground)));
  Tell(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(colors.Of(ground)));
  Tell(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(colors.TextOn(list_.ForeColor(), ground)));
  if (list_.CheckBoxes()) {
    ImagesHandle marks = MakeCheckMarks(System());
    Tell(LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(marks.Get()));
    checkMarks_ = std::move(marks);
  }
  Invalidate();
}

// A theme paints the header's ground in its own colour, on which the text of a scheme in other
// colours cannot be read: there the header is drawn here, in the scheme's.
LRESULT ListViewWindow::DrawHeader(const NMCUSTOMDRAW& draw) const {
  if (draw.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  const auto column = static_cast<std::size_t>(draw.dwItemSpec);
  if (draw.dwDrawStage != CDDS_ITEMPREPAINT || column >= list_.Columns().size()) {
    return CDRF_DODEFAULT;
  }
  const Colors& colors = System().Palette;
  const RECT& area = draw.rc;
  FillArea(draw.hdc, area, colors.Of(palette::ButtonFace));
  const COLORREF ink = colors.TextOn(palette::ButtonText, palette::ButtonFace);
  DrawLine(draw.hdc, {area.left, area.bottom - 1}, {area.right, area.bottom - 1}, ink);
  DrawLine(draw.hdc, {area.right - 1, area.top}, {area.right - 1, area.bottom}, ink);
  const Column& model = list_.Columns()[column];
  const int margin = System().Pixels.Scaled(HeaderMargin);
  const RECT text{area.left + margin, area.top, area.right - margin, area.bottom};
  DrawTextIn(
      draw.hdc, model.Header, text, TextFont(), ink,
      DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | AlignFlags(model.Alignment));
  return CDRF_SKIPDEFAULT;
}

void ListViewWindow::Changed(Aspect aspect) {
  switch (aspect) {
    case Aspect::Items:
    case Aspect::Selection:
      return Gather();
    case Aspect::Color:
      return ShowColors();
    default:
      return ControlWindow::Changed(aspect);
  }
}

// To be shown when the event is over, or when somebody looks.
void ListViewWindow::Gather() {
  if (gathering_) return;
  gathering_ = true;
  PostMessageA(Handle(), ShowGathered, 0, 0);
}

void ListViewWindow::ShowRows() {
  gathering_ = false;
  const int count = list_.Count();
  if (static_cast<int>(Tell(LVM_GETITEMCOUNT)) != count) {
    Tell(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
  }
  const auto top = static_cast<int>(Tell(LVM_GETTOPINDEX));
  const auto page = static_cast<int>(Tell(LVM_GETCOUNTPERPAGE));
  const int behind = std::min(count, top + page + 1);
  if (const std::size_t shown = Fingerprint(top, behind); std::exchange(shown_, shown) != shown) {
    Tell(LVM_REDRAWITEMS, static_cast<WPARAM>(top), behind - 1);
  }
  ShowSelection();
}

void ListViewWindow::ShowSelection() {
  const int row = list_.SelectedIndex() - 1;
  if (row < 0 ||
      static_cast<int>(Tell(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)) == row) {
    return;
  }
  LVITEMA item{};
  item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  item.state = item.stateMask;
  Tell(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  Tell(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

std::string ListViewWindow::TextAt(int row, int column) const {
  if (row < 0 || row >= list_.Count()) return "";
  const ListItem& item = list_.Item(row + 1);
  if (column == 0) return item.Text();
  return column <= item.SubItemCount() ? item.Sub(column).Text : "";
}

int ListViewWindow::ImageAt(int row) const {
  if (row < 0 || row >= list_.Count() || list_.SmallIcons() == nullptr) return I_IMAGENONE;
  const int number = list_.SmallIcons()->NumberOf(list_.Item(row + 1).Icon());
  return number > 0 ? number - 1 : I_IMAGENONE;
}

// Of what the rows from `top` to before `behind` look like: rows that are built anew with the same
// texts are not painted again.
std::size_t ListViewWindow::Fingerprint(int top, int behind) const {
  std::string look;
  for (int row = top; row < behind; ++row) {
    const ListItem& item = list_.Item(row + 1);
    look += item.Checked() ? 'x' : '-';
    look += list_.DropHighlight() == row + 1 ? 'x' : '-';
    look += item.Icon();
    for (int column = 0; column <= item.SubItemCount(); ++column) {
      look += '\0';
      look += TextAt(row, column);
    }
    look += '\n';
  }
  return std::hash<std::string>{}(look);
}

void ListViewWindow::FillItem(LVITEMA& wanted) {
  const int row = wanted.iItem;
  if ((wanted.mask & LVIF_TEXT) != 0 && wanted.pszText != nullptr && wanted.cchTextMax > 0) {
    lstrcpynA(wanted.pszText, TextAt(row, wanted.iSubItem).c_str(), wanted.cchTextMax);
  }
  if ((wanted.mask & LVIF_IMAGE) != 0) wanted.iImage = ImageAt(row);
  if ((wanted.mask & LVIF_STATE) != 0 && list_.CheckBoxes() && row >= 0 && row < list_.Count()) {
    wanted.state |= INDEXTOSTATEIMAGEMASK(list_.Item(row + 1).Checked() ? 2U : 1U);
  }
}

LRESULT ListViewWindow::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOA:
      FillItem(reinterpret_cast<NMLVDISPINFOA&>(header).item);
      return 0;
    case LVN_ITEMCHANGED:
      SelectionMoved(reinterpret_cast<const NMLISTVIEW&>(header));
      return 0;
    case NM_CLICK:
      Clicked(reinterpret_cast<const NMITEMACTIVATE&>(header));
      return 0;
    case NM_CUSTOMDRAW:
      return Draw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    case LVN_ODFINDITEMA: {
      const auto& search = reinterpret_cast<const NMLVFINDITEMA&>(header);
      return RowOf(search.lvfi.psz, search.iStart);
    }
    case LVN_ODFINDITEMW: {
      const auto& search = reinterpret_cast<const NMLVFINDITEMW&>(header);
      return RowOf(Narrow(search.lvfi.psz).c_str(), search.iStart);
    }
    case LVN_GETINFOTIPA: {
      auto& tip = reinterpret_cast<NMLVGETINFOTIPA&>(header);
      if (tip.iItem < 0 || tip.iItem >= list_.Count() || tip.cchTextMax <= 0) return 0;
      const std::string& text = list_.Item(tip.iItem + 1).ToolTipText();
      if (!text.empty()) lstrcpynA(tip.pszText, text.c_str(), tip.cchTextMax);
      return 0;
    }
    default:
      return 0;
  }
}

// Where the letters that the user types lead; the list selects that row itself.
int ListViewWindow::RowOf(const char* letters, int start) const {
  return letters == nullptr ? -1 : list_.FindPrefix(letters, start + 1) - 1;
}

void ListViewWindow::SelectionMoved(const NMLISTVIEW& change) {
  const bool selected =
      (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
  if (IsTelling() || !selected || change.iItem < 0) return;
  const int row = change.iItem + 1;
  if (row == list_.SelectedIndex()) return;
  told_ = row;
  Raise([&] { list_.UserSelects(row); });
}

void ListViewWindow::Clicked(const NMITEMACTIVATE& click) {
  LVHITTESTINFO hit{};
  hit.pt = click.ptAction;
  const int row = static_cast<int>(Tell(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
  const int before = std::exchange(told_, 0);
  if (row < 0) {
    // A click beside the rows leaves a row selected.
    return ShowSelection();
  }
  if ((hit.flags & LVHT_ONITEMSTATEICON) != 0 && (hit.flags & LVHT_ONITEMLABEL) == 0) Toggle(row);
  if (Alive() && before != row + 1) Raise([&] { list_.UserSelects(row + 1); });
}

void ListViewWindow::Toggle(int row) {
  if (!list_.CheckBoxes() || row < 0 || row >= list_.Count()) return;
  const bool checked = !list_.Item(row + 1).Checked();
  Raise([&] { list_.UserChecks(row + 1, checked); });
}

LRESULT ListViewWindow::Draw(NMLVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || list_.DropHighlight() == 0 ||
      static_cast<int>(draw.nmcd.dwItemSpec) != list_.DropHighlight() - 1) {
    return CDRF_DODEFAULT;
  }
  draw.clrText = System().Palette.Of(palette::HighlightText);
  draw.clrTextBk = System().Palette.Of(palette::Highlight);
  // A selected row is drawn in the list's own colours, without the focus in pale ones.
  draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
  return CDRF_NEWFONT;
}

// A check mark set from outside; a selection goes the way of the user's.
bool ListViewWindow::AssignState(int row, const LVITEMA& item) {
  const unsigned image = (item.state & LVIS_STATEIMAGEMASK) >> StateShift;
  if ((item.stateMask & LVIS_STATEIMAGEMASK) == 0 || image == 0) return false;
  Raise([&] { list_.UserChecks(row + 1, image == 2); });
  return true;
}

// Space sets the check mark; the list would look for a row of that letter.
bool ListViewWindow::TakesKey(UINT message, WPARAM key) {
  if (key != VK_SPACE || !list_.CheckBoxes()) return false;
  if (message == WM_KEYDOWN) Toggle(list_.SelectedIndex() - 1);
  return true;
}

bool ListViewWindow::IsHeadersDraw(const NMHDR* header) {
  return header != nullptr && header->code == NM_CUSTOMDRAW && System().Palette.Contrast() &&
         header->hwndFrom == reinterpret_cast<HWND>(Tell(LVM_GETHEADER));
}

// What follows the list's own reaction to a message.
void ListViewWindow::Follow(UINT message) {
  switch (message) {
    case WM_SIZE:
      return FillWidth();
    case WM_SYSCOLORCHANGE:
      return ShowColors();
    case WM_NCPAINT:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      return DrawOwnBorder();
    default:
      return;
  }
}

LRESULT ListViewWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  if (gathering_ && !IsTelling() && LooksAtRows(message)) ShowRows();
  switch (message) {
    case ShowGathered:
      if (gathering_) ShowRows();
      return 0;
    case LVM_SETITEMSTATE:
      if (!IsTelling() && second != 0 &&
          AssignState(static_cast<int>(first), *reinterpret_cast<const LVITEMA*>(second))) {
        return TRUE;
      }
      break;
    case LVM_DELETEALLITEMS:
    case LVM_DELETEITEM:
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_SETITEMCOUNT:
      // The rows are the model's: another program neither takes nor adds any.
      if (!IsTelling()) return message == LVM_INSERTITEMA || message == LVM_INSERTITEMW ? -1 : 0;
      break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      return Press(first, second);
    case WM_KEYDOWN:
    case WM_CHAR:
      if (TakesKey(message, first)) return 0;
      break;
    case WM_NOTIFY:
      if (IsHeadersDraw(reinterpret_cast<const NMHDR*>(second))) {
        return DrawHeader(*reinterpret_cast<const NMCUSTOMDRAW*>(second));
      }
      break;
    default:
      break;
  }
  const LRESULT answer = ControlWindow::OnMessage(message, first, second);
  if (Alive()) Follow(message);
  return answer;
}

}  // namespace vantrel::forms::win32
