#pragma once

#include "charts/ChartRecipe.h"

namespace vorlex::recipes {

// The recipe of each chart of the main form; grafform uses them too.

extern const ChartRecipe StageStructure;
extern const ChartRecipe LogStageStructure;
extern const ChartRecipe StageSizeWithTotalAdults;
extern const ChartRecipe StageGrowthRate;
extern const ChartRecipe StageGrowthRatewithR;

extern const ChartRecipe TotalSizeAndWeighedSize;
extern const ChartRecipe LogTotalAndWeighed;
extern const ChartRecipe TotalGrowthRate;
extern const ChartRecipe VulnerableAndTotal;
extern const ChartRecipe LogVulnerableAndTotal;

extern const ChartRecipe Sij;
extern const ChartRecipe Gij;
extern const ChartRecipe Dij;
extern const ChartRecipe Fij;
extern const ChartRecipe Lx;
extern const ChartRecipe Mx;
extern const ChartRecipe LxMx;

extern const ChartRecipe TotalConsume;
extern const ChartRecipe TotalLogConsume;
extern const ChartRecipe TotalConsumeAndPopu;
extern const ChartRecipe TotalConsumeAndPopuInLog;
extern const ChartRecipe TotalConsumeAfterRelease;
extern const ChartRecipe TotalLogConsumeAfterRelease;

extern const ChartRecipe TotalDifference;
extern const ChartRecipe LogTotalDifference;
extern const ChartRecipe TotalDeath;
extern const ChartRecipe LogTotalDeath;
extern const ChartRecipe StageDeath;
extern const ChartRecipe LogStageDeath;
extern const ChartRecipe CumuStageDeath;
extern const ChartRecipe LogCumuStageDeath;
extern const ChartRecipe TotalDeathDuetoPredation;
extern const ChartRecipe LogTotalDeathDuetoPredation;

} // namespace vorlex::recipes
