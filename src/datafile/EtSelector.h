#pragma once

#include "model/Model.h"

#include <string>

namespace vorlex {

class Session;

inline constexpr const char* kEtTwoPeriodsText =
    "Descrip: b, c, d, e. There are b (2) ETs. 0-c (25) day, ET is d (25). After that, ET is e (35).";
inline constexpr const char* kEtThreePeriodsText =
    "Descrip: b, c, d, e, f, g. There are b ETs. 0-c day, ET is d. c+1-e day, ET is f. After that, ET is g.";
inline constexpr const char* kEtLogisticText =
    "Description: b (20), c (1), d (-0.2) (<0), a (10) for the economical threshold equation "
    "y=a+b/[1+c*exp(d*x)] (logistic curve)";
inline constexpr const char* kEtLogisticWithCxjText =
    "Description: b, c, d (<0), a for the economical threshold equation y=a+b/[1+c*exp(d*x)] "
    "(logistic curve)";

/// Which form a selector item names; the logistic text differs between the
/// two forms of the file, and each reader knows only its own.
EtForm classifyEtSelector(const std::string& selector, bool withCxj);
/// A name of the form for people to read.
std::string etFormName(EtForm form);

/// ET(t) = a + b / (1 + c exp(d t)) of the logistic description, with
/// a, b, c, d in EtA, EtB, EtC, EtD, for days 0..SimTime+1.
void expandLogisticEt(Model& m);

/// Reads the ET selector and its parameters and fills EtDay for days
/// 0..SimTime+1; a selector of no known form leaves EtDay as it is.
void readEtFunction(Session& session, bool withCxj);

} // namespace vorlex
