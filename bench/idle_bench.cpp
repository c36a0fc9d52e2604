// idle_bench PROGRAM [ARGUMENT...]: processor time of a program over ten seconds in which nothing
// happens to it. To be run on a display of its own (scripts/with-xvfb).
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <thread>

#include "bench/measure.h"

namespace corvane::bench {
namespace {

using std::chrono::milliseconds;

constexpr double limit = 10;  // milliseconds of processor time

class Program {
 public:
  explicit Program(const std::vector<std::string>& command) : process_(fork()) {
    if (process_ != 0) return;
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
      arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    std::perror(arguments.front());
    _exit(127);
  }
  ~Program() {
    if (process_ <= 0) return;
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  bool runs() {
    if (process_ > 0 && waitpid(process_, nullptr, WNOHANG) == process_) process_ = -1;
    return process_ > 0;
  }

  // Milliseconds in user and system mode, of all threads.
  double processor_time() const {
    double nanoseconds = 0;
    const std::string tasks = "/proc/" + std::to_string(process_) + "/task";
    std::error_code error;
    for (const auto& task : std::filesystem::directory_iterator(tasks, error)) {
      std::ifstream statistics(task.path() / "schedstat");
      double of_task = 0;
      if (statistics >> of_task) nanoseconds += of_task;
    }
    return nanoseconds / 1e6;
  }

 private:
  pid_t process_;
};

// Until the program has nothing more to do after its start, at most 20 seconds.
bool settles(Program& program) {
  double last = -1;
  for (int quiet = 0, i = 0; i < 40 && program.runs(); ++i) {
    std::this_thread::sleep_for(milliseconds(500));
    const double now = program.processor_time();
    quiet = now > 0 && now - last < 0.5 ? quiet + 1 : 0;
    if (quiet == 2) return true;
    last = now;
  }
  return program.runs();
}

int run(const Options& options) {
  if (options.rest.empty()) {
    std::fprintf(stderr, "usage: idle_bench [--smoke] [--check] PROGRAM [ARGUMENT...]\n");
    return 2;
  }
  Program program(options.rest);
  if (!settles(program)) {
    std::fprintf(stderr, "%s ended at once\n", options.rest.front().c_str());
    return 1;
  }
  const double before = program.processor_time();
  std::this_thread::sleep_for(milliseconds(options.smoke ? 1000 : 10000));
  const double used = program.processor_time() - before;
  if (before <= 0 || !program.runs()) {
    std::fprintf(stderr, "%s did not stay\n", options.rest.front().c_str());
    return 1;
  }
  Report report(options);
  report.value_with_limit("processor time of the idle program", used, "ms/10s", limit);
  return report.exit_status();
}

}  // namespace
}  // namespace corvane::bench

int main(int argc, char** argv) {
  return corvane::bench::run(corvane::bench::options_of(argc, argv));
}
