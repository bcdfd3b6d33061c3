#pragma once

namespace vorlex {

class Session;

// One writer for each figure file that SaveGraphicData writes; each opens,
// fills and closes its file.

// Stage and vulnerable sizes, shifted by ReleaseDate.
void writeStageSizeFile(Session& session);         // 1A
void writeStageSizePlusOneFile(Session& session);  // 1C
void writeLogStageSizeFile(Session& session);      // 1B
void writeVulnerableSizeFile(Session& session);    // 4A
void writeLogVulnerableSizeFile(Session& session); // 4B

// Totals, never shifted.
void writeTotalSizeFile(Session& session);                // 2A
void writeTotalSizePlusOneFile(Session& session);         // 2C
void writeLogTotalSizeFile(Session& session);             // 2B
void writeCostAndHarvestFile(Session& session);           // 14
void writeConsumptionFile(Session& session);              // 9
void writeConsumptionAndPopulationFile(Session& session); // 9a
void writeConsumptionPlusOneFile(Session& session);       // 9c

// Growth rates; tiny stage rates are set to 0 in the model.
void writeGrowthRateLnFile(Session& session);  // 3A
void writeGrowthRateLogFile(Session& session); // 3B

} // namespace vorlex
