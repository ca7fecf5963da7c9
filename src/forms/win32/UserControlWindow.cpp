#include "forms/win32/UserControlWindow.h"

#include "forms/Controls.h"
#include "forms/win32/LabelWindow.h"
#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int LineWidth = 1;  // pixels

int BorderOf(const Control& face) {
  const auto* label = dynamic_cast<const Label*>(&face);
  return label != nullptr && label->BorderStyle() == SingleLine ? LineWidth : 0;
}

class FacePeer final : public ControlPeer {
 public:
  FacePeer(WindowSystem& system, Label& face) : system_(system), face_(face) {}

  void Changed(Aspect aspect) override {
    if (const auto window = Surface()) window->FaceChanged(face_, aspect);
  }
  void SetFocus() override {
    if (const auto window = Surface()) window->TakeFocus();
  }
  forms::Handle WindowHandle() const override { return face_.Container()->WindowHandle(); }

 private:
  std::shared_ptr<UserControlWindow> Surface() const {
    return std::dynamic_pointer_cast<UserControlWindow>(
        system_.Find(reinterpret_cast<HWND>(WindowHandle())));
  }

  WindowSystem& system_;
  Label& face_;
};

}  // namespace

bool IsFace(const Label& label) {
  return dynamic_cast<const UserControl*>(label.Container()) != nullptr;
}

std::unique_ptr<ControlPeer> MakeFacePeer(WindowSystem& system, Label& face) {
  auto peer = std::make_unique<FacePeer>(system, face);
  FitToText(face, system.Typefaces.Of(face.TextFont()), system.Pixels, BorderOf(face));
  // Its surface may want to follow.
  dynamic_cast<UserControl&>(*face.Container()).Resized();
  return peer;
}

Control& UserControlWindow::Face() const {
  Control* face = surface_.Face();
  return face != nullptr ? *face : surface_;
}

WindowShape UserControlWindow::Shape() const {
  WindowShape shape;
  shape.Text = Face().WindowText();
  return shape;
}

int UserControlWindow::Pointer() const { return Face().MousePointer(); }

const std::string& UserControlWindow::TipText() const {
  const std::string& text = Face().ToolTipText();
  return text.empty() && !surface_.FaceHasTip() ? surface_.ToolTipText() : text;
}

void UserControlWindow::Changed(Aspect aspect) {
  // The text that shows is the face's.
  if (aspect != Aspect::Text) ControlWindow::Changed(aspect);
}

void UserControlWindow::FaceChanged(Label& face, Aspect aspect) {
  if (!Alive()) return;
  switch (aspect) {
    case Aspect::Text:
      Tell(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(face.Caption().c_str()));
      break;
    case Aspect::ToolTip:
    case Aspect::Pointer:
      // Nothing of the text.
      return ControlWindow::Changed(aspect);
    default:
      break;
  }
  Invalidate();
  if (aspect != Aspect::Color) FitToText(face, TextFont(), System().Pixels, BorderOf(face));
}

void UserControlWindow::Rescale() {
  if (auto* face = dynamic_cast<Label*>(&Face())) FaceChanged(*face, Aspect::Font);
  Raise([this] { surface_.Resized(); });
}

void UserControlWindow::PaintSurface(HDC context, const RECT& area) {
  const Control& face = Face();
  const Colors& colors = System().Palette;
  const Color ground = face.BackColor();
  if (ground != palette::PanelBack) {
    FillArea(context, area, colors.Of(ground));
  } else {
    PaintBehind(context);
  }
  const bool enabled = face.Enabled() && surface_.Enabled();
  const COLORREF color = colors.TextOn(enabled ? face.ForeColor() : palette::GrayText, ground);
  const RECT inside = PaintBorder(context, area);
  DrawTextIn(context, face.WindowText(), inside, TextFont(), color,
             DT_SINGLELINE | DT_EXPANDTABS | AlignFlags(face.Alignment()));
  if (GetFocus() == Handle()) {
    const RECT marked = TextArea(face.WindowText(), TextFont(), inside, face.Alignment());
    DrawFocusRect(context, &marked);
  }
}

// The area that the border leaves.
RECT UserControlWindow::PaintBorder(HDC context, const RECT& area) const {
  const int border = BorderOf(Face());
  if (border == 0) return area;
  const Brush line(
      CreateSolidBrush(System().Palette.TextOn(palette::WindowText, Face().BackColor())));
  FrameRect(context, &area, line.Get());
  RECT inside = area;
  InflateRect(&inside, -border, -border);
  return inside;
}

LRESULT UserControlWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
      return FollowButton(message, first, second, true, [this] { Face().UserClick(); });
    case WM_MOUSEMOVE:
      // While a button is held the mouse arrives here wherever it is. Outside it is not over the
      // face: taken for that, it would begin a hover that the next look at the mouse ends again.
      // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the hover that ControlWindow begins
      if (!HasMouse(second)) return Window::OnMessage(message, first, second);
      break;
    case WM_KEYDOWN:
      if (first == VK_SPACE || first == VK_RETURN) {
        Raise([this] { surface_.KeyPressed(); });
        return 0;
      }
      break;
    case BM_CLICK:
      Raise([this] { Face().UserClick(); });
      return 0;
    case WM_SIZE:
      Raise([this] { surface_.Resized(); });
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      Invalidate();
      break;
    case WM_GETFONT:
      return reinterpret_cast<LRESULT>(TextFont());
    default:
      break;
  }
  return ControlWindow::OnMessage(message, first, second);
}

}  // namespace vantrel::forms::win32
