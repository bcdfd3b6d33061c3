#include "cli/PictureOptions.h"

#include "cli/AnswerPrompter.h"

#include <algorithm>
#include <charconv>

namespace vorlex::cli {

const char* const kSaveChartsUsage =
    "  vorlex-gui --save-charts DIR [--size WxH] [--dpi N] DATAFILE [the options of vorlex run]\n"
    "      Runs the session of 'vorlex run' without a window and saves every chart\n"
    "      of the run's chart cycle and of the large graphs in DIR, as PNG and SVG,\n"
    "      named by number and title. A chart that can't be drawn is skipped with\n"
    "      a line that says why.\n"
    "      --size WxH     picture size in pixels (default 800x600)\n"
    "      --dpi N        resolution in dots per inch (default 96); text and lines\n"
    "                     are drawn to scale for it\n";

namespace {

constexpr int kSmallestSide = 16, kLargestSide = 20000;
constexpr int kLowestDpi = 24, kHighestDpi = 2400;

/// A whole number of the text as a whole, within its bounds.
bool wholeNumber(std::string_view text, int low, int high, int& value) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && stop == end && value >= low && value <= high;
}

void takeSize(const std::string& text, PictureOptions& options) {
  const std::size_t by = text.find_first_of("xX");
  const std::string_view whole(text);
  if (by == std::string::npos ||
      !wholeNumber(whole.substr(0, by), kSmallestSide, kLargestSide, options.width) ||
      !wholeNumber(whole.substr(by + 1), kSmallestSide, kLargestSide, options.height))
    throw AnswerError("--size wants WIDTHxHEIGHT in pixels, each from " + std::to_string(kSmallestSide) +
                      " to " + std::to_string(kLargestSide) + ", not '" + text + "'");
}

void takeDpi(const std::string& text, PictureOptions& options) {
  if (!wholeNumber(text, kLowestDpi, kHighestDpi, options.dpi))
    throw AnswerError("--dpi wants a whole number from " + std::to_string(kLowestDpi) + " to " +
                      std::to_string(kHighestDpi) + ", not '" + text + "'");
}

} // namespace

bool asksToSaveCharts(const std::vector<std::string>& args) {
  return std::find(args.begin(), args.end(), "--save-charts") != args.end();
}

PictureOptions takePictureOptions(std::vector<std::string>& args) {
  PictureOptions options;
  bool asked = false;
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    const bool picture = arg == "--save-charts" || arg == "--size" || arg == "--dpi";
    if (!picture) {
      rest.push_back(arg);
      // The value of a run option is never one of ours: --answer '--dpi=3'.
      if (i + 1 < args.size() && arg.starts_with("--") && arg != "--help")
        rest.push_back(args[++i]);
      continue;
    }
    if (i + 1 == args.size())
      throw AnswerError(arg + " wants a value");
    const std::string& value = args[++i];
    if (arg == "--save-charts") {
      if (value.empty())
        throw AnswerError("--save-charts wants a folder");
      options.folder = value;
      asked = true;
    } else if (arg == "--size") {
      takeSize(value, options);
    } else {
      takeDpi(value, options);
    }
  }
  if (!asked)
    throw AnswerError("no --save-charts DIR given");
  args = std::move(rest);
  return options;
}

} // namespace vorlex::cli
