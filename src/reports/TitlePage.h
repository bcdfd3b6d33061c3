#pragma once

namespace vorlex {

class Session;

/// The opening pages of the report: the title page, then the basic
/// information pages.
void VorlexCPrintTitlePageAndBasicInfo(Session& session);

/// The title page: the program's title, the extra mortalities when they
/// were asked for, where the program comes from, the project and the date
/// of the run, the days of the automatic controls with their page, and the
/// references.
void VorlexCGoSub1910PrintTitlePage(Session& session);

} // namespace vorlex
