#include "forms/win32/StatusBarWindow.h"

#include <commctrl.h>

#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

constexpr UINT_PTR ClockTimer = 1;
constexpr UINT ClockPeriod = 1000;  // milliseconds
constexpr int TextIndent = 8;       // pixels at 96 dots per inch

std::string DateText() {
  char text[80] = "";
  GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text, sizeof text);
  return text;
}

std::string TimeText() {
  char text[80] = "";
  GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, text, sizeof text);
  return text;
}

std::string TextOf(const StatusPanel& panel) {
  switch (panel.Kind) {
    case StatusPanelKind::Date:
      return DateText();
    case StatusPanelKind::Time:
      return TimeText();
    default:
      return panel.Text;
  }
}

}  // namespace

WindowShape StatusBarWindow::Shape() const {
  WindowShape shape;
  shape.ClassName = STATUSCLASSNAMEA;
  shape.Style = CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
  return shape;
}

void StatusBarWindow::Prepare() {
  Divide();
  ShowTexts();
  SetTimer(Handle(), ClockTimer, ClockPeriod, nullptr);
}

// Panels of a given width from the right; the one without takes what is left.
void StatusBarWindow::Divide() {
  const auto& panels = bar_.Panels();
  std::vector<int> edges(panels.size());
  int edge = ClientArea(Handle()).right;
  for (std::size_t index = panels.size(); index-- > 0;) {
    edges[index] = edge;
    edge -= System().Pixels.Pixels(panels[index].Width);
  }
  Tell(SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
}

// Only what has changed, so that a tick of the clock paints nothing.
void StatusBarWindow::ShowTexts() {
  texts_.resize(bar_.Panels().size());
  for (std::size_t index = 0; index < texts_.size(); ++index) {
    const std::string text = TextOf(bar_.Panels()[index]);
    if (texts_[index] == text) continue;
    texts_[index] = text;
    Tell(SB_SETTEXTA, index | SBT_NOBORDERS, reinterpret_cast<LPARAM>(text.c_str()));
    Invalidate();
  }
}

void StatusBarWindow::Changed(Aspect aspect) {
  if (aspect == Aspect::Items || aspect == Aspect::Text) {
    ShowTexts();
  } else {
    ControlWindow::Changed(aspect);
  }
}

void StatusBarWindow::PaintSurface(HDC context, const RECT& area) {
  const Colors& colors = System().Palette;
  FillGradient(context, area, colors.Of(palette::ToolbarFrom), colors.Of(palette::ToolbarTo),
               Direction::Down);
  DrawLine(context, {area.left, area.top}, {area.right, area.top}, colors.Of(palette::FrameLine));
  const int indent = System().Pixels.Scaled(TextIndent);
  for (std::size_t index = 0; index < texts_.size(); ++index) {
    RECT part{};
    SendMessageA(Handle(), SB_GETRECT, index, reinterpret_cast<LPARAM>(&part));
    if (index != 0) {
      DrawLine(context, {part.left, area.top + 3}, {part.left, area.bottom - 2},
               colors.Of(palette::FrameLine));
    }
    part.left += indent;
    part.top = area.top + 1;
    part.bottom = area.bottom;
    DrawTextIn(context, texts_[index], part, TextFont(),
               colors.TextOn(palette::WindowText, palette::ToolbarTo),
               DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  }
}

LRESULT StatusBarWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT: {
      const PaintBuffer buffer(Handle(), System().Buffer);
      PaintSurface(buffer.Context(), ClientArea(Handle()));
      return 0;
    }
    case WM_SIZE: {
      const LRESULT answer = ControlWindow::OnMessage(message, first, second);
      if (Alive()) Divide();
      return answer;
    }
    case WM_TIMER:
      if (first != ClockTimer) break;
      ShowTexts();
      return 0;
    default:
      break;
  }
  return ControlWindow::OnMessage(message, first, second);
}

}  // namespace vantrel::forms::win32
