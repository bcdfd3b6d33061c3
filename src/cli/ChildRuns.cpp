#include "cli/ChildRuns.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <map>
#include <string>
#include <vector>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace vorlex::cli {

std::string ownExecutable() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path - 1);
  if (length <= 0)
    return "/proc/self/exe";
  return std::string(path, static_cast<std::size_t>(length));
}

namespace {

// The environment of the runs: this one's, and unless it says otherwise,
// tables of a run from 32 KiB up take pages of their own, which the system
// hands out zeroed when first touched: a run of a few days touches a small
// part of them, and a short run costs a fifth less processor time.
char** childEnvironment() {
  static std::vector<std::string> words;
  static std::vector<char*> pointers;
  if (pointers.empty()) {
    bool given = false;
    for (char** entry = environ; *entry; ++entry) {
      words.emplace_back(*entry);
      given = given || words.back().rfind("MALLOC_MMAP_THRESHOLD_=", 0) == 0;
    }
    if (!given)
      words.emplace_back("MALLOC_MMAP_THRESHOLD_=32768");
    for (std::string& word : words)
      pointers.push_back(word.data());
    pointers.push_back(nullptr);
  }
  return pointers.data();
}

// Starts one child; its pid, or 0 when it could not be started.
pid_t start(const std::string& program, const ChildRun& child) {
  std::vector<std::string> words{program};
  words.insert(words.end(), child.args.begin(), child.args.end());
  std::vector<char*> argv;
  for (std::string& word : words)
    argv.push_back(word.data());
  argv.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, child.errorFile.c_str(),
                                   O_WRONLY | O_CREAT | O_TRUNC, 0644);
  pid_t pid = 0;
  const int failed = posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), childEnvironment());
  posix_spawn_file_actions_destroy(&actions);
  return failed ? 0 : pid;
}

} // namespace

void runChildren(const std::string& program, std::vector<ChildRun>& children, int jobs,
                 const std::function<void(std::size_t)>& ended) {
  std::map<pid_t, std::size_t> running;
  std::size_t next = 0;
  while (next < children.size() || !running.empty()) {
    while (next < children.size() && static_cast<int>(running.size()) < jobs) {
      const pid_t pid = start(program, children[next]);
      if (pid == 0) {
        children[next].status = 127;
        ended(next);
      } else {
        running[pid] = next;
      }
      ++next;
    }
    if (running.empty())
      continue;
    int raw = 0;
    const pid_t pid = waitpid(-1, &raw, 0);
    if (pid < 0) {
      if (errno == EINTR)
        continue;
      break; // no children left to wait for
    }
    const auto found = running.find(pid);
    if (found == running.end())
      continue;
    ChildRun& child = children[found->second];
    if (WIFEXITED(raw))
      child.status = WEXITSTATUS(raw);
    else if (WIFSIGNALED(raw)) {
      child.status = 128 + WTERMSIG(raw);
      child.signal = WTERMSIG(raw);
    }
    const std::size_t index = found->second;
    running.erase(found);
    ended(index);
  }
}

} // namespace vorlex::cli
