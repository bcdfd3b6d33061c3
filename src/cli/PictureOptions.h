#pragma once

#include <string>
#include <vector>

namespace vorlex::cli {

/// Where and how large the pictures of a run's charts are saved.
struct PictureOptions {
  std::string folder;
  int width = 800;
  int height = 600;
  /// Dots per inch: written into the pictures, and the scale at which text
  /// and lines are drawn, so that a 12 point title is 12 points on paper.
  int dpi = 96;
};

/// `vorlex-gui --save-charts DIR [--size WxH] [--dpi N] [the options of vorlex run]`.
extern const char* const kSaveChartsUsage;

/// Whether the command line asks for the charts to be saved.
bool asksToSaveCharts(const std::vector<std::string>& args);

/// Takes --save-charts DIR, --size WxH and --dpi N out of `args`, which keeps
/// the options of the run. A value that can't be used, or no --save-charts,
/// throws AnswerError. Sizes run from 16 to 20000 pixels, resolutions from
/// 24 to 2400 dots per inch.
PictureOptions takePictureOptions(std::vector<std::string>& args);

} // namespace vorlex::cli
