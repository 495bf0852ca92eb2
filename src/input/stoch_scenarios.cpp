#include "input/stoch_scenarios.h"

#include <algorithm>
#include <string>

#include "common/free_format.h"

namespace tarvo::input {

namespace {

constexpr int kRhs = -2;
constexpr int kCoupling = -3;
constexpr int kUpper = -11;

std::string trimmed(const lp::Name8& name) {
  std::string text(lp::name_view(name));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

bool is_root(const lp::Name8& parent) {
  return parent == lp::make_name("'ROOT'") || parent == lp::make_name("ROOT");
}

void report_unknown_parent(Units& units, const MessageUnits& to, const ModelRecord& record) {
  write_run_message(units, to, free_line("ERROR in .sto: line", record.line_number, ": parent ",
                                         trimmed(record.name2()), " of scenario ", trimmed(record.name1()),
                                         " is no scenario above it"));
}

void report_multistage(Units& units, const MessageUnits& to, const ModelRecord& record) {
  write_run_message(units, to, free_line("ERROR in .sto: line", record.line_number, ": scenario ",
                                         trimmed(record.name1()), " in period ", trimmed(record.name3()),
                                         " makes a multistage tree; only two-stage problems are solved"));
}

// The latest scenario of that name (1-based), or 0.
int scenario_named(const ScenarioTree& tree, const lp::Name8& name) {
  for (int s = static_cast<int>(tree.scenarios.size()); s >= 1; --s) {
    if (tree.scenarios[s - 1].name == name) return s;
  }
  return 0;
}

// A two-stage tree branches in at most two periods, and in those of the time file when it names
// them.
bool two_stage_period(ScenarioTree& tree, const StochContext& context, const lp::Name8& period) {
  if (period == lp::Name8{}) return true;
  const bool named = context.periods[0] != lp::Name8{} && context.periods[1] != lp::Name8{};
  if (named && period != context.periods[0] && period != context.periods[1]) return false;
  if (std::find(tree.periods.begin(), tree.periods.end(), period) == tree.periods.end()) {
    tree.periods.push_back(period);
  }
  return tree.periods.size() <= 2;
}

}  // namespace

bool add_scenario(ScenarioTree& tree, const StochContext& context, const ModelRecord& record,
                  Units& units, const MessageUnits& to) {
  Scenario scenario{record.name1(), 0, record.value1, {}};
  bool ok = true;
  if (!is_root(record.name2())) {
    scenario.parent = scenario_named(tree, record.name2());
    if (scenario.parent == 0) {
      report_unknown_parent(units, to, record);
      ok = false;
    }
  }
  if (!two_stage_period(tree, context, record.name3())) {
    report_multistage(units, to, record);
    ok = false;
  }
  tree.scenarios.push_back(std::move(scenario));
  return ok;
}

void add_scenario_entry(ScenarioTree& tree, const Classification& entry, double value) {
  const auto [at, added] =
      tree.entry_at.try_emplace({entry.kind, entry.index}, static_cast<int>(tree.entries.size()));
  if (added) tree.entries.push_back(entry);
  tree.scenarios.back().changes.emplace_back(at->second, value);
}

double core_value(const StochContext& context, const Classification& entry) {
  const int at = entry.index;
  if (entry.kind >= -1) return context.sub.a[at];
  if (entry.kind == kRhs) return context.dec.h[at];
  if (entry.kind == kCoupling) return -context.dec.b[at];  // B holds the core's coefficients negated
  if (entry.kind == kUpper) return context.sub.bu[at];
  return context.sub.bl[at];  // lower or fixed bound
}

}  // namespace tarvo::input
