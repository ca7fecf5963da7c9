// A list with columns, which asks its model for the rows that it shows and keeps none. Changes of
// rows are gathered and shown together, and painted only if they make a difference to what shows.
#ifndef VANTREL_FORMS_WIN32_LISTVIEWWINDOW_H_
#define VANTREL_FORMS_WIN32_LISTVIEWWINDOW_H_

#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <string>

#include "forms/ListView.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ListViewWindow final : public ControlWindow {
 public:
  ListViewWindow(WindowSystem& system, ListView& list) : ControlWindow(system, list), list_(list) {}
  void Changed(Aspect aspect) override;
  void PaintSurface(HDC, const RECT&) override {}
  LRESULT OnNotify(NMHDR& header) override;

 protected:
  WindowShape Shape() const override;
  void Prepare() override;
  void Rescale() override;
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  void ShowIcons();
  void AddColumns();
  void FillWidth();
  void Gather();
  void ShowRows();
  void ShowSelection();
  void ShowColors();
  std::size_t Fingerprint(int top, int behind) const;
  std::string TextAt(int row, int column) const;
  int ImageAt(int row) const;
  void FillItem(LVITEMA& wanted);
  int RowOf(const char* letters, int start) const;
  void SelectionMoved(const NMLISTVIEW& change);
  void Clicked(const NMITEMACTIVATE& click);
  LRESULT Draw(NMLVCUSTOMDRAW& draw) const;
  LRESULT DrawHeader(const NMCUSTOMDRAW& draw) const;
  bool AssignState(int row, const LVITEMA& item);
  void Toggle(int row);
  bool TakesKey(UINT message, WPARAM key);
  bool IsHeadersDraw(const NMHDR* header);
  void Follow(UINT message);

  ListView& list_;
  ImagesHandle checkMarks_;
  int dpi_ = 0;            // that the columns are for
  std::size_t shown_ = 0;  // the fingerprint of the rows that show
  int told_ = 0;  // the row that the last change of selection was raised for, until the click
  bool gathering_ = false;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_LISTVIEWWINDOW_H_
