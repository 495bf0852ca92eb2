// Free-form input: a line cut into items.
#include <algorithm>

#include "common/free_format.h"
#include "common/number_text.h"

namespace tarvo {

namespace {

// Repeat counts beyond this are taken as a malformed record rather than a request for memory.
constexpr long long kMaxRepeat = 100'000;

bool is_blank(char c) { return c == ' ' || c == '\t'; }

bool ends_item(std::string_view line, std::size_t pos) {
  return pos == line.size() || is_blank(line[pos]) || line[pos] == ',' || line[pos] == '/';
}

// Reads a quoted item starting at the quote; a doubled quote stands for one quote character.
bool read_quoted(std::string_view line, std::size_t& pos, std::string& text) {
  const char quote = line[pos++];
  while (pos < line.size()) {
    if (line[pos] != quote) {
      text += line[pos++];
    } else if (pos + 1 < line.size() && line[pos + 1] == quote) {
      text += quote;
      pos += 2;
    } else {
      ++pos;
      return ends_item(line, pos);
    }
  }
  return false;  // unterminated
}

void read_bare(std::string_view line, std::size_t& pos, std::string& text) {
  const std::size_t start = pos;
  while (!ends_item(line, pos)) ++pos;
  text.assign(line.substr(start, pos - start));
}

// The count of an "r*" prefix, or 0 when the item has none (pos is then left alone).
bool read_repeat(std::string_view line, std::size_t& pos, long long& count) {
  count = 0;
  std::size_t end = pos;
  while (end < line.size() && line[end] >= '0' && line[end] <= '9') ++end;
  if (end == pos || end == line.size() || line[end] != '*') return true;
  long long value = 0;
  if (!parse_integer_text(line.substr(pos, end - pos), value) || value < 1 || value > kMaxRepeat) {
    return false;
  }
  count = value;
  pos = end + 1;
  return true;
}

bool read_item(std::string_view line, std::size_t& pos, std::vector<FreeItem>& items,
               std::size_t wanted) {
  long long count = 0;
  if (!read_repeat(line, pos, count)) return false;
  FreeItem item;
  if (count > 0 && ends_item(line, pos)) {
    item.null = true;  // "r*" alone: r null items
  } else if (line[pos] == '\'' || line[pos] == '"') {
    item.quoted = true;
    if (!read_quoted(line, pos, item.text)) return false;
  } else {
    read_bare(line, pos, item.text);
  }
  const std::size_t copies = count > 0 ? static_cast<std::size_t>(count) : 1;
  items.insert(items.end(), std::min(copies, wanted - items.size()), item);
  return true;
}

}  // namespace

bool split_free_items(std::string_view line, std::vector<FreeItem>& items, bool& ended,
                      std::size_t wanted) {
  items.clear();
  ended = false;
  bool awaiting_value = true;  // at the start or after a comma: a further comma means a null item
  std::size_t pos = 0;
  while (items.size() < wanted) {
    while (pos < line.size() && is_blank(line[pos])) ++pos;
    if (pos == line.size()) return true;
    if (line[pos] == '/') {
      ended = true;
      return true;
    }
    if (line[pos] == ',') {
      if (awaiting_value) items.push_back(FreeItem{.text = {}, .quoted = false, .null = true});
      awaiting_value = true;
      ++pos;
      continue;
    }
    if (!read_item(line, pos, items, wanted)) return false;
    awaiting_value = false;
  }
  return true;
}

bool parse_free_real(std::string_view text, double& value) {
  NumberText number;
  return parse_number_text(text, number) && number_to_double(number, value);
}

bool parse_free_integer(std::string_view text, long long& value) {
  return parse_integer_text(text, value);
}

}  // namespace tarvo
