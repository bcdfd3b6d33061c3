#pragma once

#include "textio/AnswerLines.h"
#include "textio/RuntimeError.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace vorlex::fuzz {

/// The bytes libFuzzer gives, as text.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Runs one input through `work`. The ends a bad input may rightly come to
/// (a run-time error, a deliberate end of the program, an answer that can't
/// be used) are the input's answer; anything else escapes, and libFuzzer
/// reports it with the input that caused it.
template <typename Work> int fuzzOne(Work&& work) {
  try {
    work();
  } catch (const RuntimeError&) {
  } catch (const ProgramEnd&) {
  } catch (const AnswerError&) {
  }
  return 0;
}

/// A folder of the fuzz process's own under the temporary folder, removed
/// when the process ends normally. Every file a target writes goes in it:
/// its files lie one level down, so that a name cut by four characters, as
/// output names are, still stays inside.
class Sandbox {
public:
  Sandbox() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vorlex-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
      std::abort();
    top_ = pattern;
    folder_ = top_ / "files";
    std::filesystem::create_directory(folder_);
  }
  ~Sandbox() {
    std::error_code ignored;
    std::filesystem::remove_all(top_, ignored);
  }
  Sandbox(const Sandbox&) = delete;
  Sandbox& operator=(const Sandbox&) = delete;

  /// The path of a name in the folder. A name that is no plain file name
  /// ("..", "a/b", "") is made one, so that nothing lands outside.
  std::string path(std::string name) const {
    name = name.substr(name.find_last_of('/') + 1);
    if (name.empty() || name == "." || name == "..")
      name = "unnamed";
    return (folder_ / name).string();
  }
  /// Empties the folder.
  void clear() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_))
      std::filesystem::remove_all(entry.path());
  }
  /// Writes text to a file of the folder.
  std::string write(const std::string& name, std::string_view text) const {
    const std::string to = path(name);
    std::ofstream(to, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
    return to;
  }
  /// Copies a file of the source tree into the folder.
  std::string copy(const std::string& fromSource) const {
    const std::filesystem::path from = std::filesystem::path(VORLEX_SOURCE_DIR) / fromSource;
    const std::string to = path(from.filename().string());
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
    return to;
  }

private:
  std::filesystem::path top_;
  std::filesystem::path folder_;
};

} // namespace vorlex::fuzz
