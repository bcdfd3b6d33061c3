// A total-predation file, read as the run under predation reads it, with a
// predation coefficient of .5 so that the scaled copy is written too.
#include "exports/TotalPredation.h"
#include "fuzz/FuzzSupport.h"
#include "model/Session.h"
#include "textio/SilentPrompter.h"

namespace {

class PredationAnswers : public vorlex::SilentPrompter {
public:
  std::string file;
  std::string chooseFileToOpen(const std::string&) override { return file; }
  std::string askValue(const std::string&, const std::string&, const std::string&) override { return ".5"; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const vorlex::fuzz::Sandbox sandbox;
  return vorlex::fuzz::fuzzOne([&] {
    PredationAnswers answers;
    answers.file = sandbox.write("predation.txt", vorlex::fuzz::textOf(data, size));
    vorlex::Session session(answers);
    session.model().SimTime = 30;
    vorlex::ReadTotalPredation(session);
  });
}
