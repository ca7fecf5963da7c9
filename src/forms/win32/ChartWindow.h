// A bar chart: one row of columns in their own colours over an axis. Its window text says the same
// as text, for those who cannot see it.
#ifndef VANTREL_FORMS_WIN32_CHARTWINDOW_H_
#define VANTREL_FORMS_WIN32_CHARTWINDOW_H_

#include "forms/Chart.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class ChartWindow final : public ControlWindow {
 public:
  ChartWindow(WindowSystem& system, Chart& chart) : ControlWindow(system, chart), chart_(chart) {}
  void Changed(Aspect aspect) override;
  void PaintSurface(HDC context, const RECT& area) override;

 protected:
  WindowShape Shape() const override;

 private:
  // What it is called and its values: "Blocked ads: 3, 12".
  std::string InWords() const;
  RECT PlotArea(const RECT& area) const;
  void PaintGrid(HDC context, const RECT& plot, double step, double top) const;
  void PaintColumn(HDC context, const RECT& plot, std::size_t index, double top) const;

  Chart& chart_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_CHARTWINDOW_H_
