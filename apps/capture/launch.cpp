#include "apps/capture/launch.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "apps/capture/picture_folder.h"
#include "corvane/platform/base_services/system_paths.h"

namespace capture {
namespace {

namespace fs = std::filesystem;

// A full path without a separator at its end; empty when it cannot be told.
std::wstring full_path(const std::string& path) {
  std::error_code error;
  const fs::path full = fs::absolute(path, error).lexically_normal();
  if (error) return {};
  std::wstring wide = corvane::wide_path_of(full);
  while (wide.ends_with(L'\\')) wide.pop_back();
  return wide;
}

}  // namespace

Arguments parse_arguments(int count, char** values) {
  Arguments arguments;
  int next = 1;
  for (; next + 1 < count; next += 2) {
    const std::string_view option = values[next];
    if (option == "--library") {
      arguments.library = values[next + 1];
    } else if (option == "--language") {
      arguments.language = values[next + 1];
    } else if (option == "--script") {
      arguments.script_folder = values[next + 1];
    } else {
      break;
    }
  }
  if (next < count && std::string_view(values[next]).starts_with("--")) return arguments;
  if (next < count) arguments.picture = values[next++];
  arguments.valid = next == count && !(arguments.library.empty() && arguments.picture.empty());
  return arguments;
}

std::string environment_language() {
  for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    const std::string_view locale = value;
    const std::string language(locale.substr(0, locale.find_first_of("_.@")));
    return language == "C" || language == "POSIX" ? std::string() : language;
  }
  return {};
}

Launch prepare_launch(const Arguments& arguments) {
  Launch launch;
  Beginning& beginning = launch.beginning;
  if (!arguments.picture.empty()) {
    beginning.picture = CPicture::Open(arguments.picture);
    if (beginning.picture == nullptr) {
      launch.error = "cannot open the picture " + arguments.picture;
      return launch;
    }
    beginning.folder = folder_of(corvane::wide_path_of(beginning.picture->path()));
    beginning.library = beginning.folder;
  }
  if (arguments.library.empty()) return launch;
  beginning.library = full_path(arguments.library);
  if (beginning.library.empty() || !read_folder(beginning.library)) {
    launch.error = "cannot open the folder " + arguments.library;
    return launch;
  }
  return launch;
}

}  // namespace capture
