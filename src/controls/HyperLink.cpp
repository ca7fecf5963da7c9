#include "controls/HyperLink.h"

#include <vector>

#include "forms/Form.h"
#include "text/ErrorTrap.h"
#include "text/Numbers.h"
#include "text/ScopedFlag.h"
#include "text/Strings.h"

namespace vantrel::controls {
namespace {

constexpr const char* DefaultCaption = "Hyperlink AX II";
// Meant to differ from the caption that a missing entry reads as.
constexpr const char* UnsavedCaption = "Hyperlink AX";

std::string BooleanText(bool value) { return value ? "-1" : "0"; }
bool Boolean(const std::string& text) { return text::CInt(text) != 0; }

// The reverse of ColorText; plain decimal numbers are read as well.
forms::Color ColorOf(const std::string& text) {
  return static_cast<forms::Color>(text::CLng(text));
}

// A font is written as its size in hundredths of a point, its two flags and its name, which is the
// last since it may hold what separates the others.
std::string FontText(const forms::Font& font) {
  return std::to_string(text::RoundToLong(font.Size * 100)) + ";" + BooleanText(font.Bold) + ";" +
         BooleanText(font.Underline) + ";" + font.Name;
}

[[noreturn]] void RaiseInvalidValue() {
  throw text::RuntimeError(text::ErrorNumber::InvalidPropertyValue);
}

}  // namespace

// One row a property but the font, whose text does not give all of it: its text, the defaults of
// reading and of writing, and how a text becomes its value.
struct HyperLink::Property {
  const char* Name;
  std::string (*Text)(const HyperLink&);
  std::string (*ReadDefault)(const HyperLink&);
  std::string (*WriteDefault)(const HyperLink&);
  void (*Assign)(HyperLink&, const std::string&);
};

namespace {

template <bool value>
std::string DefaultBoolean(const HyperLink&) {
  return BooleanText(value);
}

template <int value>
std::string DefaultNumber(const HyperLink&) {
  return std::to_string(value);
}

std::string DefaultAddress(const HyperLink&) { return HyperLink::SampleAddress; }
std::string DefaultHoverColor(const HyperLink&) {
  return HyperLink::ColorText(forms::palette::DefaultHover);
}

}  // namespace

const HyperLink::Property HyperLink::Properties[] = {
    {"enabled", [](const HyperLink& link) { return BooleanText(link.Enabled()); },
     DefaultBoolean<true>, DefaultBoolean<true>,
     [](HyperLink& link, const std::string& text) { link.ShowEnabled(Boolean(text)); }},
    {"caption", [](const HyperLink& link) { return link.Caption(); },
     [](const HyperLink&) { return std::string(DefaultCaption); },
     [](const HyperLink&) { return std::string(UnsavedCaption); },
     [](HyperLink& link, const std::string& text) { link.lblHyperlink.SetCaption(text); }},
    {"alignment", [](const HyperLink& link) { return std::to_string(link.Alignment()); },
     DefaultNumber<0>, DefaultNumber<0>,
     [](HyperLink& link, const std::string& text) { link.ShowAlignment(text::CInt(text)); }},
    {"autosize", [](const HyperLink& link) { return BooleanText(link.AutoSize()); },
     DefaultBoolean<true>, DefaultBoolean<true>,
     [](HyperLink& link, const std::string& text) {
       link.lblHyperlink.SetAutoSize(Boolean(text));
     }},
    {"hyperlink", [](const HyperLink& link) { return link.address_; }, DefaultAddress,
     DefaultAddress, [](HyperLink& link, const std::string& text) { link.address_ = text; }},
    {"hovercolor", [](const HyperLink& link) { return ColorText(link.hoverColor_); },
     DefaultHoverColor, DefaultHoverColor,
     [](HyperLink& link, const std::string& text) { link.hoverColor_ = ColorOf(text); }},
    {"appearance", [](const HyperLink& link) { return std::to_string(link.Appearance()); },
     DefaultNumber<1>, DefaultNumber<1>,
     [](HyperLink& link, const std::string& text) {
       link.lblHyperlink.SetAppearance(text::CInt(text));
     }},
    {"borderstyle", [](const HyperLink& link) { return std::to_string(link.BorderStyle()); },
     DefaultNumber<0>, DefaultNumber<0>,
     [](HyperLink& link, const std::string& text) {
       link.lblHyperlink.SetBorderStyle(text::CInt(text));
     }},
    {"forecolor", [](const HyperLink& link) { return ColorText(link.ForeColor()); },
     [](const HyperLink& link) { return ColorText(link.ContainerForeColor()); },
     [](const HyperLink& link) { return ColorText(link.ContainerForeColor()); },
     [](HyperLink& link, const std::string& text) {
       link.lblHyperlink.SetForeColor(ColorOf(text));
     }},
    {"backcolor", [](const HyperLink& link) { return ColorText(link.BackColor()); },
     [](const HyperLink& link) { return ColorText(link.ContainerBackColor()); },
     [](const HyperLink& link) { return ColorText(link.ContainerBackColor()); },
     [](HyperLink& link, const std::string& text) {
       link.lblHyperlink.SetBackColor(ColorOf(text));
     }},
    {"autotooltip", [](const HyperLink& link) { return BooleanText(link.autoToolTip_); },
     DefaultBoolean<true>, DefaultBoolean<true>,
     [](HyperLink& link, const std::string& text) { link.autoToolTip_ = Boolean(text); }},
    {"soundon", [](const HyperLink& link) { return BooleanText(link.soundOn_); },
     DefaultBoolean<true>, DefaultBoolean<true>,
     [](HyperLink& link, const std::string& text) { link.soundOn_ = Boolean(text); }},
    {"soundid", [](const HyperLink& link) { return std::to_string(link.soundId_); },
     DefaultNumber<101>, DefaultNumber<101>,
     [](HyperLink& link, const std::string& text) { link.soundId_ = text::CInt(text); }},
    {"mounderline", [](const HyperLink& link) { return BooleanText(link.moUnderline_); },
     DefaultBoolean<true>, DefaultBoolean<true>,
     [](HyperLink& link, const std::string& text) { link.moUnderline_ = Boolean(text); }},
    {"mopointer", [](const HyperLink& link) { return BooleanText(link.moPointer_); },
     DefaultBoolean<true>, DefaultBoolean<true>,
     [](HyperLink& link, const std::string& text) { link.moPointer_ = Boolean(text); }},
};

HyperLink::HyperLink(const forms::Parent& parent, std::string name, const forms::Design& design,
                     const PropertyBag& saved)
    : UserControl(parent, std::move(name), design),
      lblHyperlink(*this, "lblHyperlink",
                   {.Caption = DefaultCaption,
                    .At = {0, 0, design.At.Width, design.At.Height},
                    .TextFont = {.Name = "Tahoma"}}),
      myTimer(*this, "myTimer", PollInterval, false) {
  lblHyperlink.Click = [this] { LabelClicked(); };
  lblHyperlink.Change = [this] { LabelChanged(); };
  lblHyperlink.MouseMove = [this](int button, int shift, float x, float y) {
    LabelMoved(button, shift, x, y);
  };
  lblHyperlink.MouseDown = [this](int button, int shift, float x, float y) {
    MouseDown(button, shift, x, y);
  };
  lblHyperlink.MouseUp = [this](int button, int shift, float x, float y) {
    MouseUp(button, shift, x, y);
  };
  myTimer.Tick = [this] { TimerTicked(); };
  ReadProperties(saved);
  SetWindowText(Caption());
}

std::string HyperLink::ColorText(forms::Color color) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text = "&H";
  for (int shift = 28; shift >= 0; shift -= 4) text += digits[(color >> shift) & 0xFU];
  return text;
}

