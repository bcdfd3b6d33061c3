#include "cli/DataFileCheck.h"

#include <filesystem>
#include <fstream>

namespace vorlex::cli {

std::optional<std::string> dataFileProblem(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status))
    return "the data file '" + path + "' does not exist";
  if (fs::is_directory(status))
    return "'" + path + "' is a folder, not a data file";
  if (!fs::is_regular_file(status))
    return "'" + path + "' is not a regular file";
  std::ifstream in(path, std::ios::binary);
  if (!in)
    return "the data file '" + path + "' can't be read (no permission?)";
  return std::nullopt;
}

} // namespace vorlex::cli
