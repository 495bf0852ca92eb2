#pragma once
// The run parameters, with their defaults: the sixteen of every run, the switch for integer
// columns, the cut groups, the threads and the stabilization. Read once at the start of a run
// (driver); every subsystem reads them from here.

namespace tarvo {

struct RunParams {
  int istrat = 3;
  int nsamples = 100;
  int nzrows = 100;
  int maxit = 1000;
  int iwrite = 0;
  int ibug = 0;
  int iscratch = 17;
  int iresamp = 1;
  int igms = 0;
  int ireg = 0;
  double rho = 1000.0;
  double tolben = 1.0e-7;
  double tolw = 1.0e-9;
  int iappr = 1;
  double maxtime = 345600.0;
  int iseed = 12933428;
  // 1: integer columns of the core are solved as continuous, with a warning (not echoed).
  int irelax = 0;
  int ncuts = 1;     // cut groups of the master: 1 a single cut, 0 one per outcome, k > 1 k groups
  int nthreads = 1;  // threads that solve subproblems at the same time
  // Weight of the best proposal in the point where cuts are taken (0: the master's solution).
  double stabil = 0.0;
};

}  // namespace tarvo
