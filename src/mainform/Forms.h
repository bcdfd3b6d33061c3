#pragma once

#include <string>

namespace vorlex {

class Session;

// The forms of the program by name. Whether a form shows is kept in
// session.controls under its name, like any control, so that the desktop
// program only has to follow what the handlers decide.
namespace forms {
inline constexpr const char* kMainform = "Mainform";
inline constexpr const char* kLargeGraphs = "grafform";
inline constexpr const char* kCarryingCapacity = "CarryFrm";
inline constexpr const char* kEtAndAt = "ETandAT";
/// The introductions I1..I4.
inline constexpr const char* kIntroductions[] = {"Introfrm", "Intro1", "Intro2", "Intro0"};
inline constexpr const char* kReferences = "Referenc";
inline constexpr const char* kQuiz = "Quiz";
inline constexpr const char* kHowToPrint = "HowToPrint";
/// The closing screen, whose button ends the program.
inline constexpr const char* kClosing = "Endfrm";
/// The check report of a data file.
inline constexpr const char* kCheckData = "CheckDat";
} // namespace forms

void showForm(Session& session, const std::string& form);
void hideForm(Session& session, const std::string& form);
bool formShows(const Session& session, const std::string& form);

} // namespace vorlex
