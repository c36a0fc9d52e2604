#include "tests/trees/support/fake_listing.h"

#include <functional>

namespace corvane::test {

class FakeFolder : public OpenFolder {
 public:
  FakeFolder(FakeListing& listing, std::wstring path) : listing_(listing), path_(std::move(path)) {}

  FolderIdentity identity() const override {
    return {1, listing_.one_number_ ? 1 : std::hash<std::wstring>()(path_)};
  }

  bool list_folders(const FoundFolder& found) override {
    if (listing_.fails()) return false;
    for (const std::wstring& name : listing_.names_.at(path_)) {
      if (listing_.fails()) break;
      const bool is_link = listing_.links_.contains(path_ + L'\\' + name);
      found(name, is_link ? FolderKind::link : FolderKind::folder);
    }
    return true;
  }

  std::unique_ptr<OpenFolder> open_child(std::wstring_view name) const override {
    return listing_.open_path(path_ + L'\\' + std::wstring(name));
  }

 private:
  FakeListing& listing_;
  std::wstring path_;
};

void FakeListing::add(const std::wstring& path) {
  if (!names_.try_emplace(path).second) return;
  const std::size_t separator = path.rfind(L'\\');
  if (separator == std::wstring::npos) return;
  add(path.substr(0, separator));
  names_[path.substr(0, separator)].push_back(path.substr(separator + 1));
}

void FakeListing::add_link(const std::wstring& path, const std::wstring& target) {
  add(path);
  links_[path] = target;
}

std::unique_ptr<OpenFolder> FakeListing::open(const wchar_t* path) {
  std::wstring folder = path;
  while (!names_.contains(folder) && folder.ends_with(L'\\')) folder.pop_back();
  return open_path(folder);
}

std::unique_ptr<OpenFolder> FakeListing::open_path(std::wstring path) {
  if (fails()) return nullptr;
  if (const auto link = links_.find(path); link != links_.end()) path = link->second;
  if (!names_.contains(path)) return nullptr;
  return std::make_unique<FakeFolder>(*this, path);
}

}  // namespace corvane::test
