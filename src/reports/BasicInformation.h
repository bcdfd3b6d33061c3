#pragma once

namespace vorlex {

class Session;

/// The basic information pages: the project, the life table by age, the
/// stages, the initial population and its age distribution, the four
/// age-stage pages and, when the data file has controls, their page.
void VorlexCGosub100PrintBasicInf(Session& session);

} // namespace vorlex
