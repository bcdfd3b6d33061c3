// The data file with the consumption block C(x,j), read and projected.
#include "fuzz/DataFileProjection.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return vorlex::fuzz::readAndProject(data, size, true);
}
