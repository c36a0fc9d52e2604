#pragma once
// The platform's wildcards. '*' stands for any characters, '?' for one character other than a dot;
// before a dot and at the end of the name it may stand for none. A '.' that only wildcards follow
// also fits the end of a name, and a '*' before a '.' does not reach beyond the name's last dot, so
// that "*." fits names without an extension. "*.*" fits everything. Case does not matter.
#include <string>
#include <string_view>

namespace corvane::system {

class NamePattern {
 public:
  explicit NamePattern(std::wstring_view pattern);

  bool has_wildcards() const { return has_wildcards_; }
  bool fits(std::wstring_view name) const;

 private:
  bool takes_nothing(std::size_t at, std::wstring_view rest_of_name) const;

  std::wstring pattern_;  // upper case
  bool has_wildcards_;
  bool fits_everything_;
};

}  // namespace corvane::system
