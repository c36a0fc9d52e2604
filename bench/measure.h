#pragma once
// Times two pieces of work against each other and prints the outcome in one line.
#include <functional>
#include <string>
#include <vector>

namespace corvane::bench {

struct Options {
  bool smoke = false;  // few rounds, only to see that it runs
  bool check = false;  // a broken limit is a failure
  std::vector<std::string> rest;
};

// Takes --smoke and --check out of the arguments.
Options options_of(int argc, char** argv);

struct Times {
  double minimum = 0;  // milliseconds
  double median = 0;
};

// The processor's time is that of this process: right for work that waits for nothing, on a machine
// that has other work to do.
enum class Clock { wall, processor };

// Runs all works in turn, `rounds` times over, so that a slow moment of the machine meets all of
// them. The first round does not count.
std::vector<Times> interleaved(const std::vector<std::function<void()>>& works, int rounds,
                               Clock clock = Clock::wall);

// One line per benchmark: name value unit ratio limit, with "-" for what does not apply.
class Report {
 public:
  explicit Report(const Options& options) : check_(options.check) {}
  // A limit of 0 or below: none.
  void ratio(const std::string& name, const Times& subject, const Times& reference, double limit);
  void value(const std::string& name, double value, const std::string& unit);
  void value_with_limit(const std::string& name, double value, const std::string& unit,
                        double limit);
  int exit_status() const { return check_ && broken_ ? 1 : 0; }

 private:
  void line(const std::string& name, double value, const std::string& unit,
            const std::string& ratio, double limit, bool broken);
  bool check_;
  bool broken_ = false;
};

}  // namespace corvane::bench
