#pragma once

namespace vorlex {

class Session;

/// One age-stage page: ReportMatrix under ReportMatrixTitle, a column for
/// each stage, " -  " at the ages outside a stage.
void VorlexCGosub1600(Session& session);

/// The four age-stage pages of the basic information: fecundity, growth and
/// development coefficients to four places, and the initial population.
/// The development page names the columns of the last immature stage's two
/// ways out ("E->F", "E->M") and blanks the male column; the stage table is
/// restored afterwards.
void PrintAgeStagePages(Session& session);

} // namespace vorlex
