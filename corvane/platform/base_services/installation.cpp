#include "corvane/platform/base_services/installation.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <system_error>

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

bool holds_skin(const path& folder) {
  std::error_code error;
  return std::filesystem::is_regular_file(folder / "ui_control.xml", error);
}

std::optional<path> skin_beside(const path& folder) {
  if (folder.empty()) return std::nullopt;
  for (const auto& candidate :
       {folder.parent_path() / "share/corvane/skins/default", folder / "skins/default"}) {
    if (holds_skin(candidate)) return candidate;
  }
  return std::nullopt;
}

// A program that was just built runs from a folder somewhere below its sources.
std::optional<path> skin_above(path folder) {
  constexpr int kFarthest = 6;
  for (int i = 0; i < kFarthest && folder.has_relative_path(); ++i) {
    folder = folder.parent_path();
    if (holds_skin(folder / "skins/default")) return folder / "skins/default";
  }
#ifdef CORVANE_SOURCE_SKIN
  return path(CORVANE_SOURCE_SKIN);
#else
  return std::nullopt;
#endif
}

std::optional<path> found_folder() {
  std::error_code error;
  if (const auto named = path_from_environment("CORVANE_SKIN")) {
    return std::filesystem::absolute(*named, error);
  }
  if (const auto skin = skin_beside(library_folder())) return skin;
  if (const auto skin = skin_beside(program_folder())) return skin;
  return skin_above(program_folder());
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