void HyperLink::SetFont(const forms::Font& font) {
  ShowFont(font);
  PropertyChanged("Font");
  SyncSize();
}

void HyperLink::SetEnabled(bool enabled) {
  ShowEnabled(enabled);
  PropertyChanged("Enabled");
}

void HyperLink::SetCaption(const std::string& caption) {
  lblHyperlink.SetCaption(caption);
  PropertyChanged("Caption");
  SyncSize();
}

void HyperLink::SetAlignment(std::int16_t alignment) {
  ShowAlignment(alignment);
  PropertyChanged("Alignment");
  SyncSize();
}

void HyperLink::SetAutoSize(bool autoSize) {
  lblHyperlink.SetAutoSize(autoSize);
  PropertyChanged("AutoSize");
  SyncSize();
}

void HyperLink::SetHyperLink(const std::string& address) {
  address_ = text::Trim(address);
  PropertyChanged("HyperLink");
}

void HyperLink::SetHoverColor(forms::Color color) {
  hoverColor_ = color;
  PropertyChanged("HoverColor");
}

void HyperLink::SetAppearance(std::int16_t appearance) {
  lblHyperlink.SetAppearance(appearance);
  PropertyChanged("Appearance");
}

void HyperLink::SetBorderStyle(std::int16_t borderStyle) {
  lblHyperlink.SetBorderStyle(borderStyle);
  PropertyChanged("BorderStyle");
}

