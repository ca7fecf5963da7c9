#include "forms/win32/LabelWindow.h"

#include <algorithm>
#include <array>

#include "forms/Form.h"
#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

// How each look is drawn: the bars on a ground of two colours, the rest on what lies behind.
struct LookStyle {
  Look Drawn;
  Color Text;
  double Points;
  bool Bold;
  Color From;  // of a bar; the same as To without one
  Color To;
  int Indent;  // pixels at 96 dots per inch
};

constexpr std::array Styles{
    LookStyle{Look::Plain, palette::WindowText, 8, false, 0, 0, 0},
    LookStyle{Look::Link, palette::LinkText, 8, false, 0, 0, 0},
    LookStyle{Look::Note, palette::NoteText, 8, false, 0, 0, 0},
    LookStyle{Look::Figure, palette::Figure, 18, false, 0, 0, 0},
    LookStyle{Look::GroupHeading, palette::FrameText, 8, true, palette::HeadingFrom,
              palette::HeadingTo, 6},
    LookStyle{Look::Title, palette::TitleText, 10, true, palette::TitleFrom, palette::TitleTo, 10},
    LookStyle{Look::PanelHeading, palette::FrameText, 8, true, 0, 0, 0},
    LookStyle{Look::Card, palette::WindowText, 8, false, 0, 0, 0},
};

const LookStyle& StyleOf(const Label& label) {
  return *std::find_if(Styles.begin(), Styles.end(),
                       [&](const LookStyle& style) { return style.Drawn == label.Drawn(); });
}

// Whether a label was given no font of its own, so that its look has the say.
bool IsDialogFont(const Font& font) {
  return *font.Name == '\0' && font.Size == Font{}.Size && !font.Bold && !font.Underline;
}

bool IsBar(const LookStyle& style) { return style.From != style.To; }

}  // namespace

void FitToText(Label& label, HFONT font, const Scale& scale, int border) {
  if (!label.AutoSize()) return;
  const SIZE size = MeasureText(label.Caption(), font, 0, DT_EXPANDTABS);
  Place place = label.At();
  place.Width = scale.Twips(size.cx + 2 * border);
  place.Height = scale.Twips(size.cy + 2 * border);
  label.Move(place);
}

WindowShape LabelWindow::Shape() const {
  WindowShape shape;
  shape.Text = label_.Caption();
  return shape;
}

HFONT LabelWindow::TextFont() const {
  Font font = label_.TextFont();
  if (IsDialogFont(font)) {
    const LookStyle& style = StyleOf(label_);
    font.Size = style.Points;
    font.Bold = style.Bold;
  }
  // A scheme's text colour alone does not mark a link.
  font.Underline = font.Underline || IsLit() || (IsLink() && System().Palette.Contrast());
  return System().Typefaces.Of(font);
}

int LabelWindow::Pointer() const {
  const bool plain = label_.MousePointer() == PointerDefault;
  return plain && IsLink() && label_.Enabled() ? PointerCustom : label_.MousePointer();
}

COLORREF LabelWindow::TextColor() const {
  const LookStyle& style = StyleOf(label_);
  const Color ground = IsBar(style) ? style.From : GroundColor();
  if (!label_.Enabled()) return System().Palette.TextOn(palette::GrayText, ground);
  const bool plain = label_.ForeColor() == palette::WindowText;
  const Color text = plain && IsLink() && IsLit() ? palette::LinkHover
                     : plain                      ? style.Text
                                                  : label_.ForeColor();
  return System().Palette.TextOn(text, ground);
}

void LabelWindow::PaintGround(HDC context, const RECT& area) const {
  const LookStyle& style = StyleOf(label_);
  const Colors& colors = System().Palette;
  if (IsBar(style)) {
    FillGradient(context, area, colors.Of(style.From), colors.Of(style.To), Direction::Across);
  } else if (label_.BackColor() != palette::PanelBack) {
    FillArea(context, area, colors.Of(label_.BackColor()));
  } else {
    PaintBehind(context);
  }
}

void LabelWindow::PaintSurface(HDC context, const RECT& area) {
  PaintGround(context, area);
  const LookStyle& style = StyleOf(label_);
  RECT text = area;
  text.left += System().Pixels.Scaled(style.Indent);
  const UINT flags =
      IsBar(style) ? DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS : DT_WORDBREAK | DT_EXPANDTABS;
  DrawTextIn(context, label_.Caption(), text, TextFont(), TextColor(),
             flags | AlignFlags(label_.Alignment()));
  if (IsLink() && HasFocus()) {
    const RECT marked = TextArea(label_.Caption(), TextFont(), area, label_.Alignment());
    SetTextColor(context, System().Palette.TextOn(palette::WindowText, GroundColor()));
    DrawFocusRect(context, &marked);
  }
}

void LabelWindow::Changed(Aspect aspect) {
  ControlWindow::Changed(aspect);
  if (!Alive()) return;
  if (aspect == Aspect::Text || aspect == Aspect::Font || aspect == Aspect::Place) Fit();
}

void LabelWindow::Hover() {
  if (hovered_ || !IsLink()) return;
  hovered_ = true;
  TRACKMOUSEEVENT wanted{sizeof wanted, TME_LEAVE, Handle(), 0};
  TrackMouseEvent(&wanted);
  Invalidate();
}

LRESULT LabelWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_MOUSEMOVE:
      Hover();
      break;
    case WM_MOUSELEAVE:
      hovered_ = false;
      Invalidate();
      break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
      return FollowButton(message, first, second, IsLink(), [this] { label_.UserClick(); });
    case WM_KEYDOWN:
      if (IsLink() && (first == VK_SPACE || first == VK_RETURN)) {
        Raise([this] { label_.UserClick(); });
        return 0;
      }
      break;
    case BM_CLICK:
      Raise([this] { label_.UserClick(); });
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      Invalidate();
      break;
    case WM_GETDLGCODE:
      return IsLink() ? 0 : DLGC_STATIC;
    case WM_GETFONT:
      return reinterpret_cast<LRESULT>(TextFont());
    default:
      break;
  }
  return ControlWindow::OnMessage(message, first, second);
}

}  // namespace vantrel::forms::win32
