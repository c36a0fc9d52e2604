#include "apps/capture/sorted_listing.h"

#include <algorithm>
#include <string>
#include <vector>

namespace capture {
namespace {

using namespace corvane;

bool is_digit(wchar_t character) { return character >= L'0' && character <= L'9'; }

// The number's digits without zeros before it; what follows stays in `text`.
std::wstring_view take_number(std::wstring_view& text) {
  std::size_t end = 0;
  while (end < text.size() && is_digit(text[end])) ++end;
  std::wstring_view digits = text.substr(0, end);
  text.remove_prefix(end);
  digits.remove_prefix(std::min(digits.find_first_not_of(L'0'), digits.size()));
  return digits;
}

class SortedFolder : public OpenFolder {
 public:
  explicit SortedFolder(std::unique_ptr<OpenFolder> folder) : folder_(std::move(folder)) {}

  FolderIdentity identity() const override { return folder_->identity(); }
  bool list_folders(const FoundFolder& found) override {
    std::vector<std::pair<std::wstring, FolderKind>> folders;
    const bool listed = folder_->list_folders(
        [&](std::wstring_view name, FolderKind kind) { folders.emplace_back(name, kind); });
    std::sort(folders.begin(), folders.end(),
              [](const auto& a, const auto& b) { return stands_before(a.first, b.first); });
    for (const auto& [name, kind] : folders) found(name, kind);
    return listed;
  }
  std::unique_ptr<OpenFolder> open_child(std::wstring_view name) const override {
    return sorted(folder_->open_child(name));
  }
  static std::unique_ptr<OpenFolder> sorted(std::unique_ptr<OpenFolder> folder) {
    return folder ? std::make_unique<SortedFolder>(std::move(folder)) : nullptr;
  }

 private:
  std::unique_ptr<OpenFolder> folder_;
};

class Listing : public FolderListing {
 public:
  std::unique_ptr<OpenFolder> open(const wchar_t* path) override {
    return SortedFolder::sorted(system_->open(path));
  }

 private:
  std::unique_ptr<FolderListing> system_ = system_folder_listing();
};

}  // namespace

std::unique_ptr<FolderListing> sorted_listing() { return std::make_unique<Listing>(); }

bool stands_before(std::wstring_view name, std::wstring_view other) {
  std::wstring_view left = name;
  std::wstring_view right = other;
  while (!left.empty() && !right.empty()) {
    if (is_digit(left.front()) && is_digit(right.front())) {
      const std::wstring_view number = take_number(left);
      const std::wstring_view other_number = take_number(right);
      if (number.size() != other_number.size()) return number.size() < other_number.size();
      if (number != other_number) return number < other_number;
    } else {
      if (left.front() != right.front()) return left.front() < right.front();
      left.remove_prefix(1);
      right.remove_prefix(1);
    }
  }
  if (left.empty() != right.empty()) return left.empty();
  return name < other;  // 7 and 07
}

}  // namespace capture
