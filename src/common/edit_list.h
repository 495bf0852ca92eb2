#pragma once
// Edit lists such as "(1x,a32,1x,f15.2)" parsed into the descriptors that the record writer and
// reader walk. Blanks outside quoted text are ignored, letters may be either case and commas
// between descriptors may be left out ("1pe15.5", "2a4/' text'").
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

enum class EditKind {
  blanks,      // nx
  literal,     // 'text' or "text"
  new_line,    // /
  scale,       // kp
  colon,       // : ends the record when no item is left
  blank_null,  // bn: blanks in numeric input fields are ignored (the only mode there is)
  group,       // n( ... )
  text,        // a, aw
  integer,     // iw, iw.m
  fixed,       // fw.d
  exponent,    // ew.d, ew.dEe
  logical,     // lw
};

struct EditNode {
  EditKind kind = EditKind::blanks;
  int repeat = 1;          // repetition of a group, a data descriptor or a slash
  int width = 0;           // n of nx; w of a data descriptor (0: plain a)
  int digits = -1;         // d of f and e, m of i (-1: not given)
  int exponent_digits = 0; // e of ew.dEe (0: not given)
  int scale = 0;           // k of kp
  std::string text;        // a literal
  std::vector<EditNode> group;
};

bool is_data_descriptor(EditKind kind);

// False when the list is malformed: no enclosing parentheses, an unknown descriptor, a missing
// width, an unterminated literal.
bool parse_edit_list(std::string_view list, std::vector<EditNode>& nodes);

}  // namespace tarvo
