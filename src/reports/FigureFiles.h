#pragma once

namespace vorlex {

class Session;

/// Writes the figure files of a finished run, one small comma-separated
/// file per figure, named BaseName + "-" + suffix + ".txt": the stage size
/// and vulnerable size files (unless OnlyTotalFigures is "Yes"), the total
/// size files, cost and harvest, with consumption data the consumption
/// files and the total-predation file, and the growth rate files. Stage
/// growth rates below 1E-05 in size are set to 0 in the model on the way.
void SaveGraphicData(Session& session);

/// Opens BaseName + "-" + FigureSuffix + ".txt" as figure file (number 2),
/// replacing a file of that name, and keeps the path in FigureFileName.
void SaveGraphDataGosub1650OpenFile(Session& session);

/// Opens BaseName + FigureFileEnd as matrix file (number 1).
void Life04Gosub3610(Session& session);
/// Heading of a matrix file: "Age," and each stage name with a comma behind.
/// A table of 12 stages stops here with Subscript out of range.
void Life04Gosub3750(Session& session);
/// End line of a matrix file: LastAge + 1, then a 0 for each stage and one
/// more, e.g. "100, 0, 0, 0, 0".
void Life04Gosub3650(Session& session);

} // namespace vorlex
