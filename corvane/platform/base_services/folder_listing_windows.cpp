#include <cwchar>
#include <string>
#include <utility>

#include "corvane/platform/base_services/folder_listing.h"
#include "corvane/platform/platform.h"

namespace corvane {
namespace {

constexpr std::wstring_view kLongPrefix = L"\\\\?\\";

// Absolute, with the prefix that allows any length. Empty on failure.
std::wstring long_path(const std::wstring& path) {
  const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
  if (full.empty() || full.size() >= size) return {};
  if (full.rfind(L"\\\\?\\", 0) == 0 || full.rfind(L"\\\\.\\", 0) == 0) return full;
  if (full.rfind(L"\\\\", 0) == 0) return std::wstring(kLongPrefix) + L"UNC" + full.substr(1);
  return std::wstring(kLongPrefix) + full;
}

// Opens nothing for longer than the question takes, so that the folder can be renamed meanwhile.
bool identify(const std::wstring& folder, FolderIdentity& identity) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE handle = CreateFileW(folder.c_str(), FILE_LIST_DIRECTORY, kShareAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  BY_HANDLE_FILE_INFORMATION information{};
  const bool known = GetFileInformationByHandle(handle, &information) != FALSE;
  CloseHandle(handle);
  const std::uint64_t high = information.nFileIndexHigh;
  identity = {information.dwVolumeSerialNumber, (high << 32) | information.nFileIndexLow};
  return known && (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool is_name(std::wstring_view name) {
  return !name.empty() && name != L"." && name != L".." &&
         name.find_first_of(std::wstring_view(L"\\/:*?\0", 6)) == name.npos;
}

class WindowsFolder : public OpenFolder {
 public:
  // `path` ends with a backslash.
  static std::unique_ptr<OpenFolder> open(std::wstring path) {
    FolderIdentity identity;
    if (path.empty() || !identify(path, identity)) return nullptr;
    return std::make_unique<WindowsFolder>(std::move(path), identity);
  }
  WindowsFolder(std::wstring path, const FolderIdentity& identity)
      : path_(std::move(path)), identity_(identity) {}

  FolderIdentity identity() const override { return identity_; }
  bool list_folders(const FoundFolder& found) override;
  std::unique_ptr<OpenFolder> open_child(std::wstring_view name) const override {
    return is_name(name) ? open(path_ + std::wstring(name) + L"\\") : nullptr;
  }

 private:
  std::wstring path_;
  FolderIdentity identity_;
};

struct CloseFind {
  void operator()(HANDLE listing) const { FindClose(listing); }
};

bool WindowsFolder::list_folders(const FoundFolder& found) {
  WIN32_FIND_DATAW entry{};
  const HANDLE listing = FindFirstFileW((path_ + L"*").c_str(), &entry);
  if (listing == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_FILE_NOT_FOUND;
  const std::unique_ptr<void, CloseFind> closed_at_the_end(listing);
  do {
    const std::wstring_view name = entry.cFileName;
    if (!is_name(name) || !(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) continue;
    const bool is_link = (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    found(name, is_link ? FolderKind::link : FolderKind::folder);
  } while (FindNextFileW(listing, &entry));
  return true;
}

class WindowsListing : public FolderListing {
 public:
  std::unique_ptr<OpenFolder> open(const wchar_t* path) override {
    return path != nullptr ? WindowsFolder::open(long_path(std::wstring(path) + L"\\")) : nullptr;
  }
};

}  // namespace

std::unique_ptr<FolderListing> system_folder_listing() {
  return std::make_unique<WindowsListing>();
}

}  // namespace corvane
