#include "sampling/deterministic_equivalent.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

#include "input/mps_writer.h"
#include "sampling/draw.h"
#include "sampling/evaluation.h"
#include "sampling/subproblem.h"

namespace tarvo::sampling {

namespace {

constexpr long long kNamesPerLetter = 9999999;  // seven digits
constexpr std::string_view kInitials = "abcdefghijklmnopqrstuvwxyz";

const lp::Name8 kRhsSet = lp::make_name("RHS");
const lp::Name8 kRangesSet = lp::make_name("RANGES");
const lp::Name8 kBoundsSet = lp::make_name("BOUNDS");

struct DepWriter {
  const TwoStageModel& m;
  const ScenarioSet& set;
  Units& units;
  int unit;
  DepSizes& sizes;
  char row_initial = 0;
  char column_initial = 0;
  SolveWork work{};  // the outcome in hand: index, current, b_work, rhs_work
};

// A letter no name of the list starts with, the preferred one if it can be; 0 when every letter
// is taken.
char unused_initial(const std::vector<lp::Name8>& names, int first, int last, char preferred) {
  const auto free = [&](char c) {
    for (int k = first; k <= last; ++k) {
      if (names[k].c[0] == c) return false;
    }
    return true;
  };
  if (free(preferred)) return preferred;
  for (const char c : kInitials) {
    if (free(c)) return c;
  }
  return 0;
}

lp::Name8 numbered_name(char initial, long long number) {
  char text[32];
  std::snprintf(text, sizeof text, "%c%07lld", initial, number);
  return lp::make_name(text);
}

// Sub row i (2..m2) and sub column k of scenario s (0-based).
lp::Name8 scenario_row(const DepWriter& w, int s, int i) {
  return numbered_name(w.row_initial, static_cast<long long>(s) * (w.m.model.m2 - 1) + i - 1);
}
lp::Name8 scenario_column(const DepWriter& w, int s, int k) {
  return numbered_name(w.column_initial, static_cast<long long>(s) * w.m.model.n2 + k);
}

const lp::Name8& master_row_name(const DepWriter& w, int i) { return w.m.master.names[w.m.master.n + i]; }

// One data line: key (columns 1-4), two names (5-12, 15-22) and a value (25-36).
void put(DepWriter& w, std::string_view key, const lp::Name8& name1, const lp::Name8& name2,
         double value, bool has_value = true) {
  std::string line(key);
  line.resize(4, ' ');
  line.append(lp::name_view(name1)).append("  ").append(lp::name_view(name2));
  if (has_value) line.append("  ").append(input::mps_value_field(value));
  line.erase(line.find_last_not_of(' ') + 1);
  write_line(w.units, w.unit, line);
}

void put_entry(DepWriter& w, const lp::Name8& column, const lp::Name8& row, double value) {
  put(w, "", column, row, value);
  ++w.sizes.entries;
}

void put_row(DepWriter& w, double lower, double upper, const lp::Name8& name) {
  const char key[4] = {' ', input::row_letter(lower, upper), ' ', ' '};
  put(w, std::string_view(key, 4), name, lp::Name8{}, 0.0, false);
  ++w.sizes.rows;
}

void put_rhs(DepWriter& w, double lower, double upper, const lp::Name8& row) {
  const double rhs = input::row_rhs(lower, upper);
  if (rhs != 0.0) put(w, "", kRhsSet, row, rhs);
}

void put_range(DepWriter& w, double lower, double upper, const lp::Name8& row) {
  if (input::row_ranged(lower, upper)) put(w, "", kRangesSet, row, upper - lower);
}

void put_bounds(DepWriter& w, double lower, double upper, const lp::Name8& column) {
  std::array<input::BoundLine, 2> lines;
  const int count = input::bound_lines(lower, upper, lines);
  for (int k = 0; k < count; ++k) put(w, lines[k].key, kBoundsSet, column, lines[k].value, lines[k].has_value);
}

void size_outcome(SolveWork& work, const TwoStageModel& m) {
  work.index.assign(m.store.count + 1, 1);
  work.current.assign(m.store.entries + 1, 0.0);
  work.b_work.assign(m.model.b_nonzeros + 1, 0.0);
  work.rhs_work.assign(m.model.m2 + 1, 0.0);
}

// Scenario s's outcome into the subproblem slot, work.b_work and work.rhs_work.
void take_scenario(DepWriter& w, int s) {
  for (int b = 1; b <= w.set.blocks; ++b) w.work.index[b] = w.set.outcome[static_cast<std::size_t>(s) * w.set.blocks + b - 1];
  outval(w.work, w.m.store);
  int bad_kind = 0;
  // The reader stores known kinds only.
  apply_outcome(w.m.sub, w.m.model, w.m.store, w.m.store.entries, w.work, bad_kind);
}

// Limits of sub row i in the scenario in hand: its right-hand side moves both finite limits.
std::array<double, 2> scenario_limits(const DepWriter& w, int i) {
  const double shift = w.work.rhs_work[i] - w.m.model.h[i];
  double lower = lp::row_lower(w.m.sub, i);
  double upper = lp::row_upper(w.m.sub, i);
  if (lower > -lp::kInfiniteBound) lower += shift;
  if (upper < lp::kInfiniteBound) upper += shift;
  return {lower, upper};
}

void write_header(DepWriter& w) {
  const int scenarios = scenario_count(w.set);
  std::string line = "* deterministic equivalent over " + std::to_string(scenarios) + " scenarios (";
  line += w.set.draws == 0 ? "every outcome combination)"
                           : std::to_string(w.set.draws) + " draws, seed " + std::to_string(w.set.seed) + ")";
  write_line(w.units, w.unit, line);
  write_line(w.units, w.unit, "* first-stage rows and columns keep their names; scenario rows and columns:");
  const int rows = w.m.model.m2 - 1;
  const int columns = w.m.model.n2;
  for (int s = 0; s < scenarios; ++s) {
    char text[160];
    std::snprintf(text, sizeof text, "* scenario %d  probability %.12g  rows %.8s-%.8s  columns %.8s-%.8s", s + 1,
                  w.set.probability[s], scenario_row(w, s, 2).c.data(), scenario_row(w, s, rows + 1).c.data(),
                  scenario_column(w, s, 1).c.data(), scenario_column(w, s, columns).c.data());
    write_line(w.units, w.unit, text);
  }
  write_line(w.units, w.unit, "NAME          " + std::string(lp::name_view(w.m.master.problem_name)));
}

void write_rows(DepWriter& w) {
  write_line(w.units, w.unit, "ROWS");
  const lp::ProblemSlot& master = w.m.master;
  const lp::ProblemSlot& sub = w.m.sub;
  put_row(w, -lp::kInfiniteBound, lp::kInfiniteBound, master_row_name(w, 1));
  for (int i = 2; i <= w.m.model.m1; ++i) put_row(w, lp::row_lower(master, i), lp::row_upper(master, i), master_row_name(w, i));
  // A shift keeps a row's type, so the base limits give it.
  for (int s = 0; s < scenario_count(w.set); ++s) {
    for (int i = 2; i <= w.m.model.m2; ++i) put_row(w, lp::row_lower(sub, i), lp::row_upper(sub, i), scenario_row(w, s, i));
  }
}

// Coupling values of every scenario, when they are random: [s * nonzeros + p - 1].
std::vector<double> coupling_by_scenario(DepWriter& w) {
  const int nonzeros = w.m.model.b_nonzeros;
  const bool random = std::find(w.m.store.kind.begin() + 1, w.m.store.kind.begin() + w.m.store.entries + 1, -3) !=
                      w.m.store.kind.begin() + w.m.store.entries + 1;
  std::vector<double> values;
  if (!random) return values;
  values.resize(static_cast<std::size_t>(scenario_count(w.set)) * nonzeros);
  for (int s = 0; s < scenario_count(w.set); ++s) {
    take_scenario(w, s);
    std::copy(w.work.b_work.begin() + 1, w.work.b_work.end(), values.begin() + static_cast<std::size_t>(s) * nonzeros);
  }
  return values;
}

// First-stage column j: its own rows, then its coupling entries in every scenario (B holds the
// core's coefficients negated).
void write_first_stage_column(DepWriter& w, int j, const std::vector<double>& coupling) {
  const lp::ProblemSlot& master = w.m.master;
  const input::Decomposition& d = w.m.model;
  const lp::Name8& column = master.names[j];
  for (int p = master.ka[j]; p < master.ka[j + 1]; ++p) {
    if (master.ha[p] <= d.m1) put_entry(w, column, master_row_name(w, master.ha[p]), master.a[p]);
  }
  for (int s = 0; s < scenario_count(w.set); ++s) {
    for (int p = d.kb[j]; p < d.kb[j + 1]; ++p) {
      const double b = coupling.empty() ? d.b[p] : coupling[static_cast<std::size_t>(s) * d.b_nonzeros + p - 1];
      put_entry(w, column, scenario_row(w, s, d.hb[p]), -b);
    }
  }
}

void write_scenario_columns(DepWriter& w, int s) {
  const lp::ProblemSlot& sub = w.m.sub;
  const double probability = w.set.probability[s];
  take_scenario(w, s);
  for (int k = 1; k <= sub.n; ++k) {
    const lp::Name8 column = scenario_column(w, s, k);
    for (int p = sub.ka[k]; p < sub.ka[k + 1]; ++p) {
      const int i = sub.ha[p];
      if (i == 1) {
        put_entry(w, column, master_row_name(w, 1), probability * sub.a[p]);
      } else {
        put_entry(w, column, scenario_row(w, s, i), sub.a[p]);
      }
    }
  }
}

void write_columns(DepWriter& w) {
  write_line(w.units, w.unit, "COLUMNS");
  const std::vector<double> coupling = coupling_by_scenario(w);
  for (int j = 1; j <= w.m.model.n1; ++j) write_first_stage_column(w, j, coupling);
  for (int s = 0; s < scenario_count(w.set); ++s) write_scenario_columns(w, s);
  w.sizes.columns = w.m.model.n1 + static_cast<long long>(scenario_count(w.set)) * w.m.model.n2;
}

// RHS (with the objective constant) or RANGES of every row.
void write_row_values(DepWriter& w, bool ranges) {
  write_line(w.units, w.unit, ranges ? "RANGES" : "RHS");
  const auto put_value = ranges ? put_range : put_rhs;
  const lp::ProblemSlot& master = w.m.master;
  if (!ranges && master.objadd != 0.0) put(w, "", kRhsSet, master_row_name(w, 1), -master.objadd);
  for (int i = 2; i <= w.m.model.m1; ++i) put_value(w, lp::row_lower(master, i), lp::row_upper(master, i), master_row_name(w, i));
  for (int s = 0; s < scenario_count(w.set); ++s) {
    take_scenario(w, s);
    for (int i = 2; i <= w.m.model.m2; ++i) {
      const auto [lower, upper] = scenario_limits(w, i);
      put_value(w, lower, upper, scenario_row(w, s, i));
    }
  }
}

void write_bounds(DepWriter& w) {
  write_line(w.units, w.unit, "BOUNDS");
  const lp::ProblemSlot& master = w.m.master;
  for (int j = 1; j <= w.m.model.n1; ++j) put_bounds(w, master.bl[j], master.bu[j], master.names[j]);
  for (int s = 0; s < scenario_count(w.set); ++s) {
    take_scenario(w, s);
    for (int k = 1; k <= w.m.sub.n; ++k) put_bounds(w, w.m.sub.bl[k], w.m.sub.bu[k], scenario_column(w, s, k));
  }
}

}  // namespace

bool universe_scenarios(const input::OutcomeStore& store, double limit, ScenarioSet& set) {
  double points = 1.0;
  for (int b = 1; b <= store.count; ++b) points *= store.nsoc[b];
  if (points > limit) return false;
  const int n = static_cast<int>(points);
  set = ScenarioSet{};
  set.blocks = store.count;
  set.outcome.assign(static_cast<std::size_t>(n) * set.blocks, 1);
  set.probability.assign(n, 1.0);
  for (int s = 0; s < n; ++s) {
    int rest = s;
    for (int b = store.count; b >= 1; --b) {
      const int i = rest % store.nsoc[b];
      rest /= store.nsoc[b];
      set.outcome[static_cast<std::size_t>(s) * set.blocks + b - 1] = i + 1;
    }
    for (int b = 1; b <= store.count; ++b) {
      set.probability[s] *= store.probs[store.prob_start[b] + set.outcome[static_cast<std::size_t>(s) * set.blocks + b - 1] - 1];
    }
  }
  return true;
}

void sampled_scenarios(const input::OutcomeStore& store, int draws, int seed, ScenarioSet& set) {
  set = ScenarioSet{};
  set.blocks = store.count;
  set.draws = draws;
  set.seed = seed;
  Evaluation ev;
  seed_generator(ev, seed);
  int most = 1;
  for (int b = 1; b <= store.count; ++b) most = std::max(most, store.nsoc[b]);
  ev.index.assign(store.count + 1, 1);
  ev.cumulative.assign(most + 2, 0.0);
  std::map<std::vector<int>, int> seen;
  for (int k = 0; k < draws; ++k) {
    drawindex(ev, store, store.probs);
    const std::vector<int> draw(ev.index.begin() + 1, ev.index.end());
    const auto [at, added] = seen.try_emplace(draw, scenario_count(set));
    if (added) {
      set.outcome.insert(set.outcome.end(), draw.begin(), draw.end());
      set.probability.push_back(0.0);
    }
    set.probability[at->second] += 1.0 / draws;
  }
}

double scenario_limit(const TwoStageModel& m) {
  const int per_scenario = std::max({m.model.m2 - 1, m.model.n2, 1});
  return static_cast<double>(kNamesPerLetter / per_scenario);
}

bool write_deterministic_equivalent(const TwoStageModel& m, const ScenarioSet& set, Units& units,
                                    int unit, DepSizes& sizes, std::string& error) {
  if (scenario_count(set) > scenario_limit(m)) {
    error = std::to_string(scenario_count(set)) + " scenarios need more than " +
            std::to_string(kNamesPerLetter) + " row or column names";
    return false;
  }
  sizes = DepSizes{};
  DepWriter w{m, set, units, unit, sizes};
  w.row_initial = unused_initial(m.master.names, m.master.n + 1, m.master.n + m.model.m1, 'r');
  w.column_initial = unused_initial(m.master.names, 1, m.model.n1, 'y');
  if (w.row_initial == 0 || w.column_initial == 0) {
    error = "first-stage names start with every letter: no names are left for the scenarios";
    return false;
  }
  size_outcome(w.work, m);
  write_header(w);
  write_rows(w);
  write_columns(w);
  write_row_values(w, false);
  write_row_values(w, true);
  write_bounds(w);
  write_line(units, unit, "ENDATA");
  return true;
}

}  // namespace tarvo::sampling
