#include "bench/measure.h"

#include <time.h>

#include <algorithm>
#include <cstdio>

namespace corvane::bench {

namespace {

double milliseconds(Clock clock) {
  timespec now{};
  clock_gettime(clock == Clock::wall ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double milliseconds_of(const std::function<void()>& work, Clock clock) {
  const double start = milliseconds(clock);
  work();
  return milliseconds(clock) - start;
}

std::string with_digits(double value, int digits) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", digits, value);
  return text;
}

}  // namespace

Options options_of(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--smoke") {
      options.smoke = true;
    } else if (argument == "--check") {
      options.check = true;
    } else {
      options.rest.push_back(argument);
    }
  }
  return options;
}

std::vector<Times> interleaved(const std::vector<std::function<void()>>& works, int rounds,
                               Clock clock) {
  std::vector<std::vector<double>> samples(works.size());
  for (int round = 0; round <= rounds; ++round) {
    for (std::size_t i = 0; i < works.size(); ++i) {
      const double time = milliseconds_of(works[i], clock);
      if (round > 0) samples[i].push_back(time);
    }
  }
  std::vector<Times> times;
  for (std::vector<double>& one : samples) {
    std::sort(one.begin(), one.end());
    times.push_back({one.front(), one[one.size() / 2]});
  }
  return times;
}

void Report::ratio(const std::string& name, const Times& subject, const Times& reference,
                   double limit) {
  const double ratio = subject.median / reference.median;
  line(name, subject.median, "ms", with_digits(ratio, 2), limit, limit > 0 && ratio > limit);
}

void Report::value(const std::string& name, double value, const std::string& unit) {
  line(name, value, unit, "-", 0, false);
}

void Report::value_with_limit(const std::string& name, double value, const std::string& unit,
                              double limit) {
  line(name, value, unit, "-", limit, value > limit);
}

void Report::line(const std::string& name, double value, const std::string& unit,
                  const std::string& ratio, double limit, bool broken) {
  std::printf("%-44s %12.3f %-8s %8s %8s%s\n", name.c_str(), value, unit.c_str(), ratio.c_str(),
              limit > 0 ? with_digits(limit, 2).c_str() : "-", broken ? "  OVER THE LIMIT" : "");
  std::fflush(stdout);
  broken_ = broken_ || broken;
}

}  // namespace corvane::bench
