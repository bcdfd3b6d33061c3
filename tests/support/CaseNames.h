#pragma once

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace vorlex::testing {

/// Names each test of a table after its case's `name`, every character
/// that may not stand in a test name made '_'.
struct CaseName {
  template <typename Case> std::string operator()(const ::testing::TestParamInfo<Case>& info) const {
    std::string name = info.param.name;
    for (char& ch : name)
      if (!std::isalnum(static_cast<unsigned char>(ch)))
        ch = '_';
    return name;
  }
};

} // namespace vorlex::testing