void HyperLink::SetForeColor(forms::Color color) {
  lblHyperlink.SetForeColor(color);
  PropertyChanged("ForeColor");
}

void HyperLink::SetBackColor(forms::Color color) {
  lblHyperlink.SetBackColor(color);
  PropertyChanged("BackColor");
}

void HyperLink::SetAutoToolTip(bool autoToolTip) {
  autoToolTip_ = autoToolTip;
  PropertyChanged("AutoToolTip");
}

void HyperLink::SetSoundOn(bool soundOn) {
  soundOn_ = soundOn;
  PropertyChanged("SoundOn");
}

void HyperLink::SetSoundID(std::int16_t soundId) {
  soundId_ = soundId;
  PropertyChanged("SoundID");
}

void HyperLink::SetMOUnderline(bool underline) {
  moUnderline_ = underline;
  PropertyChanged("MOUnderline");
}

void HyperLink::SetMOPointer(bool pointer) {
  moPointer_ = pointer;
  PropertyChanged("MOPointer");
}

void HyperLink::ReadProperties(const PropertyBag& bag) {
  ReadFont(bag);
  for (const Property& property : Properties) {
    property.Assign(*this, bag.ReadProperty(property.Name, property.ReadDefault(*this)));
  }
  ReadExtent(bag);
  SyncSize();
}

void HyperLink::WriteProperties(PropertyBag& bag) const {
  bag.WriteProperty("_extentx", std::to_string(At().Width));
  bag.WriteProperty("_extenty", std::to_string(At().Height));
  if (Font() != ContainerFont()) bag.WriteProperty("font", FontText(Font()));
  for (const Property& property : Properties) {
    bag.WriteProperty(property.Name, property.Text(*this), property.WriteDefault(*this));
  }
}

bool HyperLink::IsMouseOver() const {
  if (platform_ == nullptr) return false;
  platform::Desktop& desktop = platform_->desktop;
  return desktop.WindowFromPoint(desktop.GetCursorPos()) == WindowHandle();
}

void HyperLink::MouseLeave() {
  text::ErrorTrap trap;
  isOver_ = false;
  trap([&] { lblHyperlink.SetForeColor(savedForeColor_); });
  if (moUnderline_ && !ContainerFont().Underline) trap([&] { ShowUnderline(false); });
  // Meant: the same pointer as on entering.
  if (moPointer_) trap([&] { lblHyperlink.SetMousePointer(forms::PointerCustom); });
  RaiseAtBorder(MouseOut);
}

void HyperLink::SyncSize() {
  if (AutoSize()) {
    const forms::Place& label = lblHyperlink.At();
    Move({At().Left, At().Top, label.Width, label.Height});
  } else {
    lblHyperlink.Move({0, 0, At().Width, At().Height});
  }
}

void HyperLink::UserClick() {
  if (Control::Enabled()) lblHyperlink.UserClick();
}

const forms::Font& HyperLink::ContainerFont() const {
  static const forms::Font dialogFont;
  return Container() != nullptr ? Container()->TextFont() : dialogFont;
}

