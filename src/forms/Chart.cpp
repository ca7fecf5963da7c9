#include "forms/Chart.h"

#include <utility>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"

namespace vantrel::forms {

Chart::Chart(const Parent& parent, std::string name, const Design& design, std::string rowLabel,
             std::vector<ChartColumn> columns)
    : Control(parent, std::move(name), design),
      rowLabel_(std::move(rowLabel)),
      columns_(std::move(columns)) {}

void Chart::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Chart::SetColumn(int column) {
  if (column < 1 || column > static_cast<int>(columns_.size())) {
    throw text::RuntimeError(text::ErrorNumber::SubscriptOutOfRange);
  }
  column_ = column;
}

const std::string& Chart::Data() const {
  return columns_.at(static_cast<std::size_t>(column_) - 1).Data;
}

void Chart::SetData(const std::string& data) {
  std::string& cell = columns_.at(static_cast<std::size_t>(column_) - 1).Data;
  if (cell == data) return;
  cell = data;
  Changed(Aspect::Items);
}

}  // namespace vantrel::forms
