#include "tests/platform/conformance/support/golden_file.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <utility>

namespace corvane::conformance {

namespace {

const std::string kStepMark = "  -";
const std::string kLineIndent(6, ' ');

std::vector<std::string> split(const std::string& text, char separator) {
  std::istringstream stream(text);
  std::vector<std::string> parts;
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

bool word_matches(const std::string& expected, const std::string& word) {
  if (!expected.starts_with('~')) return expected == word;
  const std::vector<std::string> present = split(word, '|');
  const auto is_present = [&](const std::string& flag) {
    return std::find(present.begin(), present.end(), flag) != present.end();
  };
  const std::vector<std::string> wanted = split(expected.substr(1), '|');
  return std::all_of(wanted.begin(), wanted.end(), is_present);
}

// The indentation is made of empty words.
bool line_matches(const std::string& expected, const std::string& line) {
  std::vector<std::string> words = split(expected, ' ');
  std::vector<std::string> recorded = split(line, ' ');
  if (!words.empty() && words.back() == "...") {
    words.pop_back();
    recorded.resize(std::min(recorded.size(), words.size()));
  }
  return std::equal(words.begin(), words.end(), recorded.begin(), recorded.end(), word_matches);
}

class Reader {
 public:
  void take(const std::string& line) {
    const std::size_t begin = line.find_first_not_of(' ');
    if (begin == std::string::npos) {
      if (file_.sections.empty()) file_.header = std::exchange(comments_, {});
    } else if (line[begin] == '#') {
      comments_.push_back(line.substr(begin));
    } else if (begin == 0) {
      section_ = &file_.sections[line];
      section_->comments = std::exchange(comments_, {});
    } else if (line.starts_with(kStepMark)) {
      section_->steps.push_back(
          {line.substr(kStepMark.size() + 1), std::exchange(comments_, {}), {}});
    } else {
      if (section_->steps.empty()) section_->steps.push_back({});
      section_->steps.back().lines.push_back(line.substr(kLineIndent.size()));
    }
  }
  GoldenFile file() { return std::move(file_); }

 private:
  GoldenFile file_;
  GoldenSection* section_ = nullptr;
  std::vector<std::string> comments_;
};

void write_section(std::ostream& stream, const std::string& test, const GoldenSection& section) {
  for (const std::string& comment : section.comments) stream << comment << '\n';
  stream << test << '\n';
  for (const GoldenStep& step : section.steps) {
    for (const std::string& comment : step.comments) stream << "    " << comment << '\n';
    if (!step.name.empty()) stream << kStepMark << ' ' << step.name << '\n';
    for (const std::string& line : step.lines) stream << kLineIndent << line << '\n';
  }
}

}  // namespace

GoldenFile read_golden(const std::filesystem::path& path) {
  std::ifstream stream(path);
  Reader reader;
  for (std::string line; std::getline(stream, line);) reader.take(line);
  return reader.file();
}

void write_golden(const std::filesystem::path& path, const GoldenFile& file,
                  const std::vector<std::string>& tests) {
  std::ofstream stream(path);
  for (const std::string& comment : file.header) stream << comment << '\n';
  bool separated = file.header.empty();
  for (const std::string& test : tests) {
    const auto found = file.sections.find(test);
    if (found == file.sections.end() || found->second.steps.empty()) continue;
    if (!std::exchange(separated, false)) stream << '\n';
    write_section(stream, test, found->second);
  }
}

bool golden_matches(const std::vector<std::string>& expected,
                    const std::vector<std::string>& recorded) {
  return std::equal(expected.begin(), expected.end(), recorded.begin(), recorded.end(),
                    line_matches);
}

}  // namespace corvane::conformance
