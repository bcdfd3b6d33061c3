#pragma once

#include "support/TestSession.h"

#include <cstdlib>
#include <string>
#include <sys/wait.h>

namespace vorlex::testing {

struct CliResult {
  int status = -1;
  std::string out, err;
};

/// Runs the command-line program with the given arguments (quoted as a
/// shell would need them), keeping its output in files of a folder.
inline CliResult runCli(const std::string& arguments, const std::string& folder) {
  const std::string out = folder + "/.stdout", err = folder + "/.stderr";
  const std::string command = std::string(VORLEX_CLI) + " " + arguments + " >'" + out + "' 2>'" + err + "'";
  const int raw = std::system(command.c_str());
  CliResult result{WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, fileText(out), fileText(err)};
  std::remove(out.c_str());
  std::remove(err.c_str());
  return result;
}

/// A text quoted for the shell.
inline std::string quoted(const std::string& text) {
  std::string result = "'";
  for (char c : text)
    result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

} // namespace vorlex::testing
