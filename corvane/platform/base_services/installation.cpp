#include "corvane/platform/base_services/installation.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <string_view>
#include <system_error>

#include "corvane/platform/base_services/default_skin.h"
#include "corvane/platform/base_services/system_paths.h"

namespace corvane {
namespace {

using std::filesystem::path;

// What outlives a call here.
struct Chosen {
  std::mutex mutex;
  CString folder;
  CString language;
};

Chosen& chosen() {
  static Chosen by_program;
  return by_program;
}

CString get(CString Chosen::*what) {
  const std::lock_guard lock(chosen().mutex);
  return chosen().*what;
}

void set(CString Chosen::*what, const CString& value) {
  const std::lock_guard lock(chosen().mutex);
  chosen().*what = value;
}

// Names no other folder and no pattern of names.
bool is_language(const CString& language) {
  const std::wstring_view text(language, static_cast<std::size_t>(language.GetLength()));
  return !text.empty() && text.find_first_of(L"./\\:*?") == text.npos;
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
  if (auto folder = get(&Chosen::folder); !folder.IsEmpty()) return {folder};
  const auto folder = found_folder();
  return {folder ? CString(wide_path_of(*folder)).TrimRight(L"\\/") : CString()};
}

void SetSkinFolder(const CString& folder) {
  set(&Chosen::folder, CString(folder).TrimRight(L"\\/"));
}

void SetSkinLanguage(const CString& language) { set(&Chosen::language, language); }

CString CaptionFile() {
  const CString usual = L"ui_language.xml";
  const CString language = get(&Chosen::language);
  const CString skin = Installation::find().config_folder();
  if (!is_language(language) || skin.IsEmpty()) return usual;
  const CString file = L"ui_language." + language + L".xml";
  std::error_code error;
  const path found = native_path((skin + L"\\" + file).AsStdString());
  return std::filesystem::is_regular_file(found, error) ? file : usual;
}

}  // namespace corvane
