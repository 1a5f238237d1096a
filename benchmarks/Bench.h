#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace kinalyx::bench {

/// What one benchmark found.
struct Figure {
  double value = 0;
  std::string unit;
  double baseline = 0;  ///< the same work done bare, in the same unit and run; 0 when there is nothing to compare with
};

/// What a figure is held to. The limit must be kept; the goal is where we want to be.
struct Target {
  enum class Of {
    Ratio,    ///< value / baseline, at most
    AtMost,   ///< the value itself, at most
    AtLeast,  ///< the value itself, at least
  };
  Of of = Of::Ratio;
  double limit = 0;
  double goal = 0;
};

struct Benchmark {
  std::string name;
  Target target;
  std::function<Figure()> run;  ///< called once; may throw, which fails this benchmark alone
};

/// A static object of this type makes a benchmark known to the program:
///   const Register kStepBack({"step_back_dv", {Target::Of::Ratio, 2.0, 1.1}, [] { ... }});
class Register {
 public:
  explicit Register(Benchmark benchmark);
};

/// All benchmarks, sorted by name.
std::vector<Benchmark> Known();

// --- measuring

/// Milliseconds that a call takes by the wall clock.
double MeasureMs(const std::function<void()>& work);
/// The value below which the given part (0 to 1) of the samples lies, by nearest rank; 0 for none.
double Percentile(std::vector<double> samples, double part);
double Median(std::vector<double> samples);
double Mean(std::span<const double> samples);
/// Highest resident size of this process since the last call of ResetPeakMemory, MiB.
double PeakMemoryMiB();
/// Starts a new count of the peak; false when the system does not allow it, and the peak is then that
/// of the whole run.
bool ResetPeakMemory();
/// A folder for files made on the spot; it is removed at the end of the program.
const std::string& ScratchFolder();
/// Keeps the compiler from dropping a computation whose result nobody reads.
void Keep(const void* value);

}  // namespace kinalyx::bench
