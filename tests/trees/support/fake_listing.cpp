#include "tests/trees/support/fake_listing.h"

namespace corvane::test {

using corvane::FolderIdentity;
using corvane::OpenFolder;

class FakeFolder : public OpenFolder {
 public:
  FakeFolder(FakeListing& listing, std::wstring path)
      : listing_(listing), path_(std::move(path)), identity_(listing.identities_.at(path_)) {
    ++listing_.open_;
  }
  ~FakeFolder() override { --listing_.open_; }

  FolderIdentity identity() const override { return {1, identity_}; }

  bool list_folders(const corvane::FoundFolder& found) override {
    if (listing_.fails(path_, 0)) return false;
    std::size_t count = 0;
    for (const std::wstring& name : listing_.names_.at(path_)) {
      if (listing_.fails(path_, count++)) break;
      const bool is_link = listing_.links_.count(path_ + L'\\' + name) > 0;
      found(name, is_link ? corvane::FolderKind::link : corvane::FolderKind::folder);
    }
    return true;
  }

  std::unique_ptr<OpenFolder> open_child(std::wstring_view name) const override {
    return listing_.open_path(path_ + L'\\' + std::wstring(name));
  }

 private:
  FakeListing& listing_;
  std::wstring path_;
  std::uint64_t identity_;
};

void FakeListing::add(const std::wstring& path) {
  if (names_.count(path)) return;
  const std::size_t separator = path.rfind(L'\\');
  if (separator != std::wstring::npos) {
    add(path.substr(0, separator));
    names_[path.substr(0, separator)].push_back(path.substr(separator + 1));
  }
  names_[path];
  identities_[path] = ++last_identity_;
}

void FakeListing::add_link(const std::wstring& path, const std::wstring& target) {
  add(path);
  links_[path] = target;
}

void FakeListing::add_comb(const std::wstring& path, int depth) {
  std::wstring inner = path;
  for (int level = 0; level < depth; ++level) {
    add(inner + L"\\d");
    add(inner + L"\\last");
    inner += L"\\d";
  }
}

std::unique_ptr<OpenFolder> FakeListing::open(const wchar_t* path) {
  std::wstring folder = path;
  while (!names_.count(folder) && folder.ends_with(L'\\')) folder.pop_back();
  return open_path(folder);
}

std::unique_ptr<OpenFolder> FakeListing::open_path(std::wstring path) {
  if (fails(path, 0)) return nullptr;
  if (const auto link = links_.find(path); link != links_.end()) path = link->second;
  if (!names_.count(path)) return nullptr;
  return std::make_unique<FakeFolder>(*this, path);
}

bool FakeListing::fails(const std::wstring& folder, std::size_t names) {
  if (++operations_ != failing_) return false;
  failure_ = {folder, names};
  return true;
}

}  // namespace corvane::test
