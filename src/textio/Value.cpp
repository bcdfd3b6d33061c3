#include "textio/Value.h"

#include "textio/NumberForms.h"

namespace vorlex {

double Value::toNumber() const {
  if (isNumber())
    return std::get<double>(content_);
  return textToDouble(std::get<std::string>(content_));
}

std::string Value::toText() const {
  if (isNumber())
    return digits(std::get<double>(content_));
  return std::get<std::string>(content_);
}

} // namespace vorlex
