#pragma once

#include <array>
#include <string_view>

namespace vorlex {

/// The twenty sayings the main form shows two of, for a moment's thought
/// while a table loads.
const std::array<std::string_view, 20>& sayings();

} // namespace vorlex
