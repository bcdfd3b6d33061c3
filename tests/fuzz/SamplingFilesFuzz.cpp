// The two files of the sampling buttons: the first byte of an input picks
// the reader (stage-to-stage file, sampling file of five or of three items)
// and the number of stages of the table; the rest is the file's text.
#include "fuzz/FuzzSupport.h"
#include "sampling/SamplingFiles.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0)
    return 0;
  const int choice = data[0];
  const std::string text(vorlex::fuzz::textOf(data + 1, size - 1));
  return vorlex::fuzz::fuzzOne([&] {
    vorlex::SamplingTables tables;
    const int nrStage = 3 + choice / 3 % 9; // 3..11 stages, as tables have
    switch (choice % 3) {
    case 0: vorlex::readStageTimesText(text, nrStage, tables); break;
    case 1: vorlex::readSamplingText(text, vorlex::SampleRecordForm::FiveItems, tables); break;
    default: vorlex::readSamplingText(text, vorlex::SampleRecordForm::ThreeItems, tables); break;
    }
  });
}
