#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace vorlex::ui {

/// `vorlex-gui --save-charts DIR [--size WxH] [--dpi N] DATAFILE [the options
/// of vorlex run]`: the session of `vorlex run`, said on `out` as it says it,
/// then every chart of the run saved as PNG and SVG in DIR (made when it
/// does not exist), each named on `out`; a chart that can't be drawn is
/// skipped with a line on `out` that says why. Needs a QApplication, on any
/// platform (offscreen is enough). Returns the exit status: 0, 1 for a
/// run-time error of the run or a picture that could not be written, 2 for
/// a command line that can't be used.
int saveChartsCommand(std::vector<std::string> args, std::ostream& out, std::ostream& err);

} // namespace vorlex::ui
