// Fixed-column input records read by an edit list.
#include "common/edit_list.h"
#include "common/number_text.h"
#include "common/record_format.h"

namespace tarvo {

namespace {

// Under bn every blank inside a numeric field is dropped.
std::string without_blanks(std::string_view field) {
  std::string out;
  for (char c : field) {
    if (c != ' ') out += c;
  }
  return out;
}

// fw.d and ew.d: a field without a decimal point holds an integer scaled by 10^-d, and without an
// exponent the scale factor divides by 10^k.
bool read_scaled_real(std::string_view field, int decimals, int scale, double& value) {
  const std::string text = without_blanks(field);
  if (text.empty()) {
    value = 0.0;
    return true;
  }
  NumberText number;
  if (!parse_number_text(text, number)) return false;
  if (!number.has_point) number.exponent -= decimals;
  if (!number.has_exponent) number.exponent -= scale;
  return number_to_double(number, value);
}

bool read_logical(std::string_view field, long long& value) {
  std::size_t pos = field.find_first_not_of(' ');
  if (pos == std::string_view::npos) {
    value = 0;
    return true;
  }
  if (field[pos] == '.') ++pos;
  if (pos == field.size()) return false;
  const char c = field[pos];
  if (c != 'T' && c != 't' && c != 'F' && c != 'f') return false;
  value = (c == 'T' || c == 't') ? 1 : 0;
  return true;
}

// A read value before the text views are made: `text` indexes InputRecord::texts.
struct ReadValue {
  enum class Kind { integer, real, text } kind;
  long long integer = 0;
  double real = 0.0;
  std::size_t text = 0;
};

struct RecordReader {
  std::string_view line;
  std::size_t column = 0;  // 0-based column of the next field
  int scale = 0;
  std::vector<std::string>& texts;
  std::vector<ReadValue> values;
};

// The next `width` columns, as blanks where the line has ended; width 0 takes the rest of the line.
std::string take_field(RecordReader& reader, int width) {
  std::string field;
  if (reader.column < reader.line.size()) field = reader.line.substr(reader.column, width > 0 ? width : std::string_view::npos);
  if (width > 0) {
    field.resize(width, ' ');
    reader.column += width;
  } else {
    reader.column += field.size();
  }
  return field;
}

bool read_data(RecordReader& reader, const EditNode& node) {
  const std::string field = take_field(reader, node.width);
  ReadValue value{.kind = ReadValue::Kind::integer};
  switch (node.kind) {
    case EditKind::text:
      value.kind = ReadValue::Kind::text;
      value.text = reader.texts.size();
      reader.texts.push_back(field);
      break;
    case EditKind::integer:
      if (!read_integer_field(field, value.integer)) return false;
      break;
    case EditKind::logical:
      if (!read_logical(field, value.integer)) return false;
      break;
    default:
      value.kind = ReadValue::Kind::real;
      if (!read_scaled_real(field, node.digits, reader.scale, value.real)) return false;
      break;
  }
  reader.values.push_back(value);
  return true;
}

bool read_nodes(RecordReader& reader, const std::vector<EditNode>& nodes);

bool read_node(RecordReader& reader, const EditNode& node) {
  switch (node.kind) {
    case EditKind::blanks:
      reader.column += node.width;
      return true;
    case EditKind::literal:
      reader.column += node.text.size();
      return true;
    case EditKind::new_line:
      // One line is all there is: what follows a slash reads as a blank record.
      reader.line = {};
      reader.column = 0;
      return true;
    case EditKind::scale:
      reader.scale = node.scale;
      return true;
    case EditKind::colon:
    case EditKind::blank_null:
      return true;
    case EditKind::group:
      for (int r = 0; r < node.repeat; ++r) {
        if (!read_nodes(reader, node.group)) return false;
      }
      return true;
    default:
      for (int r = 0; r < node.repeat; ++r) {
        if (!read_data(reader, node)) return false;
      }
      return true;
  }
}

bool read_nodes(RecordReader& reader, const std::vector<EditNode>& nodes) {
  for (const EditNode& node : nodes) {
    if (!read_node(reader, node)) return false;
  }
  return true;
}

}  // namespace

bool read_record(std::string_view edit_list, std::string_view line, InputRecord& record) {
  record.texts.clear();
  record.items.clear();
  std::vector<EditNode> nodes;
  if (!parse_edit_list(edit_list, nodes)) return false;
  RecordReader reader{.line = line, .column = 0, .scale = 0, .texts = record.texts, .values = {}};
  if (!read_nodes(reader, nodes)) return false;
  // The views are made only now that `texts` no longer grows.
  for (const ReadValue& value : reader.values) {
    switch (value.kind) {
      case ReadValue::Kind::integer:
        record.items.emplace_back(value.integer);
        break;
      case ReadValue::Kind::real:
        record.items.emplace_back(value.real);
        break;
      case ReadValue::Kind::text:
        record.items.emplace_back(std::string_view(record.texts[value.text]));
        break;
    }
  }
  return true;
}

bool read_real_field(std::string_view field, double& value) {
  return read_scaled_real(field, 0, 0, value);
}

bool read_integer_field(std::string_view field, long long& value) {
  const std::string text = without_blanks(field);
  if (text.empty()) {
    value = 0;
    return true;
  }
  return parse_integer_text(text, value);
}

}  // namespace tarvo
