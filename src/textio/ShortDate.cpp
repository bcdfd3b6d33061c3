#include "textio/ShortDate.h"

#include <ctime>

namespace vorlex {

std::string systemShortDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[16];
  std::strftime(text, sizeof text, "%Y-%m-%d", &local);
  return text;
}

} // namespace vorlex
