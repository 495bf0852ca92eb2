// What a solve writes: the iteration log, the exit message, the final summary, the factorization
// events and the complaint about an unknown start word. Each message text is written here once.
#include <cstdio>
#include <string>

#include "common/record_format.h"
#include "lp/simplex_work.h"

namespace tarvo::lp {

namespace {

// An integer right-justified in w columns (asterisks when it does not fit).
std::string int_field(long long value, int width) {
  std::string text = std::to_string(value);
  if (static_cast<int>(text.size()) > width) return std::string(width, '*');
  return std::string(width - text.size(), ' ') + text;
}

void write_both(Units& units, const SimplexSettings& settings, const std::string& line) {
  if (settings.print_unit > 0) write_line(units, settings.print_unit, line);
  if (settings.summary_unit > 0) write_line(units, settings.summary_unit, line);
}

void write_log_header(const SimplexState& s, const SimplexSettings& settings, Units& units, int unit) {
  const bool nonlinear = s.nnobj > 0;
  std::string header;
  if (settings.print_level > 0) {
    header = nonlinear ? "    Itn ph pp     rg    +sbs  -sbs   -bs" : "    Itn ph pp     dj    +sbs  -sbs   -bs";
    header += "  step    pivot   ninf  sinf,objective     L     U ncp";
    header += "  nobj  ncon  nsb Hmod cond(H) conv";
  } else if (nonlinear) {
    header = "    Itn       rg  ninf      sinf       objective";
    header += "     LU  nobj  nsb  cond(H)";
  } else {
    header = "    Itn       dj  ninf      sinf       objective";
    header += "     LU";
  }
  write_line(units, unit, "");
  write_line(units, unit, header);
}

void write_log_record(SimplexState& s, const SimplexSettings& settings, Units& units, int unit) {
  const double objective = s.sense * working_objective(s) + s.objadd;
  const long long itn = s.counters.iterations;
  const long long lu_size = static_cast<long long>(s.lu_report.length_l) + s.lu_report.length_u;
  const double cond = 1.0;
  if (settings.print_level > 0) {
    const double sinf_or_obj = s.phase == 1 ? s.sinf : objective;
    write_record(units, unit, "(1p,i7,1x,a1,i1,i3,e9.1,3i6,e8.1,e9.1,i5,e16.8,2i6,i4,2i6,i5,i3,i2,e8.1,1x,4l1)",
                 {itn, std::string_view(" "), static_cast<long long>(s.phase),
                  static_cast<long long>(s.partial_start + 1), s.dj_last, 0LL, 0LL, 0LL, s.step_last,
                  s.pivot_last, static_cast<long long>(s.ninf), sinf_or_obj,
                  static_cast<long long>(s.lu_report.length_l), static_cast<long long>(s.lu_report.length_u),
                  0LL, static_cast<long long>(s.counters.regobj_calls), 0LL,
                  static_cast<long long>(s.superbasic_count), 0LL, 0LL, cond, 0LL, 0LL, 0LL, 0LL});
  } else if (s.nnobj > 0) {
    write_record(units, unit, "(1p,i7,e9.1,i6,e10.3,e16.8,i7,i6,i5,e8.1)",
                 {itn, s.dj_last, static_cast<long long>(s.ninf), s.sinf, objective, lu_size,
                  static_cast<long long>(s.counters.regobj_calls), static_cast<long long>(s.superbasic_count),
                  cond});
  } else {
    write_record(units, unit, "(1p,i7,e9.1,i6,e10.3,e16.8,i7)",
                 {itn, s.dj_last, static_cast<long long>(s.ninf), s.sinf, objective, lu_size});
  }
}

}  // namespace

// One record every "Log frequency" iterations on the print unit (and every "Summary frequency"
// on the summary unit), under a header written once per solve.
void log_iteration(SimplexState& s, const SimplexSettings& settings, Units& units) {
  const int itn = s.counters.iterations;
  const bool to_print = settings.print_unit > 0 && settings.log_frequency > 0 && itn % settings.log_frequency == 0;
  const bool to_summary =
      settings.summary_unit > 0 && settings.summary_frequency > 0 && itn % settings.summary_frequency == 0;
  if (!to_print && !to_summary) return;
  measure_infeasibility(s);
  if (!s.log_header_written) {
    if (settings.print_unit > 0) write_log_header(s, settings, units, settings.print_unit);
    if (settings.summary_unit > 0) write_log_header(s, settings, units, settings.summary_unit);
    s.log_header_written = true;
  }
  if (to_print) write_log_record(s, settings, units, settings.print_unit);
  if (to_summary) write_log_record(s, settings, units, settings.summary_unit);
}

void write_exit_message(int inform, int stall_count, int superbasics_limit, const SimplexSettings& settings,
                        Units& units) {
  if (settings.print_unit <= 0 && settings.summary_unit <= 0) return;  // most solves: build no text
  std::string line;
  switch (inform) {
    case kExitOptimal: line = " EXIT -- optimal solution found"; break;
    case kExitInfeasible: line = " EXIT -- the problem is infeasible"; break;
    case kExitUnbounded: line = std::string(" EXIT -- the problem is unbounded ") + " (or badly scaled)."; break;
    case kExitIterations: line = " EXIT -- too many iterations"; break;
    case kExitStalled:
      line = std::string(" EXIT -- the objective has not changed") + " for the last" + int_field(stall_count, 8) +
             " iterations";
      break;
    case kExitSuperbasicsLimit:
      line = " EXIT -- the superbasics limit is too small:" + int_field(superbasics_limit, 7);
      break;
    case kExitCannotImprove: line = " EXIT -- the current point cannot be improved upon"; break;
    case kExitNumerical:
      line = std::string(" EXIT -- numerical error.  General constraints") + " cannot be satisfied accurately";
      break;
    case kExitRefactorTwice: line = std::string(" EXIT -- basis factorization requested") + " twice in a row"; break;
    case kExitNearOptimal:
      write_both(units, settings, " EXIT -- near-optimal solution found");
      line = std::string(" XXX WARNING: reduced gradient is large --") + " solution is not really optimal";
      break;
    case kExitFactorStorage: line = " EXIT -- not enough storage for the basis factors"; break;
    case kExitBasisError: line = " EXIT -- error in basis package"; break;
    default: return;
  }
  write_both(units, settings, line);
}

void write_final_summary(const SimplexState& s, const ProblemSlot& slot, const SimplexSettings& settings,
                         Units& units) {
  const std::string_view name(s.problem_name.data(), 8);
  for (const int unit : {settings.print_unit, settings.summary_unit}) {
    if (unit <= 0) continue;
    write_record(units, unit, "(/' Problem name',17x,2a4/' No. of iterations',i20,2x,' Objective value',1p,e22.10)",
                 {name.substr(0, 4), name.substr(4, 4), static_cast<long long>(s.counters.iterations), slot.obj});
    write_record(units, unit, "(' No. of infeasibilities',i15,2x,' Sum of infeas',1p,e24.10)",
                 {static_cast<long long>(slot.ninf), slot.sinf});
    if (s.nnobj > 0) {
      long long basic_nonlinear = 0;
      for (int j = 0; j < s.nnobj && j < s.n; ++j) basic_nonlinear += s.state[j] == kBasicVar;
      write_record(units, unit, "(' No. of superbasics',i20,2x,' No. of basic nonlinears',i14)",
                   {static_cast<long long>(slot.ns), basic_nonlinear});
      write_record(units, unit, "(' No. of calls to regobj',i16,2x,' Calls with modes 1,2 (known g)',i7)",
                   {static_cast<long long>(s.counters.regobj_calls), static_cast<long long>(s.counters.regobj_calls)});
    }
  }
}

void write_start_not_recognized(std::string_view word, const SimplexSettings& settings, Units& units) {
  write_both(units, settings, " XXX Start parameter not recognized:  " + std::string(word));
}

void write_factor_tol_reduced(double factor_tol, const SimplexSettings& settings, Units& units) {
  if (settings.print_unit <= 0) return;
  char text[32];
  std::snprintf(text, sizeof text, "%10.2f", factor_tol);
  write_line(units, settings.print_unit, "");
  write_line(units, settings.print_unit, std::string(" LU Factor tol reduced to") + text);
}

void write_replace_singular(int position, const SimplexSettings& settings, Units& units) {
  if (settings.print_unit <= 0) return;
  write_line(units, settings.print_unit,
             std::string(" LU replace  warning.  Singularity after replacing column.") + " jrep =" +
                 int_field(position, 8));
}

// The factorization's own events, in its words, on the print file.
void write_factor_events(const LuReport& report, double factor_tol, int m, const SimplexSettings& settings,
                         Units& units) {
  if (settings.print_unit <= 0) return;
  if (report.factor_tol_used > 0.0 && report.factor_tol_used < factor_tol)
    write_factor_tol_reduced(report.factor_tol_used, settings, units);
  if (report.rank < m) {
    write_line(units, settings.print_unit,
               std::string(" LU check  warning.  The matrix appears to be singular.") + " nrank =" +
                   int_field(report.rank, 7));
  }
}

}  // namespace tarvo::lp
