#include "lp/problem_slot.h"

namespace tarvo::lp {

void allocate_slot(ProblemSlot& slot, int mmax, int nmax, int nemax) {
  slot.mmax = mmax;
  slot.nmax = nmax;
  slot.nemax = nemax;
  const int nbmax = mmax + nmax;
  slot.a.assign(nemax + 1, 0.0);
  slot.ha.assign(nemax + 1, 0);
  slot.ka.assign(nmax + 2, 0);
  slot.bl.assign(nbmax + 1, 0.0);
  slot.bu.assign(nbmax + 1, 0.0);
  slot.hs.assign(nbmax + 1, 0);
  slot.xn.assign(nbmax + 1, 0.0);
  slot.pi.assign(mmax + 1, 0.0);
  slot.rc.assign(nmax + 1, 0.0);
  slot.names.assign(nbmax + 1, Name8{});
  slot.row_type.assign(mmax + 1, 0);
  slot.reader_work.assign(nmax + 1, 0);
}

}  // namespace tarvo::lp
