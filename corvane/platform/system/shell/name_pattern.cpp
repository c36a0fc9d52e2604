#include "corvane/platform/system/shell/name_pattern.h"

#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <vector>

namespace corvane::system {
namespace {

// Not by the program's locale, which may know no letters beyond ASCII.
wchar_t upper_case(wchar_t character) {
  static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  const auto code = static_cast<wint_t>(character);
  return static_cast<wchar_t>(unicode != nullptr ? towupper_l(code, unicode) : towupper(code));
}

std::wstring upper_case(std::wstring_view text) {
  std::wstring upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](wchar_t character) { return upper_case(character); });
  return upper;
}

bool is_wildcard(wchar_t character) { return character == L'*' || character == L'?'; }

}  // namespace

NamePattern::NamePattern(std::wstring_view pattern)
    : pattern_(upper_case(pattern)),
      has_wildcards_(std::any_of(pattern.begin(), pattern.end(), is_wildcard)),
      fits_everything_(pattern == L"*" || pattern == L"*.*") {}

// Whether the pattern's character at `at` can be passed without one of the name.
bool NamePattern::takes_nothing(std::size_t at, std::wstring_view rest_of_name) const {
  const wchar_t character = pattern_[at];
  if (character == L'*') return true;
  if (character == L'?') return rest_of_name.empty() || rest_of_name.front() == L'.';
  const bool wildcard_follows = at + 1 == pattern_.size() || is_wildcard(pattern_[at + 1]);
  return character == L'.' && wildcard_follows && has_wildcards_ && rest_of_name.empty();
}

// Follows all ways to read the pattern at once: places[i] says that the name up to here fits the
// first i characters of it.
bool NamePattern::fits(std::wstring_view any_case) const {
  if (fits_everything_) return true;
  const std::wstring name = upper_case(any_case);
  const std::size_t last_dot = name.rfind(L'.');
  const std::size_t end = pattern_.size();
  std::vector<char> places(end + 1);
  places[0] = 1;
  for (std::size_t at = 0;; ++at) {
    const std::wstring_view rest = std::wstring_view(name).substr(at);
    for (std::size_t i = 0; i < end; ++i) {
      if (places[i] && takes_nothing(i, rest)) places[i + 1] = 1;
    }
    if (rest.empty()) return places[end] != 0;
    std::vector<char> next(end + 1);
    for (std::size_t i = 0; i < end; ++i) {
      if (!places[i]) continue;
      const bool before_dot = i + 1 < end && pattern_[i + 1] == L'.';
      if (pattern_[i] == L'*') {
        if (!before_dot || at != last_dot) next[i] = 1;
      } else if (pattern_[i] == L'?' ? name[at] != L'.' : pattern_[i] == name[at]) {
        next[i + 1] = 1;
      }
    }
    places = std::move(next);
  }
}

}  // namespace corvane::system
