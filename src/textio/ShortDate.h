#pragma once

#include <string>

namespace vorlex {

/// Today's date in the short form the reports print, "2026-11-21".
std::string systemShortDate();

} // namespace vorlex
