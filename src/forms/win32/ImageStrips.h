// The pictures of the image lists at the screen's size, unpacked at the first use.
#ifndef VANTREL_FORMS_WIN32_IMAGESTRIPS_H_
#define VANTREL_FORMS_WIN32_IMAGESTRIPS_H_

#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <map>
#include <string>

#include "forms/win32/Handles.h"
#include "forms/win32/Scale.h"
#include "forms/win32/Win32Toolkit.h"

namespace vantrel::forms::win32 {

using ImagesHandle = Owned<HIMAGELIST, ImageList_Destroy>;

class ImageStrips {
 public:
  ImageStrips(Pictures pictures, Scale scale) : pictures_(std::move(pictures)), scale_(scale) {}

  // The size of one picture of the list on this screen; 0 by 0 for a list without a strip.
  SIZE SizeOf(const std::string& list) const;
  // Draws the 1-based picture into the area, stretched to it.
  void Draw(HDC context, const RECT& area, const std::string& list, int number);
  // The list for a common control, nullptr without a strip. Lives until Rescale.
  HIMAGELIST ImagesFor(const std::string& list);
  // From here on for another scale; gives what was made for the one before, which lives as long as
  // that.
  using Lists = std::map<std::string, ImagesHandle>;
  Lists Rescale(Scale scale);
  // The icon of the program, large or small.
  HICON ProgramIcon(bool large) const;

 private:
  struct Strip {
    Bitmap Pixels;
    int Width = 0;  // of one picture as stored
    int Height = 0;
  };

  const ImageStrip* Find(const std::string& list) const;
  const Strip& Unpacked(const ImageStrip& row);
  Strip Unpack(const ImageStrip& row) const;
  int ScaleIndex() const;

  Pictures pictures_;
  Scale scale_;
  std::map<std::string, Strip> strips_;
  Lists images_;
};

// A 32-bit bitmap with rows from the top; its pixels, blank at first, through `bits`.
Bitmap MakePixels(int width, int height, std::uint32_t** bits);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_IMAGESTRIPS_H_
