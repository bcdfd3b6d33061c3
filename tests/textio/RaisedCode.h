#pragma once

#include "textio/RuntimeError.h"

#include <gtest/gtest.h>

namespace vorlex::testing_support {

/// The error code an action stops with; 0 (and a test failure) if it
/// finishes without a RuntimeError.
template <typename Action> int raisedCode(Action&& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  ADD_FAILURE() << "expected a RuntimeError";
  return 0;
}

} // namespace vorlex::testing_support
