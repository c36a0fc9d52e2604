#include "tests/platform/conformance/support/log_pattern.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace corvane::conformance {

namespace {

std::vector<std::string> split_words(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::set<std::string> split_flags(const std::string& text) {
  std::istringstream stream(text);
  std::set<std::string> flags;
  for (std::string flag; std::getline(stream, flag, '|');) flags.insert(flag);
  return flags;
}

bool word_matches(const std::string& pattern, const std::string& word) {
  if (pattern == word) return true;
  if (pattern.rfind('~', 0) == 0) {
    const std::set<std::string> wanted = split_flags(pattern.substr(1));
    const std::set<std::string> present = split_flags(word);
    return std::includes(present.begin(), present.end(), wanted.begin(), wanted.end());
  }
  return pattern.find('|') != std::string::npos && split_flags(pattern) == split_flags(word);
}

bool names_a_window(const std::string& step) {
  return step.rfind("WM_", 0) != 0 && step.rfind("(q)", 0) != 0;
}

class PatternReader {
 public:
  std::vector<LogLine> read(std::string_view text) {
    for (const char character : text) {
      if (character == '>' || character == '{' || character == '}') {
        finish_step();
        depth_ += character == '{' ? 1 : character == '}' ? -1 : 0;
      } else {
        step_ += character;
      }
    }
    finish_step();
    return std::move(lines_);
  }

 private:
  void finish_step() {
    std::vector<std::string> words = split_words(step_);
    step_.clear();
    if (words.empty()) return;
    if (names_a_window(words.front())) {
      window_ = words.front();
      words.erase(words.begin());
    }
    std::string line = window_;
    for (const std::string& word : words) line += " " + word;
    lines_.push_back({depth_, line});
  }

  std::vector<LogLine> lines_;
  std::string step_;
  std::string window_;
  int depth_ = 0;
};

}  // namespace

std::vector<LogLine> read_pattern(std::string_view text) { return PatternReader().read(text); }

bool line_matches(const std::string& pattern, const std::string& line) {
  const std::vector<std::string> expected = split_words(pattern);
  const std::vector<std::string> actual = split_words(line);
  return expected.size() <= actual.size() &&
         std::equal(expected.begin(), expected.end(), actual.begin(), word_matches);
}

std::string write_log(const std::vector<LogLine>& lines) {
  std::string text;
  int depth = 0;
  for (const LogLine& line : lines) {
    if (!text.empty()) text += line.depth > depth ? " {" : line.depth < depth ? "" : " >";
    for (; depth > line.depth; --depth) text += " }";
    if (!text.empty()) text += "\n";
    text += std::string(static_cast<std::size_t>(2 + 2 * line.depth), ' ') + line.text;
    depth = line.depth;
  }
  for (; depth > 0; --depth) text += " }";
  return text.empty() ? "  (nothing)" : text;
}

}  // namespace corvane::conformance
