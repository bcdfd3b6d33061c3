// The data file without consumption data, read and projected.
#include "fuzz/DataFileProjection.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return vorlex::fuzz::readAndProject(data, size, false);
}
