#pragma once

#include <optional>
#include <string>

namespace vorlex::cli {

/// Why a data file can't be used, in plain words, before anything is asked
/// or written: it does not exist, is a folder, or can't be read. Nothing
/// when it can be opened for reading.
std::optional<std::string> dataFileProblem(const std::string& path);

} // namespace vorlex::cli
