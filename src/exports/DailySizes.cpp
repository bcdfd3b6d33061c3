#include "exports/DailySizes.h"

#include "model/Session.h"
#include "textio/ItemReader.h"

#include <charconv>

namespace vorlex {

namespace {

std::string exact(double value) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  return std::string(text, end);
}

} // namespace

void writeDailySizes(Session& session, const std::string& path) {
  const Model& m = session.model();
  session.files.openOutput(kWorkFile, path);
  OutputFile& out = session.files.output(kWorkFile);
  for (int t = 0; t <= m.SimTime; ++t)
    out.print(exact(t * m.TimeUnit), ",", exact(m.TotalSize(t)), ",", exact(m.WeighedSize(t)));
  session.files.close(kWorkFile);
}

DailySizes readDailySizes(const std::string& path) {
  ItemReader in = ItemReader::fromFile(path);
  DailySizes sizes;
  while (!in.atEnd()) {
    sizes.time.push_back(in.readNumber());
    sizes.total.push_back(in.readNumber());
    sizes.weighed.push_back(in.readNumber());
  }
  return sizes;
}

} // namespace vorlex
