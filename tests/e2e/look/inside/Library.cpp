// A font belongs to the process that made it: this library is loaded into the program's process and
// answers there what a control's font is. It also changes the colours of that process.
#include <windows.h>

#include <array>

#include "Protocol.h"
#include "support/win32/HighContrast.h"

namespace {

namespace inside = vantrel::e2e::inside;

void PutFont(HWND control) {
  const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, inside::MemoryName);
  if (mapping == nullptr) return;
  auto* memory = static_cast<inside::Memory*>(
      MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, sizeof(inside::Memory)));
  if (memory != nullptr) {
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageA(control, WM_GETFONT, 0, 0));
    const HGDIOBJ known = font != nullptr ? font : GetStockObject(SYSTEM_FONT);
    GetObjectA(known, sizeof memory->Font, &memory->Font);
    UnmapViewOfFile(memory);
  }
  CloseHandle(mapping);
}

constexpr int Count = 31;
using Colors = std::array<COLORREF, Count>;

// As the user had them when the library was loaded.
const Colors& OwnColors() {
  static const Colors own = [] {
    Colors colors{};
    for (int index = 0; index < Count; ++index) colors[index] = GetSysColor(index);
    return colors;
  }();
  return own;
}

// Texts and lines in the ink, all else in the paper, but for what is marked, grey or hot.
Colors HighContrast(COLORREF paper, COLORREF ink, COLORREF mark, COLORREF grey, COLORREF hot) {
  Colors colors{};
  colors.fill(paper);
  for (const int index : {COLOR_WINDOWTEXT, COLOR_WINDOWFRAME, COLOR_MENUTEXT, COLOR_BTNTEXT,
                          COLOR_INFOTEXT, COLOR_ACTIVEBORDER, COLOR_3DSHADOW, COLOR_3DDKSHADOW,
                          COLOR_3DHIGHLIGHT, COLOR_INACTIVECAPTIONTEXT}) {
    colors[index] = ink;
  }
  for (const int index :
       {COLOR_HIGHLIGHT, COLOR_ACTIVECAPTION, COLOR_GRADIENTACTIVECAPTION, COLOR_MENUHILIGHT}) {
    colors[index] = mark;
  }
  colors[COLOR_HIGHLIGHTTEXT] = colors[COLOR_CAPTIONTEXT] = RGB(255, 255, 255);
  colors[COLOR_GRAYTEXT] = grey;
  colors[COLOR_HOTLIGHT] = hot;
  return colors;
}

Colors ColorsOf(inside::Scheme scheme) {
  constexpr COLORREF Black = 0;
  constexpr COLORREF White = 0xFFFFFF;
  Colors colors = OwnColors();
  switch (scheme) {
    case inside::Scheme::Inverted:
      for (COLORREF& color : colors) color ^= White;
      return colors;
    case inside::Scheme::HighContrastBlack:
      return HighContrast(Black, White, RGB(128, 0, 128), RGB(0, 255, 0), RGB(128, 128, 255));
    case inside::Scheme::HighContrastWhite:
      return HighContrast(White, Black, Black, RGB(0, 128, 0), RGB(0, 0, 128));
    default:
      return colors;
  }
}

// In the order in which the system does it: the choice, the colours, the report of the choice.
void ChooseScheme(inside::Scheme scheme) {
  const Colors colors = ColorsOf(scheme);
  const bool highContrast =
      scheme == inside::Scheme::HighContrastBlack || scheme == inside::Scheme::HighContrastWhite;
  vantrel::tests::ChooseHighContrast(GetModuleHandleA(nullptr), highContrast);
  std::array<int, Count> indices{};
  for (int index = 0; index < Count; ++index) indices[index] = index;
  SetSysColors(Count, indices.data(), colors.data());
  constexpr UINT Bound = 5000;
  DWORD_PTR ignored = 0;
  SendMessageTimeoutA(HWND_BROADCAST, WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST, 0, SMTO_ABORTIFHUNG,
                      Bound, &ignored);
}

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case inside::AskFont:
      PutFont(reinterpret_cast<HWND>(first));
      return 1;
    case inside::AskScheme:
      ChooseScheme(static_cast<inside::Scheme>(first));
      return 1;
    default:
      return DefWindowProcA(window, message, first, second);
  }
}

DWORD WINAPI Serve(void*) {
  OwnColors();
  HWND window = CreateWindowA("STATIC", inside::WindowName, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                              nullptr, nullptr);
  SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Receive));
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}

}  // namespace

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) {
    CloseHandle(CreateThread(nullptr, 0, Serve, nullptr, 0, nullptr));
  }
  return TRUE;
}
