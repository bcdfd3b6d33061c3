#include "charts/ChartCsv.h"

#include "textio/NumberForms.h"

#include <string_view>

namespace vorlex {
namespace {

constexpr const char* kLineEnd = "\r\n";

/// A text as one cell: in quotes, inner quotes doubled, when it holds a
/// comma, a quote or a line break; as it stands otherwise.
std::string cell(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos)
    return text;
  std::string quoted = "\"";
  for (char c : text) {
    if (c == '"')
      quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

/// The digits form of the files with a 0 before a leading decimal point,
/// which spreadsheets read either way but people read better.
std::string number(double value) {
  const std::string text = digits(value);
  const bool negative = text[0] == '-';
  const std::string_view magnitude = std::string_view(text).substr(negative ? 1 : 0);
  if (magnitude[0] != '.')
    return text;
  return (negative ? "-0" : "0") + std::string(magnitude);
}

} // namespace

std::string chartAsCsv(const ChartContent& chart) {
  std::string csv = cell(chart.title) + kLineEnd;

  for (int n = 1; n <= chart.seriesCount(); ++n) {
    const std::string& label = chart.label(n);
    const std::string tail = label.empty() ? std::to_string(n) : std::string();
    const std::string head = label.empty() ? std::string() : label + " ";
    if (n > 1)
      csv += ',';
    csv += cell(head + "x" + tail) + ',' + cell(head + "y" + tail);
  }
  csv += kLineEnd;

  for (int row = 1; row <= chart.rowCount(); ++row) {
    for (int column = 1; column <= chart.columnCount(); ++column) {
      if (column > 1)
        csv += ',';
      csv += number(chart.at(row, column));
    }
    csv += kLineEnd;
  }
  return csv;
}

} // namespace vorlex
