#include "forms/win32/ChartWindow.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

constexpr int Margin = 10;     // pixels at 96 dots per inch
constexpr int AxisRoom = 34;   // left of the axis, for its numbers
constexpr int RowRoom = 22;    // below the axis, for the row's label
constexpr int ValueRoom = 16;  // above the highest column, for its value
constexpr int GridLines = 4;

double ValueOf(const ChartColumn& column) {
  const double value = std::strtod(column.Data.c_str(), nullptr);
  return std::isfinite(value) && value > 0 ? value : 0;
}

// A step of 1, 2 or 5 times a power of ten, so that `GridLines` of them reach the value.
double StepFor(double highest) {
  const double least = std::max(highest / GridLines, 1.0);
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least) return factor * power;
  }
  return 10 * power;
}

std::string Whole(double value) { return std::to_string(std::llround(value)); }

}  // namespace

WindowShape ChartWindow::Shape() const {
  WindowShape shape;
  shape.Text = InWords();
  return shape;
}

std::string ChartWindow::InWords() const {
  std::string words = chart_.WindowText();
  const char* before = words.empty() ? "" : ": ";
  for (const ChartColumn& column : chart_.Columns()) {
    words += std::exchange(before, ", ") + Whole(ValueOf(column));
  }
  return words;
}

void ChartWindow::Changed(Aspect aspect) {
  const bool isSaid = aspect == Aspect::Text || aspect == Aspect::Items || aspect == Aspect::Value;
  if (!isSaid) return ControlWindow::Changed(aspect);
  const std::string words = InWords();
  if (words == ShownText()) return;
  Tell(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(words.c_str()));
  Invalidate();
}

RECT ChartWindow::PlotArea(const RECT& area) const {
  const Scale& scale = System().Pixels;
  return {area.left + scale.Scaled(AxisRoom), area.top + scale.Scaled(Margin + ValueRoom),
          area.right - scale.Scaled(Margin), area.bottom - scale.Scaled(RowRoom)};
}

void ChartWindow::PaintSurface(HDC context, const RECT& area) {
  const Colors& colors = System().Palette;
  RoundedFrame(context, area, 0, colors.Of(palette::FrameLine), colors.Of(palette::Window));
  double highest = 0;
  for (const ChartColumn& column : chart_.Columns()) highest = std::max(highest, ValueOf(column));
  const double step = StepFor(highest);
  const double top = std::max(step, step * std::ceil(highest / step));
  const RECT plot = PlotArea(area);
  PaintGrid(context, plot, step, top);
  for (std::size_t index = 0; index < chart_.Columns().size(); ++index) {
    PaintColumn(context, plot, index, top);
  }
  const COLORREF axis = colors.TextOn(palette::NoteText, palette::Window);
  DrawLine(context, {plot.left, plot.top}, {plot.left, plot.bottom}, axis);
  DrawLine(context, {plot.left, plot.bottom}, {plot.right, plot.bottom}, axis);
  DrawTextIn(context, chart_.RowLabel(), {plot.left, plot.bottom, plot.right, area.bottom},
             TextFont(), colors.TextOn(palette::WindowText, palette::Window),
             DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void ChartWindow::PaintGrid(HDC context, const RECT& plot, double step, double top) const {
  const Colors& colors = System().Palette;
  const int half = MeasureText("0", TextFont(), 0, DT_SINGLELINE).cy / 2;
  for (double value = 0; value <= top; value += step) {
    const int y = plot.bottom - static_cast<int>(HeightOf(plot) * value / top);
    if (value > 0)
      DrawLine(context, {plot.left, y}, {plot.right, y}, colors.Of(palette::HeadingTo));
    DrawTextIn(context, Whole(value),
               {0, y - half, plot.left - System().Pixels.Scaled(4), y + half + 1}, TextFont(),
               colors.TextOn(palette::NoteText, palette::Window),
               DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
  }
}

void ChartWindow::PaintColumn(HDC context, const RECT& plot, std::size_t index, double top) const {
  const Colors& colors = System().Palette;
  const ChartColumn& column = chart_.Columns()[index];
  const int count = static_cast<int>(chart_.Columns().size());
  const int left = plot.left + MulDiv(WidthOf(plot), static_cast<int>(index), count);
  const int right = plot.left + MulDiv(WidthOf(plot), static_cast<int>(index) + 1, count);
  const int gap = (right - left) / 7;
  const double value = ValueOf(column);
  const int height = static_cast<int>(std::lround(HeightOf(plot) * value / top));
  const RECT bar{left + gap, plot.bottom - height, right - gap, plot.bottom + 1};
  if (height > 0) {
    RoundedFrame(context, bar, 0, colors.TextOn(palette::NoteText, palette::Window),
                 colors.Of(column.Fill));
  }
  const int room = System().Pixels.Scaled(ValueRoom);
  DrawTextIn(context, Whole(value), {left, bar.top - room, right, bar.top}, TextFont(),
             colors.TextOn(palette::WindowText, palette::Window),
             DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

}  // namespace vantrel::forms::win32
