#include "common/edit_list.h"

namespace tarvo {

namespace {

// Bounds that keep a mistyped list from asking for absurd memory or recursion.
constexpr int kMaxNumber = 100'000;
constexpr int kMaxDepth = 32;

struct Cursor {
  std::string text;  // the list without blanks, letters in lower case outside literals
  std::size_t pos = 0;

  bool at_end() const { return pos >= text.size(); }
  char peek() const { return at_end() ? '\0' : text[pos]; }
};

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Drops blanks and lowers letters outside quoted literals; false on an unterminated literal.
bool normalize(std::string_view list, std::string& out) {
  char quote = 0;
  for (char c : list) {
    if (quote != 0) {
      if (c == quote) quote = 0;  // a doubled quote closes and reopens: the text is kept as is
      out += c;
    } else if (c == '\'' || c == '"') {
      quote = c;
      out += c;
    } else if (c != ' ' && c != '\t') {
      out += (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    }
  }
  return quote == 0;
}

bool read_number(Cursor& cursor, int& value) {
  if (!is_digit(cursor.peek())) return false;
  long long number = 0;
  while (is_digit(cursor.peek())) {
    number = number * 10 + (cursor.text[cursor.pos++] - '0');
    if (number > kMaxNumber) return false;
  }
  value = static_cast<int>(number);
  return true;
}

bool read_literal(Cursor& cursor, std::string& text) {
  const char quote = cursor.text[cursor.pos++];
  while (!cursor.at_end()) {
    const char c = cursor.text[cursor.pos++];
    if (c != quote) {
      text += c;
    } else if (cursor.peek() == quote) {
      text += quote;
      ++cursor.pos;
    } else {
      return true;
    }
  }
  return false;
}

// ".d" after a width; required for f and e, optional (".m") for i.
bool read_decimals(Cursor& cursor, int& digits, bool required) {
  if (cursor.peek() != '.') return !required;
  ++cursor.pos;
  return read_number(cursor, digits);
}

bool read_data_descriptor(Cursor& cursor, char letter, EditNode& node) {
  switch (letter) {
    case 'a':
      node.kind = EditKind::text;
      if (is_digit(cursor.peek())) return read_number(cursor, node.width) && node.width > 0;
      return true;
    case 'i':
      node.kind = EditKind::integer;
      return read_number(cursor, node.width) && read_decimals(cursor, node.digits, false);
    case 'f':
      node.kind = EditKind::fixed;
      return read_number(cursor, node.width) && read_decimals(cursor, node.digits, true);
    case 'e':
      node.kind = EditKind::exponent;
      if (!read_number(cursor, node.width) || node.width == 0 ||
          !read_decimals(cursor, node.digits, true)) {
        return false;
      }
      if (cursor.peek() == 'e') {
        ++cursor.pos;
        return read_number(cursor, node.exponent_digits) && node.exponent_digits > 0;
      }
      return true;
    case 'l':
      node.kind = EditKind::logical;
      return read_number(cursor, node.width) && node.width > 0;
    default:
      return false;
  }
}

bool read_items(Cursor& cursor, std::vector<EditNode>& nodes, int depth);

// One item after its optional count: a group, a scale factor, blanks, slashes or a descriptor.
bool read_counted(Cursor& cursor, int count, bool counted, bool negative, EditNode& node,
                  int depth) {
  const char letter = cursor.text[cursor.pos++];
  if (letter == 'p') {
    if (!counted) return false;
    node.kind = EditKind::scale;
    node.scale = negative ? -count : count;
    return true;
  }
  if (negative) return false;
  if (counted && count == 0) return false;
  node.repeat = counted ? count : 1;
  switch (letter) {
    case '(':
      node.kind = EditKind::group;
      return read_items(cursor, node.group, depth + 1);
    case 'x':
      node.kind = EditKind::blanks;
      node.width = node.repeat;
      node.repeat = 1;
      return true;
    case '/':
      node.kind = EditKind::new_line;
      return true;
    case 'b':
      node.kind = EditKind::blank_null;
      if (counted || cursor.peek() != 'n') return false;
      ++cursor.pos;
      return true;
    default:
      return read_data_descriptor(cursor, letter, node);
  }
}

bool read_item(Cursor& cursor, EditNode& node, int depth) {
  const char c = cursor.peek();
  if (c == '\'' || c == '"') {
    node.kind = EditKind::literal;
    return read_literal(cursor, node.text);
  }
  if (c == ':') {
    ++cursor.pos;
    node.kind = EditKind::colon;
    return true;
  }
  bool negative = false;
  if (c == '-' || c == '+') {
    negative = c == '-';
    ++cursor.pos;
  }
  int count = 0;
  const bool counted = is_digit(cursor.peek());
  if (counted && !read_number(cursor, count)) return false;
  if ((negative || c == '+') && !counted) return false;
  if (cursor.at_end()) return false;
  return read_counted(cursor, count, counted, negative, node, depth);
}

// Reads items up to and including the closing parenthesis.
bool read_items(Cursor& cursor, std::vector<EditNode>& nodes, int depth) {
  if (depth > kMaxDepth) return false;
  while (!cursor.at_end()) {
    const char c = cursor.peek();
    if (c == ')') {
      ++cursor.pos;
      return true;
    }
    if (c == ',') {
      ++cursor.pos;
      continue;
    }
    EditNode node;
    if (!read_item(cursor, node, depth)) return false;
    nodes.push_back(std::move(node));
  }
  return false;
}

}  // namespace

bool is_data_descriptor(EditKind kind) {
  return kind == EditKind::text || kind == EditKind::integer || kind == EditKind::fixed ||
         kind == EditKind::exponent || kind == EditKind::logical;
}

bool parse_edit_list(std::string_view list, std::vector<EditNode>& nodes) {
  nodes.clear();
  Cursor cursor;
  if (!normalize(list, cursor.text) || cursor.peek() != '(') return false;
  ++cursor.pos;
  return read_items(cursor, nodes, 0) && cursor.at_end();
}

}  // namespace tarvo
