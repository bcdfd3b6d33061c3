#include "textio/ItemReader.h"

#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

#include <fstream>
#include <sstream>

namespace vorlex {

namespace {
bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\r' || c == '\n'; }
} // namespace

ItemReader::ItemReader(std::string content) : content_(std::move(content)) {}

ItemReader ItemReader::fromFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in)
    raise(ErrorCode::FileNotFound, "File: " + path);
  std::ostringstream all;
  all << in.rdbuf();
  return ItemReader(all.str());
}

bool ItemReader::atLineEnd() const {
  return position_ < content_.size() && isLineEnd(content_[position_]);
}

void ItemReader::skipBlanks() {
  while (position_ < content_.size() && isBlank(content_[position_]))
    ++position_;
}

void ItemReader::skipSeparatorsBefore() {
  while (position_ < content_.size()) {
    const char c = content_[position_];
    if (isBlank(c)) {
      ++position_;
    } else if (isLineEnd(c)) {
      consumeDelimiter();
    } else {
      break;
    }
  }
}

// Consumes one comma, or one line end (CR LF, CR or LF), if it is next.
void ItemReader::consumeDelimiter() {
  if (position_ >= content_.size())
    return;
  const char c = content_[position_];
  if (c == ',') {
    ++position_;
  } else if (c == '\r') {
    ++position_;
    if (position_ < content_.size() && content_[position_] == '\n')
      ++position_;
    ++currentLine_;
  } else if (c == '\n') {
    ++position_;
    ++currentLine_;
  }
}

bool ItemReader::atEnd() const {
  for (std::size_t i = position_; i < content_.size(); ++i)
    if (!isBlank(content_[i]) && !isLineEnd(content_[i]))
      return false;
  return true;
}

ItemReader::RawItem ItemReader::next(Kind kind) {
  skipSeparatorsBefore();
  ++itemNumber_;
  itemLine_ = currentLine_;
  if (position_ >= content_.size())
    raise(ErrorCode::InputPastEndOfFile);

  RawItem item;
  if (content_[position_] == '"') {
    item.quoted = true;
    const std::size_t close = content_.find('"', position_ + 1);
    const std::size_t end = close == std::string::npos ? content_.size() : close;
    item.text = content_.substr(position_ + 1, end - position_ - 1);
    position_ = close == std::string::npos ? end : close + 1;
    // Whatever stands between the closing quote and the delimiter is dropped.
    while (position_ < content_.size() && content_[position_] != ',' && !atLineEnd())
      ++position_;
    consumeDelimiter();
    return item;
  }

  const std::size_t start = position_;
  while (position_ < content_.size() && content_[position_] != ',' && !atLineEnd() &&
         !(kind == Kind::Number && isBlank(content_[position_])))
    ++position_;
  item.text = content_.substr(start, position_ - start);
  while (!item.text.empty() && isBlank(item.text.back()))
    item.text.pop_back();
  skipBlanks();
  consumeDelimiter();
  return item;
}

std::string ItemReader::readText() { return next(Kind::Text).text; }

double ItemReader::readNumber() { return numberEntry(next(Kind::Number).text); }

std::int16_t ItemReader::readInteger() { return toInt16(readNumber()); }

Value ItemReader::readValue() {
  RawItem item = next(Kind::Text);
  if (!item.quoted && isNumericText(item.text))
    return Value(numberEntry(item.text));
  return Value(std::move(item.text));
}

} // namespace vorlex
