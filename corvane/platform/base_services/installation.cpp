#include "corvane/platform/base_services/installation.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <system_error>

#include "corvane/platform/base_services/default_skin.h"
#include "corvane/platform/base_services/system_paths.h"

namespace corvane {
namespace {

using std::filesystem::path;

struct ChosenFolder {
  std::mutex mutex;
  CString folder;
};

ChosenFolder& chosen_folder() {
  static ChosenFolder chosen;
  return chosen;
}

CString folder_set_by_program() {
  auto& chosen = chosen_folder();
  const std::lock_guard lock(chosen.mutex);
  return chosen.folder;
}

std::optional<path> found_folder() {
  std::error_code error;
  if (const auto named = path_from_environment("CORVANE_SKIN")) {
    return std::filesystem::absolute(*named, error);
  }
  if (auto skin = find_default_skin(library_folder(), program_folder())) return skin;
#ifdef CORVANE_SOURCE_SKIN
  return path(CORVANE_SOURCE_SKIN);
#else
  return std::nullopt;
#endif
}

}  // namespace

Installation Installation::find() {
  if (auto folder = folder_set_by_program(); !folder.IsEmpty()) return {folder};
  const auto folder = found_folder();
  return {folder ? CString(wide_path_of(*folder)).TrimRight(L"\\/") : CString()};
}

void SetSkinFolder(const CString& folder) {
  auto& chosen = chosen_folder();
  const std::lock_guard lock(chosen.mutex);
  chosen.folder = CString(folder).TrimRight(L"\\/");
}

}  // namespace corvane
