#pragma once
// Every fixed tolerance and limit of the simplex method, in one place. The tolerances the user
// sets (feasibility, optimality, pivot, crash, scale, LU) come from the options instead.

namespace tarvo::lp {

// Values of this size in working (scaled) units are treated as zero in solves and updates.
inline constexpr double kZeroTolerance = 1.0e-14;
// Entries of a transformed column below this are not pivot candidates in a ratio test even when
// the pivot tolerance is smaller.
inline constexpr double kRatioPivotFloor = 1.0e-9;
// Relative disagreement between the pivot computed from the column and from the row above which
// the factors are considered inaccurate and recomputed.
inline constexpr double kPivotMismatch = 1.0e-8;
// Devex and dual steepest edge weights are restarted when one grows beyond this.
inline constexpr double kWeightResetLimit = 1.0e6;
inline constexpr double kWeightFloor = 1.0e-4;
// The share of each variable's tolerance that the ratio tests let it slip by right after a reset of
// the anti-degeneracy procedure; it grows to the whole tolerance over EXPAND FREQUENCY iterations.
inline constexpr double kExpandStart = 0.5;
// Iterations with no objective progress before bounds (primal) or costs (dual) are perturbed. An
// iteration progresses when it improves the best value reached by this share of it.
inline constexpr int kStallBeforePerturb = 50;
inline constexpr double kProgressMargin = 1.0e-12;
// Relative and absolute size of a perturbation.
inline constexpr double kPerturbRelative = 1.0e-6;
inline constexpr double kPerturbAbsolute = 1.0e-7;
// Iterations with no objective progress after perturbation before the solve gives up (exit 4):
// this count plus twice the number of rows.
inline constexpr int kStallLimitBase = 5000;
// The pivot row is formed row by row while the matrix entries in the rows of the inverse's row
// number at most this share of all entries, and column by column beyond it: a row-wise entry
// costs more (a scatter and a mark) than a column-wise one.
inline constexpr double kRowwiseShare = 0.4;
// Optimal and near-optimal are told apart at this ratio of the reduced-gradient norm to the
// reference norm: the single-precision 0.1 widened to double, compared in double precision.
inline constexpr double kNearOptimalRatio = 0.10000000149011612;
// Scaling: at most this many geometric-mean passes, and scale factors kept within these limits.
inline constexpr int kScalePasses = 20;
inline constexpr double kScaleMin = 1.0e-10;
inline constexpr double kScaleMax = 1.0e10;
// An entry this many times smaller than the largest of its row and than the largest of its column
// is left out of the scaling passes: round-off residue (cut coefficients that should be zero)
// would otherwise pull the geometric means of its row and column by many orders of magnitude.
inline constexpr double kScaleNegligible = 1.0e-10;
// The solution is checked in the problem's own units after every solve: a violation counts when
// it exceeds the feasibility (optimality) tolerance and also this share of the largest number
// that enters it (|a_ij x_j| terms of a row, |x_j| of a column; |c_j| and |a_ij pi_i| of a
// reduced cost), so that rows and duals of size 1e7 are not held to accuracies below round-off.
inline constexpr double kUnscaledRelative = 1.0e-9;
// Where the check finds a violation the variable's working tolerance is cut to this share of the
// true-unit tolerance, and the solve continues from its basis; at most this many rounds.
inline constexpr double kTightenShare = 0.5;
inline constexpr int kCleanupRounds = 3;
// A solution within the tolerances is polished once: variables beyond this share of them (a basic
// value beyond its bound, a reduced cost of the wrong sign) are held to it for one more pass, so
// that large duals do not turn the slack the tolerances give into a visible objective error.
inline constexpr double kPolishShare = 1.0e-3;
// Phase 1 of the dual method: the box of a free variable in the auxiliary problem.
inline constexpr double kFreeBox = 1000.0;
// Fresh factors whose pivots disagree are recomputed with the factor tolerance divided by this,
// down to the least value.
inline constexpr double kFactorTolReduction = 10.0;
inline constexpr double kLeastFactorTol = 2.0;
// Iterations for which a variable whose pivot stays inaccurate on the most stable factors is
// passed over.
inline constexpr int kRejectIterations = 20;
// The row check every CHECK FREQUENCY iterations fails when a residual of [A I] x = 0 exceeds this
// share of the largest value (working units).
inline constexpr double kRowResidualTol = 1.0e-9;
// The dual method confirms an optimum from the factors when its values were updated over at least
// this many iterations (the check in true units follows every solve in any case).
inline constexpr int kVerifyAfter = 10;
// Factorizations in a row that take no update (none asked for, or the first refused) before exit
// 12.
inline constexpr int kRefactorsInARow = 3;

}  // namespace tarvo::lp
