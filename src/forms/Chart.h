// A bar chart of rows and columns, filled cell by cell through the cell that is current.
#ifndef VANTREL_FORMS_CHART_H_
#define VANTREL_FORMS_CHART_H_

#include <string>
#include <vector>

#include "forms/Control.h"

namespace vantrel::forms {

struct ChartColumn {
  std::string Label;
  Color Fill = palette::Highlight;
  std::string Data;  // as it was given; what is no number draws as none
};

class Chart : public Control {
 public:
  Chart(const Parent& parent, std::string name, const Design& design, std::string rowLabel,
        std::vector<ChartColumn> columns);
  void Accept(ControlVisitor& visitor) override;

  const std::string& RowLabel() const { return rowLabel_; }
  const std::vector<ChartColumn>& Columns() const { return columns_; }

  // The current column, 1-based; error 9 outside.
  int Column() const { return column_; }
  void SetColumn(int column);
  // The current column's data.
  const std::string& Data() const;
  void SetData(const std::string& data);

 private:
  std::string rowLabel_;
  std::vector<ChartColumn> columns_;
  int column_ = 1;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_CHART_H_
