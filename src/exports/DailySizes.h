#pragma once

#include <string>
#include <vector>

namespace vorlex {

class Session;

/// The total and weighed size of each day of a run, with its time in time
/// units: what a batch of runs gathers from each run for its band.
struct DailySizes {
  std::vector<double> time;
  std::vector<double> total;
  std::vector<double> weighed;
};

/// Writes days 0..SimTime of the finished run of a session to a file, one
/// line a day: time, total size, weighed size, comma-separated, each number
/// in its shortest form that reads back to the same value.
void writeDailySizes(Session& session, const std::string& path);

/// Reads a file that writeDailySizes wrote; File not found when it can't
/// be read, Input past end of file when a line is cut short.
DailySizes readDailySizes(const std::string& path);

} // namespace vorlex
