#pragma once
// A bundled example loaded as the driver loads it (optimizer, core, split, outcome store), the
// context of an evaluation over it, and an independent way to the recourse cost: the core
// problem with the first stage fixed, the outcome applied by name from MODEL.STO, solved cold.
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "input/core_file.h"
#include "input/decompose.h"
#include "input/mps_reader.h"
#include "input/stoch_file.h"
#include "input/time_file.h"
#include "lp/optimizer.h"
#include "harness.h"
#include "run_in_dir.h"
#include "sampling/draw.h"
#include "sampling/evaluation.h"

namespace tarvo::sampling::testing {

// One outcome change read from MODEL.STO: a right-hand side (column empty) or a matrix entry.
struct Change { std::string column, row; double value = 0.0; };
struct Outcome { double prob = 0.0; std::vector<Change> changes; };
using Block = std::vector<Outcome>;

inline std::string field(const std::string& line, std::size_t from, std::size_t to) {
  std::string f = line.size() >= from ? line.substr(from - 1, to - from + 1) : "";
  const auto a = f.find_first_not_of(' ');
  return a == std::string::npos ? "" : f.substr(a, f.find_last_not_of(' ') - a + 1);
}

// The blocks of MODEL.STO by fixed columns: INDEP lines are one-entry blocks, consecutive lines
// of one entry its outcomes; a later BLOCKS realization starts as a copy of the first.
inline std::vector<Block> read_blocks(const std::string& file, const std::string& rhs_set) {
  std::ifstream in(file);
  std::vector<Block> blocks;
  std::string line, section, entry, block_name;
  const auto change_of = [&](const std::string& n1, const std::string& n2, double v) {
    return Change{n1 == rhs_set ? "" : n1, n2, v};
  };
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '*') continue;
    if (line[0] != ' ') {
      section = field(line, 1, 4);
      continue;
    }
    const std::string n1 = field(line, 5, 12), n2 = field(line, 15, 22);
    if (section == "INDE") {
      if (blocks.empty() || entry != n1 + "/" + n2) blocks.emplace_back();
      entry = n1 + "/" + n2;
      blocks.back().push_back({std::stod(field(line, 50, 61)), {change_of(n1, n2, std::stod(field(line, 25, 36)))}});
    } else if (field(line, 2, 3) == "BL") {
      if (blocks.empty() || block_name != n1) blocks.emplace_back();
      block_name = n1;
      Outcome o{std::stod(field(line, 25, 36)), blocks.back().empty() ? std::vector<Change>{} : blocks.back()[0].changes};
      blocks.back().push_back(o);
    } else {
      Outcome& o = blocks.back().back();
      const auto put = [&](const std::string& row, double v) {
        Change c = change_of(n1, row, v);
        for (Change& old : o.changes)
          if (old.column == c.column && old.row == c.row) { old.value = v; return; }
        o.changes.push_back(c);
      };
      put(n2, std::stod(field(line, 25, 36)));
      if (!field(line, 40, 47).empty()) put(field(line, 40, 47), std::stod(field(line, 50, 61)));
    }
  }
  return blocks;
}

struct ExampleModel : Harness {
  tarvo::testing::WorkDir dir{"sampling"};
  input::StageNames stages;
  input::MpsReadResult read;
  lp::ProblemSlot pristine_core;
  std::vector<Block> blocks;
  std::map<std::string, int> index_of;  // core column and row names (rows after the columns)
  std::vector<double> x_core;           // first-stage values of the core's own optimum
  Evaluation ev;

  ExampleModel() { iteration = 1; }

