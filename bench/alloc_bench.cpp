// Heap allocations inside the Benders loop. Each problem runs twice through the whole program,
// once stopped by a short iteration limit and once by a longer one; the difference in operator
// new calls is what the extra iterations (master solves, subproblem solves, cuts) allocated.
// Anything the run does once, before or after the loop, cancels out. Exits 1 when an extra
// iteration allocated.
//
// Run as: alloc_bench [source directory]; without it the examples are looked for in the current
// directory and its parents.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>
#include <string>

#include "driver/run.h"

namespace fs = std::filesystem;

namespace {

long long g_allocations = 0;

void* counted_allocation(std::size_t size) {
  ++g_allocations;
  if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
  throw std::bad_alloc();
}

fs::path find_source(const fs::path& start) {
  for (fs::path p = start; !p.empty(); p = p.parent_path()) {
    if (fs::exists(p / "examples" / "stormg2-8")) return p;
    if (p == p.parent_path()) break;
  }
  return start;
}

// Allocations of one whole run of `example` with the strategy and iteration limit given.
long long run_allocations(const fs::path& source, const char* example, int istrat, int samples, int maxit) {
  const fs::path dir = fs::temp_directory_path() / ("tarvo-alloc-" + std::string(example));
  fs::remove_all(dir);
  fs::create_directories(dir);
  for (const char* file : {"MODEL.COR", "MODEL.TIM", "MODEL.STO", "SIMPLEX.SPC"}) {
    fs::copy_file(source / "examples" / example / file, dir / file);
  }
  std::ofstream(dir / "MODEL.INP") << istrat << " istrat\n" << samples << " nsamples\n100 nzrows\n"
                                   << maxit << " maxit\n1.0d-7 tolben\n1 igms\n";
  const fs::path previous = fs::current_path();
  fs::current_path(dir);
  const long long before = g_allocations;
  tarvo::driver::run_tarvo();
  const long long used = g_allocations - before;
  fs::current_path(previous);
  fs::remove_all(dir);
  return used;
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
  const struct { const char* name; int istrat; int samples; int short_limit; int long_limit; } runs[] = {
      {"stormg2-8", 4, 100, 5, 15}, {"lands3", 4, 100, 2, 5}, {"lands-1e6", 10, 500, 3, 6}};
  bool clean = true;
  for (const auto& run : runs) {
    const long long short_run = run_allocations(source, run.name, run.istrat, run.samples, run.short_limit);
    const long long long_run = run_allocations(source, run.name, run.istrat, run.samples, run.long_limit);
    const long long extra = long_run - short_run;
    std::printf("%-12s istrat %2d: %lld allocations in iterations %d to %d (whole runs: %lld, %lld)\n",
                run.name, run.istrat, extra, run.short_limit + 1, run.long_limit, short_run, long_run);
    clean = clean && extra <= 0;
  }
  return clean ? 0 : 1;
}
