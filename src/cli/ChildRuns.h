#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vorlex::cli {

/// One run of this program in a process of its own.
struct ChildRun {
  std::vector<std::string> args; // behind the program's name
  std::string errorFile;         // where its error stream goes; its output is dropped
  int status = -1;               // exit status; -1 until it ended
  int signal = 0;                // the signal that ended it, if one did
  bool succeeded() const { return status == 0 && signal == 0; }
};

/// The path of the running program, to start its twins with.
std::string ownExecutable();

/// Runs every child, at most `jobs` at a time, in their order of start;
/// `ended` is told after each one ends, with its index. A child that cannot
/// be started counts as failed with status 127.
void runChildren(const std::string& program, std::vector<ChildRun>& children, int jobs,
                 const std::function<void(std::size_t)>& ended);

} // namespace vorlex::cli
