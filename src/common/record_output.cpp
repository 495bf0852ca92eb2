// Laid-out output records: the items placed by an edit list.
#include <initializer_list>
#include <type_traits>

#include "common/edit_list.h"
#include "common/record_fields.h"
#include "common/record_format.h"

namespace tarvo {

namespace {

struct RecordWriter {
  std::span<const RecordItem> items;
  std::size_t next = 0;  // the next item to place
  int scale = 0;         // kp stays in force to the end of the record
  bool stopped = false;  // the items ran out at a data descriptor
  std::vector<std::string> lines{std::string()};
};

// The field of one item. An item of the wrong kind for its descriptor fills the field with
// asterisks, except that an integer goes into f and e as a real.
std::string item_field(const EditNode& node, const RecordItem& item, int scale) {
  const int width = node.width;
  const auto* text = std::get_if<std::string_view>(&item);
  const auto* integer = std::get_if<long long>(&item);
  const auto* real = std::get_if<double>(&item);
  const double number = real != nullptr ? *real : integer != nullptr ? static_cast<double>(*integer) : 0.0;
  switch (node.kind) {
    case EditKind::text:
      return text != nullptr ? text_field(*text, width) : asterisks(width > 0 ? width : 1);
    case EditKind::integer:
      return integer != nullptr ? integer_field(*integer, width, node.digits) : asterisks(width);
    case EditKind::fixed:
      return text == nullptr ? fixed_field(number, width, node.digits, scale) : asterisks(width);
    case EditKind::exponent:
      return text == nullptr ? exponent_field(number, width, node.digits, node.exponent_digits, scale)
                             : asterisks(width);
    case EditKind::logical:
      return integer != nullptr ? logical_field(*integer != 0, width) : asterisks(width);
    default:
      return {};
  }
}

void run_nodes(RecordWriter& writer, std::span<const EditNode> nodes);

void run_node(RecordWriter& writer, const EditNode& node) {
  std::string& line = writer.lines.back();
  switch (node.kind) {
    case EditKind::blanks:
      line.append(node.width, ' ');
      return;
    case EditKind::literal:
      line += node.text;
      return;
    case EditKind::new_line:
      writer.lines.insert(writer.lines.end(), node.repeat, std::string());
      return;
    case EditKind::scale:
      writer.scale = node.scale;
      return;
    case EditKind::colon:
      writer.stopped = writer.next == writer.items.size();
      return;
    case EditKind::blank_null:
      return;
    case EditKind::group:
      for (int r = 0; r < node.repeat && !writer.stopped; ++r) run_nodes(writer, node.group);
      return;
    default:
      for (int r = 0; r < node.repeat; ++r) {
        if (writer.next == writer.items.size()) {
          writer.stopped = true;
          return;
        }
        writer.lines.back() += item_field(node, writer.items[writer.next++], writer.scale);
      }
      return;
  }
}

void run_nodes(RecordWriter& writer, std::span<const EditNode> nodes) {
  for (const EditNode& node : nodes) {
    run_node(writer, node);
    if (writer.stopped) return;
  }
}

bool has_data_descriptor(std::span<const EditNode> nodes) {
  for (const EditNode& node : nodes) {
    if (is_data_descriptor(node.kind) || has_data_descriptor(node.group)) return true;
  }
  return false;
}

// Items left at the end of the list start a new line from the last top-level group (or from the
// start when there is none), and so on until they are placed.
std::span<const EditNode> reversion_part(std::span<const EditNode> nodes) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (nodes[i].kind == EditKind::group) start = i;
  }
  return nodes.subspan(start);
}

}  // namespace

std::vector<std::string> format_record(std::string_view edit_list, std::span<const RecordItem> items) {
  std::vector<EditNode> nodes;
  // The lists are written into the program, so a bad one is a programming error; it shows in the
  // output instead of vanishing.
  if (!parse_edit_list(edit_list, nodes)) return {"*** bad edit list " + std::string(edit_list)};
  RecordWriter writer{.items = items};
  run_nodes(writer, nodes);
  const std::span<const EditNode> reversion = reversion_part(nodes);
  if (!has_data_descriptor(reversion)) return writer.lines;
  while (!writer.stopped && writer.next < items.size()) {
    writer.lines.emplace_back();
    run_nodes(writer, reversion);
  }
  return writer.lines;
}

void write_record(Units& units, int unit, std::string_view edit_list,
                  std::initializer_list<RecordItem> items) {
  for (const std::string& line : format_record(edit_list, std::span(items.begin(), items.size()))) {
    write_line(units, unit, line);
  }
}

}  // namespace tarvo
