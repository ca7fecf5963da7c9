// A window: its controls and menus in the order of their making (which is the order of Tab), its
// state, and its life: made by the first touch, loaded, shown and hidden as a whole, unloaded.
#ifndef VANTREL_FORMS_FORM_H_
#define VANTREL_FORMS_FORM_H_

#include <memory>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/Event.h"
#include "forms/Peer.h"
#include "forms/Toolkit.h"

namespace vantrel::forms {

class Menu;

enum class WindowState : int { Normal = 0, Minimized = 1, Maximized = 2 };
enum class ScaleMode : int { Twips = 1, Pixels = 3 };

// Why a window is asked to unload.
inline constexpr int UnloadByCloseBox = 0;
inline constexpr int UnloadByCode = 1;
inline constexpr int UnloadBySystem = 2;

inline constexpr int PointerDefault = 0;
inline constexpr int PointerHourglass = 11;
inline constexpr int PointerCustom = 99;

// How the window's frame is drawn.
// A panel's window is a child from the start and shows nowhere until it is put into another one.
enum class Border { Panel, Sizable, Dialog };

struct FormDesign {
  const char* Caption = "";
  int Width = 0;  // in twips; outside the frame for a window, inside it for a dialog
  int Height = 0;
  int Left = 0;  // of a panel, in its parent's inside; of any other window, -1 centres it
  int Top = 0;
  Border Frame = Border::Panel;
  Color BackColor = palette::PanelBack;
  Size Inside{};    // of a main window: the inside that its controls are placed in
  Size Smallest{};  // of a main window: how small its frame can be dragged
};

class Form {
 public:
  Form(Toolkit& toolkit, std::string name, const FormDesign& design);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  Toolkit& Tools() const { return toolkit_; }
  const FormDesign& Designed() const { return design_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  // The menus of the bar, invisible ones included.
  const std::vector<Menu*>& Menus() const { return menus_; }
  // Every menu and entry, in the order of making, which is that of the identifiers.
  const std::vector<Menu*>& AllMenus() const { return allMenus_; }
  // The entry with the identifier, nullptr if there is none.
  Menu* FindMenu(int identifier) const;
  // The control of the name ("cmdstart", "optBit(8)"), without regard to case, nullptr for none.
  Control* FindControl(const std::string& name) const;
  // The controls that Tab visits now, in its order: those of this window that the user can reach,
  // of a group of options one, then those of the windows hosted in it.
  std::vector<Control*> TabOrder() const;
  // The next one behind (or before) `from`, round about; nullptr if Tab visits none.
  Control* NextTabStop(const Control* from, bool backwards = false) const;

  // Makes the window and raises Load, unless it is loaded. Initialize is raised before the first
  // time only.
  void EnsureLoaded();
  // Raises Initialize, unless it was raised before.
  void EnsureInitialized();
  bool Loaded() const { return loaded_; }
  // Raises QueryUnload with the mode, then Unload; either may cancel. Then the window is gone.
  // A window that is in its Unload handler already is left to it.
  void Unload(int mode = UnloadByCode);

  // Loads the window if need be, shows it and makes it active.
  void Show();
  // Returns when the window has been hidden or unloaded.
  void ShowModal();
  void Hide();
  bool Visible() const { return visible_; }
  // While ShowModal runs: the other windows take no input.
  bool Modal() const { return modal_; }
  // Whether it shows: it and the windows that host it are visible.
  bool Shown() const;

  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);
  int Left() const { return place_.Left; }
  int Top() const { return place_.Top; }
  int Width() const { return place_.Width; }
  int Height() const { return place_.Height; }
  // A change of size or state raises Resize, from code as from the user.
  void SetWidth(int twips);
  void SetHeight(int twips);
  forms::WindowState WindowState() const { return state_; }
  void SetWindowState(forms::WindowState state);
  forms::ScaleMode ScaleMode() const { return scaleMode_; }
  void SetScaleMode(forms::ScaleMode mode) { scaleMode_ = mode; }
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int pointer);
  Color BackColor() const { return backColor_; }

  // 0 while it is not loaded.
  Handle hWnd() const;
  Handle IconHandle() const;
  // The window takes part in Tab and shows within this one from now on; set by whoever hosts it.
  void SetHost(Form* host) { host_ = host; }
  Form* Host() const { return host_; }
  // The window that it shows within in the end, itself if nobody hosts it.
  Form& Outermost();
  void PopupMenu(Menu& menu);

  // From the screen's side, in twips; a minimized window keeps the size it had.
  void UserResizes(int width, int height, forms::WindowState state);
  // The window was shown or hidden from outside, by a message or by another program.
  void UserShows(bool visible);
  // Raises Activate if another window was the active one and this one shows.
  void BecomesActive();

  Event<> Initialize;
  Event<> Load;
  Event<> Activate;
  Event<> Resize;
  // cancel, mode
  Event<bool&, int> QueryUnload;
  Event<bool&> Unloading;
  MouseEvent MouseMove;

  // Toolkits only.
  FormPeer* Peer() const { return peer_.get(); }

 private:
  friend class Control;
  friend class Menu;

  void Changed(Aspect aspect);
  void SetVisible(bool visible);
  void SetSize(int width, int height);
  void RaiseResize();
  void Destroy();
  void LetHostedGo();

  Toolkit& toolkit_;
  std::string name_;
  FormDesign design_;
  std::vector<Control*> controls_;
  std::vector<Menu*> menus_;
  std::vector<Menu*> allMenus_;
  std::string caption_;
  Place place_;
  Color backColor_;
  forms::WindowState state_ = forms::WindowState::Normal;
  forms::ScaleMode scaleMode_ = forms::ScaleMode::Twips;
  int mousePointer_ = 0;
  Form* host_ = nullptr;
  unsigned resizes_ = 0;
  bool visible_ = false;
  bool modal_ = false;
  bool initialized_ = false;
  bool loaded_ = false;
  bool unloading_ = false;
  std::unique_ptr<FormPeer> peer_;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_FORM_H_
