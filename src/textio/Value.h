#pragma once

#include <string>
#include <variant>

namespace vorlex {

/// A number-or-text value. An item read into it holds text if it was quoted,
/// a number if it reads as one and text otherwise; it is written back by
/// what it holds, so a date or name line survives a read and a write.
class Value {
public:
  Value() : content_(std::string{}) {}
  Value(double number) : content_(number) {}
  Value(std::string text) : content_(std::move(text)) {}
  Value(const char* text) : content_(std::string(text)) {}

  bool isNumber() const { return std::holds_alternative<double>(content_); }
  bool isText() const { return !isNumber(); }

  /// The number held; a text converts only when it is a number as a whole,
  /// otherwise Type mismatch.
  double toNumber() const;
  /// The text held, or the digits of the number held.
  std::string toText() const;

  bool operator==(const Value&) const = default;

private:
  std::variant<double, std::string> content_;
};

} // namespace vorlex
