#include "benders/master_cuts.h"

#include "common/free_format.h"

namespace tarvo::benders {
namespace {

// The slack a row is given when it has never held a cut: 1.0E+20 in single precision.
constexpr double kUnusedRowSlack = lp::kInfiniteBound;
constexpr int kRowsExhaustedCount = 999999;

// The reserved row with the largest slack; ties keep the lowest row number.
int largest_slack_row(const CutRows& rows) {
  int best = 1;
  for (int r = 2; r <= rows.nzrows; ++r) {
    if (rows.slack[r] > rows.slack[best]) best = r;
  }
  return best;
}

}  // namespace

void trace_stored_cut(Units& u, int unit, const lp::ProblemSlot& master, const Cut& cut,
                      int iterations, int row, double slack, double tolw) {
  write_free(u, unit, "cut: inum,icutnz,slack=", iterations, row, slack);
  for (int j = 1; j <= master.n; ++j) {
    if (cut.gus[j] > tolw || cut.gus[j] < -tolw) write_free(u, unit, "gus(", j, "):", cut.gus[j]);
  }
  write_free(u, unit, "gls:", cut.gls);
}

void allocate_cut_rows(CutRows& rows, int first_stage_rows, int nzrows) {
  rows.first_stage_rows = first_stage_rows;
  rows.nzrows = nzrows;
  rows.variance.assign(nzrows + 1, 0.0);
  rows.slack.assign(nzrows + 1, 0.0);
}

bool store_cut_row(lp::ProblemSlot& master, const double* gus, double gls, int row) {
  for (int j = 1; j <= master.n; ++j) {
    int position = 0;
    for (int k = master.ka[j]; k < master.ka[j + 1]; ++k) {
      if (master.ha[k] == row) {
        position = k;
        break;
      }
    }
    if (position != 0) {
      master.a[position] = gus[j];
    } else if (gus[j] != 0.0) {
      return false;
    }
  }
  set_cut_limit(master, row, gls);
  return true;
}

void set_cut_limit(lp::ProblemSlot& master, int row, double gls) {
  if (gls > lp::kInfiniteBound) gls = lp::kInfiniteBound;
  // The row reads sum >= gls: its logical carries minus the activity, so its upper bound is -gls.
  const int logical = master.n + row;
  master.bl[logical] = -lp::kInfiniteBound;
  master.bu[logical] = gls >= -lp::kInfiniteBound ? -gls : lp::kInfiniteBound;
}

CutResult rows_exhausted(Units& units, int log_unit, int& iterations) {
  write_free(units, log_unit, "not enough nzrows, program terminated");
  iterations = kRowsExhaustedCount;
  return CutResult::rows_exhausted;
}

void cut_row_slacks(const lp::ProblemSlot& master, CutRows& rows) {
  for (int r = 1; r <= rows.nzrows; ++r) {
    const int logical = master.n + rows.first_stage_rows + r;
    if (master.bu[logical] >= lp::kInfiniteBound) {
      rows.slack[r] = kUnusedRowSlack;
    } else {
      // activity = -xn(logical), lower limit = -bu(logical)
      rows.slack[r] = master.bu[logical] - master.xn[logical];
    }
  }
}

CutResult add_cut(lp::ProblemSlot& master, CutRows& rows, const Cut& cut, int& iterations,
                  Units& units, const RunParams& params, int log_unit) {
  iterations += 1;
  int target = iterations;
  double slack = kUnusedRowSlack;
  if (iterations > rows.nzrows) {
    cut_row_slacks(master, rows);
    target = largest_slack_row(rows);
    slack = rows.slack[target];
    if (slack <= 0.0) return rows_exhausted(units, log_unit, iterations);
  }
  rows.variance[target] = cut.variance;
  if (params.ibug >= 5) {
    trace_stored_cut(units, log_unit, master, cut, iterations, target, slack, params.tolw);
  }
  if (!store_cut_row(master, cut.gus, cut.gls, rows.first_stage_rows + target)) {
    return CutResult::missing_location;
  }
  return CutResult::stored;
}

}  // namespace tarvo::benders