  // Reads the example, solves its core for a first-stage proposal and sizes the evaluation.
  bool load(const std::string& name) {
    tarvo::testing::copy_example(name, dir.path);
    if (lp::optimizer_init(optimizer, units, 0, 0, 0) != 0) return false;
    const input::MessageUnits to{};
    if (!open_unit(units, 8, "MODEL.STO", OpenStatus::old_file)) return false;
    const bool scanned = !input::failed(input::prescan_stoch_file(units, 8, 0, to, store));
    close_unit(units, 8);
    if (!scanned) return false;
    input::allocate_outcome_store(store);
    if (input::failed(input::read_time_file(units, "MODEL.TIM", 32, 0, to, stages))) return false;
    lp::ProblemSlot& core = optimizer.slot[lp::kCoreSlot];
    if (input::failed(input::read_core_problem(core, optimizer.options, units, 0, 0, to, 0, read))) return false;
    input::allocate_decomposition(model, core);
    if (input::failed(input::decompose(core, stages, params.nzrows, optimizer.slot[1], optimizer.slot[2], model, units, to)))
      return false;
    const input::StochContext sc{optimizer.slot[1], optimizer.slot[2], model, read.names.rhs};
    if (input::failed(input::read_stoch_file(units, "MODEL.STO", 8, 0, to, sc, store))) return false;
    pristine_core = core;
    optimizer.names = {read.names.problem, read.names.objective, read.names.rhs, read.names.ranges, read.names.bounds};
    for (int k = 1; k <= core.nb; ++k) index_of[std::string(field(std::string(lp::name_view(core.names[k])), 1, 8))] = k;
    blocks = read_blocks("MODEL.STO", field(std::string(lp::name_view(read.names.rhs)), 1, 8));
    x_core = core_first_stage(std::vector<double>(model.n1 + 1, 1.0));
    master_primal.assign(model.n1 + 2 + optimizer.slot[1].m, 0.0);
    master_duals.assign(model.n1 + 2 + optimizer.slot[1].m, 0.0);
    set_proposal(x_core);
    if (allocate_evaluation(ev, context()) != kOk) return false;
    expvals(ev, store);
    return true;
  }

  // A cold solve of the core slot; true when optimal.
  bool solve_core(double& obj, std::vector<double>& primal) {
    lp::select_problem(optimizer, lp::kCoreSlot);
    int inform = 0;
    double spare = 0.0;
    std::vector<double> duals;
    lp::solve_problem(optimizer, units, 0, inform, 0, obj, spare, duals, spare, primal);
    return inform == 0;
  }

  // First-stage values of the core's optimum with the first-stage costs scaled column by column.
  std::vector<double> core_first_stage(const std::vector<double>& cost_scale) {
    lp::ProblemSlot& core = optimizer.slot[lp::kCoreSlot];
    core = pristine_core;
    for (int j = 1; j <= model.n1; ++j) {
      const int col = model.j1 + j - 1;
      for (int p = core.ka[col]; p < core.ka[col + 1]; ++p)
        if (core.ha[p] == 1) core.a[p] *= cost_scale[j];
    }
    std::vector<double> primal;
    double obj = 0.0;
    solve_core(obj, primal);
    std::vector<double> x(model.n1 + 1, 0.0);
    for (int j = 1; j <= model.n1; ++j) x[j] = primal[model.j1 + j - 1];
    return x;
  }

  void set_proposal(const std::vector<double>& x) {
    for (int j = 1; j <= model.n1; ++j) master_primal[j] = x[j];
  }

  // Recourse cost of one outcome combination (outcome[b] from 0) at x: the core with its first
  // stage fixed and its first-stage rows freed; false when infeasible.
  bool recourse(const std::vector<double>& x, const std::vector<int>& outcome, double& cost) {
    lp::ProblemSlot& core = optimizer.slot[lp::kCoreSlot];
    core = pristine_core;
    for (std::size_t b = 0; b < blocks.size(); ++b)
      for (const Change& c : blocks[b][outcome[b]].changes) apply(core, c);
    double first = 0.0;
    for (int j = 1; j <= model.n1; ++j) {
      const int col = model.j1 + j - 1;
      core.bl[col] = core.bu[col] = x[j];
      for (int p = core.ka[col]; p < core.ka[col + 1]; ++p)
        if (core.ha[p] == 1) first += core.a[p] * x[j];
    }
    for (int r = 2; r < model.i2; ++r) {
      core.bl[core.n + r] = -lp::kInfiniteBound;
      core.bu[core.n + r] = lp::kInfiniteBound;
    }
    std::vector<double> primal;
    double obj = 0.0;
    const bool optimal = solve_core(obj, primal);
    cost = obj - first;
    return optimal;
  }

  // The outcome's value replaces the core's: a right-hand side by the row's type, or the element.
  void apply(lp::ProblemSlot& core, const Change& c) {
    const int r = index_of.at(c.row) - core.n;
    if (c.column.empty()) {
      const int type = core.row_type[r];
      if (type == lp::kRowE || type == lp::kRowL) core.bl[core.n + r] = -c.value;
      if (type == lp::kRowE || type == lp::kRowG) core.bu[core.n + r] = -c.value;
      return;
    }
    const int col = index_of.at(c.column);
    for (int p = core.ka[col]; p < core.ka[col + 1]; ++p) {
      if (core.ha[p] == r) {
        core.a[p] = c.value;
        return;
      }
    }
    ADD_FAILURE() << "no element " << c.column << " / " << c.row;
  }
};

}  // namespace tarvo::sampling::testing
