#include "ControlDisplay.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include <string>

namespace vorlex::ui {

void showControl(QWidget& widget, const ControlState& state, bool enabled, const QString& hint) {
  const QString caption = QString::fromStdString(state.caption);
  if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
    if (box->text() != caption)
      box->setText(caption);
  } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->setText(caption);
  } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
    group->setTitle(caption);
  } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(caption);
  }
  widget.setEnabled(enabled);
  widget.setToolTip(hint);
  widget.setVisible(state.visible);
}

void showFormControls(QWidget& window, const Session& session, const char* form) {
  const std::string prefix = std::string(form) + ".";
  for (const auto& [name, state] : session.controls) {
    if (name.rfind(prefix, 0) != 0)
      continue;
    if (auto* widget = window.findChild<QWidget*>(QString::fromStdString(name.substr(prefix.size()))))
      showControl(*widget, state);
  }
}

} // namespace vorlex::ui
