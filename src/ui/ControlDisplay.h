#pragma once

#include "model/Session.h"

#include <QString>

class QWidget;

namespace vorlex::ui {

/// Shows a control's state on its widget: the caption as the text of a
/// text box, button, frame or label, the hint as the tool tip, and whether
/// it is enabled and visible. A text box keeps its cursor when its text
/// does not change.
void showControl(QWidget& widget, const ControlState& state, bool enabled, const QString& hint);

inline void showControl(QWidget& widget, const ControlState& state) {
  showControl(widget, state, state.enabled, QString::fromStdString(state.hint));
}

/// Shows the states of one form's controls (those named "FORM.NAME" in the
/// session) on the widgets of `window` named NAME; a control without a
/// widget is passed over.
void showFormControls(QWidget& window, const Session& session, const char* form);

} // namespace vorlex::ui
