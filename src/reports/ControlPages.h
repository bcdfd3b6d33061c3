#pragma once

namespace vorlex {

class Session;

/// The page of the predefined controls: a row for each effective day of
/// each control with its stage mortalities. Written only when the
/// automatic rule took no control.
void VorlexCGosub1260(Session& session);

/// The short page of the automatic strategy: the headings of the control
/// page and the intervals between the data file's controls, without rows.
void VorlexCGosub1260AutoControl(Session& session);

/// The weighed size of each day before and after that day's automatic
/// control, the days of a control marked.
void PrintSizeBeforeAndAfterControl(Session& session);

} // namespace vorlex
