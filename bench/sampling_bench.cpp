// Subproblem throughput of the evaluations at a fixed first stage (the core problem's own
// optimum): universe evaluations of stormg2-8 and stormg2-1000 with the pivots per solve, and a
// crude Monte Carlo sample of stormg2-1000 solved in table order and in the reordered pass.
//
// Every operator new is counted: the evaluations after the first, and the warm solves, must not
// allocate.
//
// Run as: sampling_bench [source directory]; without it the examples are looked for in the current
// directory and its parents.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "input/core_file.h"
#include "input/decompose.h"
#include "input/mps_reader.h"
#include "input/stoch_file.h"
#include "input/time_file.h"
#include "lp/optimizer.h"
#include "sampling/draw.h"
#include "sampling/evaluate.h"
#include "sampling/sample_tables.h"
#include "sampling/solve_pass.h"
#include "sampling/strategies.h"
#include "sampling/subproblem.h"

namespace fs = std::filesystem;
using namespace tarvo;

namespace {

long long g_allocations = 0;

struct Model {
  Units units;
  RunParams params;
  RunClock clock;
  std::unique_ptr<lp::Optimizer> opt = std::make_unique<lp::Optimizer>();
  input::Decomposition dec;
  input::OutcomeStore store;
  int iteration = 1;
  std::vector<double> master_primal, master_duals;
  double first_stage_cost = 0.0;
  int model_status = 0, solver_status = 0;
  sampling::Evaluation ev;

