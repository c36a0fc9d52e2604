#include "corvane/trees/shared/folder_path.h"

namespace corvane {
namespace {

bool take_end(std::wstring_view& text, std::wstring_view end) {
  if (!text.ends_with(end)) return false;
  text.remove_suffix(end.size());
  return true;
}

}  // namespace

std::wstring_view parent_path(std::wstring_view path) {
  const std::size_t separator = path.rfind(kPathSeparator);
  return separator == std::wstring_view::npos ? std::wstring_view() : path.substr(0, separator);
}

std::wstring_view last_component(std::wstring_view path) {
  return path.substr(path.rfind(kPathSeparator) + 1);  // npos + 1 is 0
}

std::wstring_view take_component(std::wstring_view& path) {
  const std::size_t separator = path.find(kPathSeparator);
  const std::wstring_view component = path.substr(0, separator);
  path = separator == std::wstring_view::npos ? std::wstring_view() : path.substr(separator + 1);
  return component;
}

bool take_last_component(std::wstring_view& path, std::wstring_view name) {
  return take_end(path, name) && take_end(path, {&kPathSeparator, 1});
}

void append_component(std::wstring& path, std::wstring_view name) {
  (path += kPathSeparator) += name;
}

}  // namespace corvane
