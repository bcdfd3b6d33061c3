#pragma once

namespace vorlex {

class Session;

/// Reads the release block of the data file: the number of releases, the
/// active releases as records, then the unused ones of the ten-release
/// template skipped blindly, nine items each.
void InputAdditionalRelease(Session& session);

/// Reads the control schedule and the closing items of the data file and
/// multiplies each control into the per-day survival of the stages.
void VorlexAGosub1270(Session& session);

} // namespace vorlex