  sampling::Context context() {
    return {.units = units, .params = params, .clock = clock, .optimizer = *opt, .model = dec,
            .store = store, .log_unit = 0, .err_unit = 0, .iteration = iteration,
            .master_primal = master_primal, .master_duals = master_duals,
            .first_stage_cost = first_stage_cost, .model_status = model_status,
            .solver_status = solver_status};
  }
};

// Reads the example in the current directory as the driver does and fixes the first stage at the
// core problem's optimum.
bool load(Model& m) {
  const input::MessageUnits to{};
  if (lp::optimizer_init(*m.opt, m.units, 0, 0, 0) != 0) return false;
  if (!open_unit(m.units, 8, "MODEL.STO", OpenStatus::old_file)) return false;
  const bool scanned = !input::failed(input::prescan_stoch_file(m.units, 8, 0, to, m.store));
  close_unit(m.units, 8);
  if (!scanned) return false;
  input::allocate_outcome_store(m.store);
  input::StageNames stages;
  if (input::failed(input::read_time_file(m.units, "MODEL.TIM", 32, 0, to, stages))) return false;
  lp::ProblemSlot& core = m.opt->slot[lp::kCoreSlot];
  const input::MpsReadResult read = input::read_mps_file(core, m.opt->options, m.units, "MODEL.COR", 24, 0, 0);
  if (input::failed(input::check_core_problem(core, lp::kCoreSlot, read, "MODEL.COR", m.units, to))) return false;
  input::allocate_decomposition(m.dec, core);
  if (input::failed(input::decompose(core, stages, m.params.nzrows, m.opt->slot[1], m.opt->slot[2], m.dec,
                                     m.units, to)))
    return false;
  const input::StochContext sc{m.opt->slot[1], m.opt->slot[2], m.dec, read.names.rhs};
  if (input::failed(input::read_stoch_file(m.units, "MODEL.STO", 8, 0, to, sc, m.store))) return false;
  lp::select_problem(*m.opt, lp::kCoreSlot);
  int inform = 0;
  double obj = 0.0, spare = 0.0;
  std::vector<double> duals, primal;
  lp::solve_problem(*m.opt, m.units, 0, inform, 0, obj, spare, duals, spare, primal);
  m.master_primal.assign(m.dec.n1 + 2 + m.opt->slot[1].m, 0.0);
  m.master_duals.assign(m.master_primal.size(), 0.0);
  for (int j = 1; j <= m.dec.n1; ++j) m.master_primal[j] = primal[m.dec.j1 + j - 1];
  if (sampling::allocate_evaluation(m.ev, m.context()) != sampling::kOk) return false;
  sampling::expvals(m.ev, m.store);
  return inform == 0;
}

double seconds_since(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct Pivots {
  long long solves = 0, pivots = 0, factorizations = 0;
};

// The points of the plan solved one at a time on chain 0 in the pass's visiting order (a point
// equal to the one before it is not solved), counting the simplex work of every warm solve.
Pivots count_pivots(Model& m, const sampling::PassPlan& plan) {
  const sampling::Context ctx = m.context();
  lp::select_problem(*m.opt, lp::kSubproblemSlot);
  for (int k = 1; k <= plan.rows; ++k) m.ev.order[k] = k;
  if (plan.visit != sampling::Visit::table) sampling::order_points(ctx, m.ev, plan);
  Pivots p;
  sampling::Chain& chain = m.ev.chains[0];
  const sampling::ChainLp chain_lp = sampling::chain_lp(ctx, m.ev, 0);
  chain.startflag = 1;
  int previous = 0;
  for (int v = 1; v <= plan.rows; ++v) {
    const int k = m.ev.order[v];
    bool same = previous != 0;
    for (int b = 1; same && b <= m.ev.nblocks; ++b) {
      same = sampling::table_entry(m.ev, k, b) == sampling::table_entry(m.ev, previous, b);
    }
    previous = k;
    if (same) continue;
    sampling::solve_row(ctx, m.ev, chain, chain_lp, k, 1);
    const lp::SimplexCounters& c = m.opt->solver[lp::kSubproblemSlot].counters;
    ++p.solves;
    p.pivots += c.iterations;
    p.factorizations += c.factorizations;
  }
  return p;
}

void report_pivots(const char* name, const char* what, const Pivots& p) {
  std::printf("%-13s %-24s %6lld warm solves, %6.2f pivots/solve, %5.3f factorizations/solve\n", name, what,
              p.solves, static_cast<double>(p.pivots) / p.solves,
              static_cast<double>(p.factorizations) / p.solves);
}

// Universe evaluations through evaluate() (each starts cold), then the pivots per warm solve in
// table order and in the serpentine order the evaluation uses.
void bench_universe(Model& m, const char* name, int repeats) {
  const sampling::Context ctx = m.context();
  const long long solves_before = m.ev.lp_solves;
  long long allocations = 0;
  const auto start = std::chrono::steady_clock::now();
  for (int r = 0; r < repeats; ++r) {
    const long long before = g_allocations;
    if (sampling::evaluate(ctx, m.ev, 4) != sampling::kOk) std::printf("evaluation failed\n");
    if (r > 0) allocations += g_allocations - before;
  }
  const double elapsed = seconds_since(start);
  std::printf("%-13s universe of %d: %8.0f solves/s over %d evaluations, objs %.6e\n", name, m.ev.nsamples,
              (m.ev.lp_solves - solves_before) / elapsed, repeats, m.ev.cut.objs);
  const int rows = m.ev.nsamples;
  const long long before = g_allocations;
  report_pivots(name, "universe, table order", count_pivots(m, {.rows = rows, .visit = sampling::Visit::table}));
  report_pivots(name, "universe, serpentine", count_pivots(m, {.rows = rows, .visit = sampling::Visit::serpentine}));
  std::printf("%-13s allocations: %lld in evaluations after the first, %lld in the warm solves\n", name,
              allocations, g_allocations - before);
}

// The same crude samples evaluated in table order (collecting forces it) and reordered, then the
// pivots per warm solve of the last sample in both orders.
void bench_crude(Model& m, const char* name, int repeats) {
  const sampling::Context ctx = m.context();
  m.ev.nsamples = m.params.nsamples;
  for (int collect = 1; collect >= 0; --collect) {
    sampling::seed_generator(m.ev, 12933428);
    const long long solves_before = m.ev.lp_solves;
    double elapsed = 0.0, sum = 0.0;
    for (int r = 0; r < repeats; ++r) {
      sampling::sampcmc(ctx, m.ev);
      m.ev.collect = collect;
      lp::select_problem(*m.opt, lp::kSubproblemSlot);
      int startflag = 0;
      const auto start = std::chrono::steady_clock::now();
      sampling::evalcmc(ctx, m.ev, startflag);
      elapsed += seconds_since(start);
      sum += m.ev.cut.objs;
      m.ev.collect = 0;
    }
    const double points = static_cast<double>(repeats) * m.ev.nsamples;
    std::printf("%-13s crude N=%d, %s: %8.0f points/s, %5.1f%% of points solved, mean objs %.6e\n", name,
                m.ev.nsamples, collect ? "table order" : "reordered  ", points / elapsed,
                100.0 * (m.ev.lp_solves - solves_before) / points, sum / repeats);
  }
  const int rows = m.ev.nsamples;
  report_pivots(name, "crude, table order", count_pivots(m, {.rows = rows, .visit = sampling::Visit::table}));
  report_pivots(name, "crude, sorted", count_pivots(m, {.rows = rows, .visit = sampling::Visit::sorted}));
}

fs::path find_source(const fs::path& start) {
  for (fs::path p = start; !p.empty(); p = p.parent_path()) {
    if (fs::exists(p / "examples" / "stormg2-8")) return p;
    if (p == p.parent_path()) break;
  }
  return start;
}

}  // namespace

namespace {

void* counted_allocation(std::size_t size) {
  ++g_allocations;
  if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) { return counted_allocation(size); }
void* operator new[](std::size_t size) { return counted_allocation(size); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }

int main(int argc, char** argv) {
  const fs::path source = argc > 1 ? fs::path(argv[1]) : find_source(fs::current_path());
  const fs::path previous = fs::current_path();
  const struct { const char* name; int universe_repeats; int crude_repeats; } runs[] = {
      {"stormg2-8", 50, 0}, {"stormg2-1000", 3, 5}};
  for (const auto& run : runs) {
    const fs::path dir = fs::temp_directory_path() / ("tarvo-bench-" + std::string(run.name));
    fs::create_directories(dir);
    for (const char* file : {"MODEL.COR", "MODEL.TIM", "MODEL.STO", "SIMPLEX.SPC"}) {
      fs::copy_file(source / "examples" / run.name / file, dir / file, fs::copy_options::overwrite_existing);
    }
    fs::current_path(dir);
    auto m = std::make_unique<Model>();
    m->params.istrat = 4;
    m->params.nsamples = 1000;
    if (!load(*m)) {
      std::printf("%s: could not load\n", run.name);
      return 1;
    }
    bench_universe(*m, run.name, run.universe_repeats);
    if (run.crude_repeats > 0) bench_crude(*m, run.name, run.crude_repeats);
    fs::current_path(previous);
    fs::remove_all(dir);
  }
  return 0;
}
