#include "tests/platform/conformance/support/golden.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

#include "tests/platform/conformance/support/golden_file.h"
#include "tests/support/source_folder.h"

namespace corvane::conformance {

namespace {

using Path = std::filesystem::path;

bool renewing() { return std::getenv("CORVANE_RENEW_GOLDEN") != nullptr; }

Path golden_folder() { return test::source_folder() / "tests/platform/conformance/golden"; }

Path golden_path(const testing::TestInfo& test) {
  return golden_folder() / Path(test.file()).stem().concat(".txt");
}

std::string name_of(const testing::TestInfo& test) {
  return std::string(test.test_suite_name()) + "." + test.name();
}

// By golden file, then as they stand in their own file.
std::map<Path, std::vector<std::string>> all_tests() {
  std::map<Path, std::vector<std::pair<int, std::string>>> found;
  const testing::UnitTest& program = *testing::UnitTest::GetInstance();
  for (int suite = 0; suite < program.total_test_suite_count(); ++suite) {
    const testing::TestSuite& tests = *program.GetTestSuite(suite);
    for (int index = 0; index < tests.total_test_count(); ++index) {
      const testing::TestInfo& test = *tests.GetTestInfo(index);
      found[golden_path(test)].emplace_back(test.line(), name_of(test));
    }
  }
  std::map<Path, std::vector<std::string>> names;
  for (auto& [path, tests] : found) {
    std::stable_sort(tests.begin(), tests.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    for (const auto& [line, name] : tests) names[path].push_back(name);
  }
  return names;
}

std::map<Path, GoldenFile> expected_files;
std::map<Path, GoldenFile> renewed_files;

const GoldenSection& expected_section(const testing::TestInfo& test) {
  const Path path = golden_path(test);
  const auto found = expected_files.find(path);
  GoldenFile& file =
      found != expected_files.end() ? found->second : (expected_files[path] = read_golden(path));
  return file.sections[name_of(test)];
}

void renew(const testing::TestInfo& test, const GoldenSection& former, GoldenStep step) {
  GoldenSection& section = renewed_files[golden_path(test)].sections[name_of(test)];
  section.comments = former.comments;
  for (const GoldenStep& each : former.steps) {
    if (each.name != step.name) continue;
    step.comments = each.comments;
    if (golden_matches(each.lines, step.lines)) step.lines = each.lines;
  }
  section.steps.push_back(step);
}

bool has_steps(const GoldenFile& file) {
  return std::any_of(file.sections.begin(), file.sections.end(),
                     [](const auto& each) { return !each.second.steps.empty(); });
}

std::string text_of(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += "    " + line + "\n";
  return text;
}

class GoldenFiles : public testing::Environment {
  void TearDown() override { renewing() ? write_renewed() : expect_no_strangers(); }

  static void write_renewed() {
    std::filesystem::create_directories(golden_folder());
    for (const auto& [path, tests] : all_tests()) {
      if (!renewed_files.contains(path)) continue;
      GoldenFile former = read_golden(path);
      renewed_files[path].header = former.header;
      renewed_files[path].sections.merge(former.sections);  // of the tests that did not run
      if (!has_steps(renewed_files[path])) continue;
      write_golden(path, renewed_files[path], tests);
    }
  }
  // Nothing that is expected may vanish together with its test.
  static void expect_no_strangers() {
    const auto tests = all_tests();
    for (const auto& entry : std::filesystem::directory_iterator(golden_folder())) {
      const auto known = tests.find(entry.path());
      for (const auto& [name, section] : read_golden(entry.path()).sections) {
        EXPECT_TRUE(known != tests.end() &&
                    std::count(known->second.begin(), known->second.end(), name) == 1)
            << entry.path().filename() << " expects something of " << name
            << ", which is no test of that file";
      }
    }
  }
};

[[maybe_unused]] const testing::Environment* const kFiles =
    testing::AddGlobalTestEnvironment(new GoldenFiles);

}  // namespace

testing::AssertionResult GoldenTest::compare(const std::string& step,
                                             const std::vector<std::string>& lines) {
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  const GoldenSection& section = expected_section(test);
  const std::size_t index = taken_++;
  if (renewing()) {
    renew(test, section, {step, {}, lines});
    return testing::AssertionSuccess();
  }
  const bool known = index < section.steps.size() && section.steps[index].name == step;
  if (known && golden_matches(section.steps[index].lines, lines)) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure()
         << "step " << index + 1 << " \"" << step << "\"\n  expected\n"
         << (known ? text_of(section.steps[index].lines) : "    no such step here\n")
         << "  recorded\n"
         << text_of(lines);
}

testing::AssertionResult GoldenTest::end() const {
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  if (renewing()) renewed_files[golden_path(test)].sections.try_emplace(name_of(test));
  const std::size_t expected = renewing() ? taken_ : expected_section(test).steps.size();
  if (taken_ == expected) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << taken_ << " of " << expected << " expected steps were taken";
}

}  // namespace corvane::conformance
