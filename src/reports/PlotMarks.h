#pragma once

#include <string>

namespace vorlex {

class Session;
struct Model;

// The machinery of the character plots: a row is PlotLine, 56 columns
// between two frame marks; a value is a mark at a column, 0 to 53 usable,
// and a column where several marks meet shows their count.

/// A plot row without marks: "+", 54 blanks, "+".
inline const std::string kEmptyPlotRow = "+" + std::string(54, ' ') + "+";

/// Sets PlotMark at column PlotPos + 1 of PlotLine. Nothing for a PlotPos
/// below 0; beyond 53 a ">" goes to column 55 and the mark to column 54.
/// A second mark in a column shows "2", the tenth "0": the last digit of
/// the count.
void VorlexEGosub1320(Session& session);

/// Empties the counts of columns 1..55 for a new row.
void clearPlotHits(Model& m);
/// The column of a value on the logarithmic scale, ten columns a decade:
/// 10 ln(v + 1) / ln(10), rounded ties to even.
double logPlotPosition(double value);
/// Sets a mark at a position.
void markAt(Session& session, double position, const std::string& mark);

/// The head of a plot page: a form feed, FigNumber counted up, the project
/// and " Fig. n . " with the title.
void printPlotHead(Session& session, const std::string& title);

/// The label and axis lines of the plots.
void VorlexEGosub680(Session& session);
void VorlexEGosub700(Session& session);
void VorlexEGosub1220(Session& session);
void VorlexEGosub1340(Session& session);
void VorlexEGosub1360(Session& session);
void VorlexEGosub1380(Session& session);
void VorlexEGosub1400(Session& session);
void VorlexEGosub1710(Session& session);

} // namespace vorlex
