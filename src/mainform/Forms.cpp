#include "mainform/Forms.h"

#include "model/Session.h"

namespace vorlex {

void showForm(Session& session, const std::string& form) { session.controls[form].visible = true; }

void hideForm(Session& session, const std::string& form) { session.controls[form].visible = false; }

bool formShows(const Session& session, const std::string& form) {
  const auto found = session.controls.find(form);
  return found != session.controls.end() && found->second.visible;
}

} // namespace vorlex
