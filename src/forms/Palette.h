// The one table of colours. A colour is 0x00BBGGRR; with the top bit set it is a system colour by
// its index, which follows the user's scheme. Everything that is drawn takes its colour from here.
#ifndef VANTREL_FORMS_PALETTE_H_
#define VANTREL_FORMS_PALETTE_H_

#include <cstdint>

namespace vantrel::forms {

using Color = std::uint32_t;

constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) {
  return red | (green << 8U) | (blue << 16U);
}
constexpr Color SystemColor(unsigned index) { return 0x80000000U | index; }

namespace palette {

// The user's scheme.
inline constexpr Color ActiveCaption = SystemColor(2);
inline constexpr Color Window = SystemColor(5);
inline constexpr Color WindowText = SystemColor(8);
inline constexpr Color Highlight = SystemColor(13);
inline constexpr Color HighlightText = SystemColor(14);
inline constexpr Color ButtonFace = SystemColor(15);
inline constexpr Color GrayText = SystemColor(17);
inline constexpr Color ButtonText = SystemColor(18);
inline constexpr Color HotLight = SystemColor(26);

// Prescribed.
inline constexpr Color NavigationBack = Rgb(221, 236, 254);
inline constexpr Color LinkText = Rgb(27, 0, 255);
inline constexpr Color LinkHover = Rgb(0, 0, 255);
inline constexpr Color DefaultHover = Rgb(255, 0, 0);
inline constexpr Color PureBlue = Rgb(0, 0, 255);
inline constexpr Color Popups = Rgb(0xFF, 0xC0, 0xC0);
inline constexpr Color Dhtml = Rgb(0xC0, 0xFF, 0xC0);
inline constexpr Color Dialogs = Rgb(0xC0, 0xFF, 0xFF);
inline constexpr Color Banners = Rgb(0xC0, 0xC0, 0x00);
inline constexpr Color Flash = Rgb(0xFF, 0xC0, 0xFF);

// The program's own.
inline constexpr Color PanelBack = Rgb(0xF4, 0xF8, 0xFE);
inline constexpr Color FrameLine = Rgb(0x9D, 0xBB, 0xE3);
inline constexpr Color FrameText = Rgb(0x1E, 0x3A, 0x6E);
inline constexpr Color HeadingFrom = Rgb(0x9C, 0xBC, 0xEA);
inline constexpr Color HeadingTo = Rgb(0xD6, 0xE5, 0xFA);
inline constexpr Color TitleFrom = Rgb(0x28, 0x55, 0xA4);
inline constexpr Color TitleTo = Rgb(0x5F, 0x92, 0xDA);
// A shade off Card's: under high contrast each is replaced by another colour of the scheme.
inline constexpr Color TitleText = Rgb(0xFE, 0xFE, 0xFF);
inline constexpr Color ToolbarFrom = Rgb(0xFB, 0xFD, 0xFF);
inline constexpr Color ToolbarTo = Rgb(0xCF, 0xE0, 0xF8);
inline constexpr Color Figure = Rgb(0x1E, 0x3A, 0x6E);
inline constexpr Color NoteText = Rgb(0x5A, 0x6A, 0x84);
inline constexpr Color Card = Rgb(0xFF, 0xFF, 0xFF);

}  // namespace palette
}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_PALETTE_H_