forms::Color HyperLink::ContainerForeColor() const {
  return Container() != nullptr ? Container()->ForeColor() : forms::palette::WindowText;
}

forms::Color HyperLink::ContainerBackColor() const {
  return Container() != nullptr ? Container()->BackColor() : Owner().BackColor();
}

void HyperLink::ShowFont(const forms::Font& font) {
  forms::Font own = font;
  own.Name = fontNames_.insert(font.Name).first->c_str();
  lblHyperlink.SetTextFont(own);
}

void HyperLink::ShowEnabled(bool enabled) {
  lblHyperlink.SetEnabled(enabled);
  Control::SetEnabled(enabled);
}

void HyperLink::ShowAlignment(std::int16_t alignment) {
  if (alignment < 0 || alignment > 2) RaiseInvalidValue();
  lblHyperlink.SetAlignment(static_cast<forms::Align>(alignment));
}

void HyperLink::ShowUnderline(bool underline) {
  forms::Font font = Font();
  font.Underline = underline;
  ShowFont(font);
}

void HyperLink::ShowToolTip() {
  lblHyperlink.SetToolTipText(autoToolTip_ ? address_ : ToolTipText());
}

void HyperLink::ReadFont(const PropertyBag& bag) {
  if (!bag.Contains("font")) return ShowFont(ContainerFont());
  const std::vector<std::string> parts = text::Split(bag.ReadProperty("font", ""), ';');
  if (parts.size() < 4) RaiseInvalidValue();
  std::string name = parts[3];
  for (std::size_t at = 4; at < parts.size(); ++at) name += ';' + parts[at];
  ShowFont({.Name = name.c_str(),
            .Size = text::CLng(parts[0]) / 100.0,
            .Bold = Boolean(parts[1]),
            .Underline = Boolean(parts[2])});
}

// Behind the other properties: what a change of size leads to depends on AutoSize.
void HyperLink::ReadExtent(const PropertyBag& bag) {
  forms::Place place = At();
  place.Width = text::CLng(bag.ReadProperty("_extentx", std::to_string(place.Width)));
  place.Height = text::CLng(bag.ReadProperty("_extenty", std::to_string(place.Height)));
  if (place.Width < 0 || place.Height < 0) RaiseInvalidValue();
  Move(place);
}

void HyperLink::LabelMoved(int button, int shift, float x, float y) {
  if (isOver_) return;
  isOver_ = true;
  if (moPointer_) lblHyperlink.SetMousePointer(forms::PointerCustom);
  savedForeColor_ = ForeColor();
  lblHyperlink.SetForeColor(hoverColor_);
  if (moUnderline_) ShowUnderline(true);
  ShowToolTip();
  myTimer.SetEnabled(true);
  MouseOver(button, shift, x, y);
}

void HyperLink::LabelClicked() {
  if (!address_.empty()) OpenAddress();
  RaiseAtBorder(Click);
}

void HyperLink::RaiseAtBorder(const forms::Event<>& event) {
  Owner().Tools().AtBorder([&event] { event(); });
  Owner().Tools().ThrowIfEnding();
}

void HyperLink::OpenAddress() {
  text::ErrorTrap trap;
  forms::Toolkit& tools = Owner().Tools();
  const int pointer = tools.ScreenPointer();
  trap([&] { tools.SetScreenPointer(forms::PointerHourglass); });
  trap([&] {
    if (platform_ != nullptr) platform_->shell.ShellExecuteA(0, "Open", address_, "", "", 1);
  });
  trap([&] { tools.SetScreenPointer(pointer); });
}

void HyperLink::LabelChanged() {
  SetWindowText(Caption());
  SyncSize();
  Change();
}

// The timer is stopped last, so it goes on while a handler of MouseOut shows a box: those ticks
// must not raise the event again. If the mouse has come back meanwhile, the timer is still needed.
void HyperLink::TimerTicked() {
  if (leaving_ || IsMouseOver()) return;
  const text::ScopedFlag leaving(leaving_);
  MouseLeave();
  if (!isOver_) myTimer.SetEnabled(false);
}

}  // namespace vantrel::controls
