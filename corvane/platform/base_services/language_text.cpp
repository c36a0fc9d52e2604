#include "corvane/platform/base_services/language_text.h"

#include <fstream>
#include <optional>
#include <string>
#include <system_error>

#include "corvane/platform/base_services/paths.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/base_services/utf8.h"

namespace corvane {
namespace {

std::wstring without_escapes(std::wstring_view text) {
  std::wstring result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t next = text[i] == L'\\' && i + 1 < text.size() ? text[i + 1] : L'\0';
    if (next == L'n' || next == L'\\') {
      result.push_back(next == L'n' ? L'\n' : L'\\');
      ++i;
    } else {
      result.push_back(text[i]);
    }
  }
  return result;
}

std::optional<CString> text_in_line(const std::string& bytes, const CString& key) {
  auto line = wide_from_utf8(bytes);
  if (!line) return std::nullopt;
  if (line->starts_with(L'\uFEFF')) line->erase(0, 1);
  if (line->ends_with(L'\r')) line->pop_back();
  const auto equals = line->find(L'=');
  if (equals == std::wstring::npos) return std::nullopt;
  if (CString(line->substr(0, equals)).Trim() != key) return std::nullopt;
  return CString(without_escapes(std::wstring_view(*line).substr(equals + 1)));
}

}  // namespace

CString GetLanguageText(const CString& key, const CString& default_text) {
  const auto path = native_path(GetConfigPath(L"texts.txt").AsStdString());
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return default_text;
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    if (auto text = text_in_line(line, key)) return *text;
  }
  return default_text;
}

}  // namespace corvane
