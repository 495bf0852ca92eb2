#include "sampling/cut_groups.h"

#include <algorithm>

#include "sampling/sample_tables.h"

namespace tarvo::sampling {

namespace {

bool universe_strategy(int istrat) { return istrat == 4 || istrat == 5; }
bool presample_strategy(int istrat) { return istrat == 8 || istrat == 9; }

// The group of point k: the first whose last point is k or later.
int group_of(const Evaluation& ev, int k) {
  const auto at = std::lower_bound(ev.groups.end.begin() + 1, ev.groups.end.end(), k);
  return static_cast<int>(at - ev.groups.end.begin());
}

double* group_gradient(Evaluation& ev, int g) { return ev.groups.gus.data() + group_offset(ev, g); }

}  // namespace

double grouped_points(const RunParams& params, const input::OutcomeStore& store) {
  if (universe_strategy(params.istrat)) return universe_points(store);
  if (presample_strategy(params.istrat)) return std::max(params.nsamples, 0);
  return 0.0;
}

int cut_group_count(const RunParams& params, const input::OutcomeStore& store) {
  const double points = grouped_points(params, store);
  if (params.ncuts == 1 || params.ncuts < 0 || points < 2.0) return 1;
  const double wanted = params.ncuts == 0 ? points : std::min<double>(params.ncuts, points);
  return static_cast<int>(std::min(wanted, 2147483647.0));
}

void allocate_cut_groups(Evaluation& ev, int count, int points) {
  CutGroups& g = ev.groups;
  g.count = count;
  g.end.assign(count + 1, 0);
  for (int i = 1; i <= count; ++i) {
    g.end[i] = static_cast<int>(static_cast<long long>(points) * i / count);
  }
  g.objs.assign(count + 1, 0.0);
  g.gls.assign(count + 1, 0.0);
  g.variance.assign(count + 1, 0.0);
  g.gus.assign(static_cast<std::size_t>(count) * ev.n1 + 1, 0.0);
}

bool grouped(const Evaluation& ev, int points) {
  return ev.groups.count > 1 && ev.groups.end[ev.groups.count] == points;
}

void clear_groups(Evaluation& ev) {
  CutGroups& g = ev.groups;
  std::fill(g.objs.begin(), g.objs.end(), 0.0);
  std::fill(g.variance.begin(), g.variance.end(), 0.0);
  std::fill(g.gus.begin(), g.gus.end(), 0.0);
}

void add_to_group(Evaluation& ev, int k, double w, double z, const double* u) {
  const int g = group_of(ev, k);
  ev.groups.objs[g] += w * z;
  double* gus = group_gradient(ev, g);
  for (int j = 1; j <= ev.n1; ++j) gus[j] -= w * u[j];
}

void add_group_variance(Evaluation& ev, int k, double share) {
  ev.groups.variance[group_of(ev, k)] += share;
}

void close_groups(const Context& ctx, Evaluation& ev) {
  CutGroups& g = ev.groups;
  for (int i = 1; i <= g.count; ++i) {
    const double* gus = group_gradient(ev, i);
    double dot = 0.0;
    for (int j = 1; j <= ev.n1; ++j) dot += gus[j] * ctx.master_primal[j];
    g.gls[i] = g.objs[i] + dot;
  }
}

}  // namespace tarvo::sampling
