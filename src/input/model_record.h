#pragma once
// The record reader of the time and stochastic files: 80-character lines, "*" in column 1 a
// comment, fields cut by "(bn,a4,a8,2x,a8,2x,e12.0,3x,a8,2x,e12.0)".
#include <string>
#include <string_view>

#include "common/line_reader.h"
#include "common/units.h"
#include "input/messages.h"
#include "lp/problem_slot.h"

namespace tarvo::input {

struct ModelRecord {
  int line_number = 0;
  std::string text;  // the first 80 columns, blank-padded
  bool value1_ok = true;  // columns 25-36 read as a number (blank is 0)
  bool value2_ok = true;  // columns 50-61 likewise
  double value1 = 0.0;
  double value2 = 0.0;

  bool card() const { return text[0] != ' '; }  // column 1 not blank: a section card
  std::string_view key() const { return std::string_view(text).substr(0, 4); }
  std::string_view bound_type() const { return std::string_view(text).substr(1, 2); }
  char column2() const { return text[1]; }
  lp::Name8 name1() const { return lp::make_name(std::string_view(text).substr(4, 8)); }
  lp::Name8 name2() const { return lp::make_name(std::string_view(text).substr(14, 8)); }
  lp::Name8 name3() const { return lp::make_name(std::string_view(text).substr(39, 8)); }
};

// Reads the next record that is not a comment; false at the end of the file. Every line, comments
// included, is echoed to `echo_unit` when that is open.
bool next_model_record(LineReader& reader, ModelRecord& record, Units& units, int echo_unit);

// "file ends... no endata found!"
void report_no_endata(Units& units, const MessageUnits& to);

}  // namespace tarvo::input
