#pragma once

namespace vorlex {

class Session;

/// Writes the efficacy of a treatment on each day, the session's efficacy
/// rows, as the figure file BaseName + "-15-Fig-Efficacy.txt": a quoted
/// title, a heading, and one row per treatment day with the run's weighed
/// insect days, its ratios, its sizes before and after, and the three
/// efficacies in per cent. A value that could not be worked out is an
/// empty column.
void WriteEfficacyFile(Session& session);

} // namespace vorlex
