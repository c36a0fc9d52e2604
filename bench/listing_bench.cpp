// Loading the folders of a picture library into a tree, against a bare walk over the same folders
// in the same run, with everything in the system's memory.
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bench/bare_listing.h"
#include "bench/measure.h"
#include "bench/scratch_folders.h"
#include "corvane/platform/system/shell/wide_path.h"
#include "corvane/trees/model/tree_loading.h"

namespace corvane::bench {
namespace {

struct Sizes {
  ScratchFolders::Library library;
  int crowd;
  int rounds;
};
constexpr Sizes full{{100, 999, 4}, 100000, 7};
constexpr Sizes small{{5, 19, 4}, 100, 1};

// One folder with all below it, and its tree.
class Subject {
 public:
  Subject(std::string path, long folders)
      : path_(std::move(path)), wide_(system::wide_path(path_)), folders_(folders) {}

  void walk() { complete_ = complete_ && count_folders(path_) == folders_ + 1; }
  void load() {
    model_ = std::make_unique<TreeModel>();
    complete_ = load_folders(*model_, *listing_, wide_.c_str(), nullptr) && complete_;
  }
  void drop() {
    complete_ = complete_ && below(model_->root()) == folders_;
    model_.reset();
  }
  // Whether every walk and every load saw all folders.
  bool complete() const { return complete_; }

 private:
  static long below(const _NODE& node) {
    long count = 0;
    for (const _NODE& child : node.children()) count += 1 + below(child);
    return count;
  }

  std::string path_;
  std::wstring wide_;
  long folders_;
  std::unique_ptr<FolderListing> listing_ = system_folder_listing();
  std::unique_ptr<TreeModel> model_;
  bool complete_ = true;
};

std::size_t bytes_in_use() {
  const struct mallinfo2 use = mallinfo2();
  return use.uordblks + use.hblkhd;
}

double bytes_of_tree(Subject& subject) {
  const std::size_t before = bytes_in_use();
  subject.load();
  const std::size_t after = bytes_in_use();
  subject.drop();
  return static_cast<double>(after) - static_cast<double>(before);
}

// The shortest times decide: what else the machine does, to its caches too, makes a walk longer.
Times shortest(const Times& times, long parts = 1) {
  const double each = times.minimum / static_cast<double>(parts);
  return {each, each};
}

std::string counted(const ScratchFolders::Library& library) {
  const long folders = library.folders();
  return std::to_string(folders) + " folders beside " + std::to_string(folders * library.files) +
         " files";
}

// The search tool of the system, where there is one.
void report_find(const std::string& path, int rounds, Report& report) {
  setenv("LISTING_BENCH_FOLDER", path.c_str(), 1);
  bool works = true;
  const auto find = [&works] {
    works = std::system("find \"$LISTING_BENCH_FOLDER\" -type d >/dev/null 2>&1") == 0 && works;
  };
  const Times times = interleaved({find}, rounds).front();
  if (works) report.value("find -type d over the same", times.minimum, "ms");
}

int run(const Options& options) {
  const Sizes& sizes = options.smoke ? small : full;
  const ScratchFolders scratch;
  scratch.make_library("library", sizes.library);
  scratch.make_crowd("crowd", sizes.crowd);
  const std::string library_path = scratch.path() + "/library";
  Subject library(library_path, sizes.library.folders());
  Subject crowd(scratch.path() + "/crowd", sizes.crowd);

  // The first, so that nothing freed before is used again.
  const double bytes = bytes_of_tree(library);
  const std::vector<Times> times =
      interleaved({[&] { library.walk(); }, [&] { library.load(); }, [&] { library.drop(); },
                   [&] { crowd.walk(); }, [&] { crowd.load(); }, [&] { crowd.drop(); }},
                  sizes.rounds, Clock::processor);
  if (!library.complete() || !crowd.complete()) {
    std::fputs("not all folders were found\n", stderr);
    return 1;
  }
  const auto folders = sizes.library.folders();
  Report report(options);
  report.ratio("load " + counted(sizes.library), shortest(times[1]), shortest(times[0]), 1.25);
  report.value("bare walk over the same", times[0].minimum, "ms");
  report_find(library_path, options.smoke ? 1 : 3, report);
  const std::string crowd_name = "load " + std::to_string(sizes.crowd) + " folders in one";
  report.ratio(crowd_name, shortest(times[4]), shortest(times[3]), 0);
  report.ratio(crowd_name + ", for each", shortest(times[4], sizes.crowd),
               shortest(times[1], folders), 1.5);
  report.value("memory of the tree for each folder", bytes / folders, "bytes");
  return report.exit_status();
}

}  // namespace
}  // namespace corvane::bench

int main(int argc, char** argv) {
  try {
    return corvane::bench::run(corvane::bench::options_of(argc, argv));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
