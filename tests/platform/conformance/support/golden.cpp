#include "tests/platform/conformance/support/golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <utility>

#include "tests/support/source_folder.h"

namespace corvane::conformance {

namespace {

using Path = std::filesystem::path;

std::map<Path, std::string> renewed_files;

bool renewing() { return std::getenv("CORVANE_RENEW_GOLDEN") != nullptr; }

Path golden_folder() { return test::source_folder() / "tests/platform/conformance/golden"; }

Path golden_path(const testing::TestInfo& test) {
  return golden_folder() / Path(test.file()).stem().concat(".txt");
}

std::string name_of(const testing::TestInfo& test) {
  return std::string(test.test_suite_name()) + "." + test.name();
}

struct Section {
  std::string argument;  // lines that begin with '#' before the test's name: why it must be so
  std::string recorded;
};

// By test; all other lines but a test's name are indented.
std::map<std::string, Section> read(const Path& path) {
  std::ifstream file(path);
  std::map<std::string, Section> sections;
  std::string test, argument;
  for (std::string line; std::getline(file, line);) {
    if (line.empty()) continue;
    if (line.starts_with('#')) {
      argument += line + "\n";
    } else if (line.starts_with(' ')) {
      sections[test].recorded += line + "\n";
    } else {
      test = line;
      sections[test].argument = std::exchange(argument, "");
    }
  }
  return sections;
}

class GoldenFiles : public testing::Environment {
  void TearDown() override { renewing() ? write_renewed() : expect_no_strangers(); }

  static void write_renewed() {
    std::filesystem::remove_all(golden_folder());
    std::filesystem::create_directories(golden_folder());
    for (const auto& [path, text] : renewed_files) std::ofstream(path) << text;
  }
  // Nothing that is expected may vanish together with its test.
  static void expect_no_strangers() {
    std::set<std::pair<Path, std::string>> known;
    const testing::UnitTest& program = *testing::UnitTest::GetInstance();
    for (int suite = 0; suite < program.total_test_suite_count(); ++suite) {
      const testing::TestSuite& tests = *program.GetTestSuite(suite);
      for (int index = 0; index < tests.total_test_count(); ++index) {
        const testing::TestInfo& test = *tests.GetTestInfo(index);
        known.emplace(golden_path(test), name_of(test));
      }
    }
    for (const auto& entry : std::filesystem::directory_iterator(golden_folder())) {
      for (const auto& [name, section] : read(entry.path())) {
        EXPECT_TRUE(known.contains({entry.path(), name}))
            << entry.path().filename() << " expects something of " << name
            << ", which is no test of that file";
      }
    }
  }
};

[[maybe_unused]] const testing::Environment* const kFiles =
    testing::AddGlobalTestEnvironment(new GoldenFiles);

}  // namespace

void expect_golden(const std::optional<std::string>& recorded) {
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  const Section expected = read(golden_path(test))[name_of(test)];
  if (!renewing()) {
    EXPECT_EQ(expected.recorded, recorded.value_or(expected.recorded))
        << "- as expected, + as recorded";
    return;
  }
  const std::string section = recorded.value_or(expected.recorded);
  if (section.empty()) return;
  std::string& text = renewed_files[golden_path(test)];
  text += (text.empty() ? "" : "\n") + expected.argument + name_of(test) + "\n" + section;
}

}  // namespace corvane::conformance
