#include "corvane/platform/system/gdi/font_faces.h"

#include <map>
#include <mutex>

#include "corvane/platform/system/gdi/text_utf8.h"

namespace corvane::system {

namespace {

constexpr const char* kSans = "Noto Sans CJK SC,Noto Sans,DejaVu Sans,Sans";
constexpr const char* kSerif = "Noto Serif CJK SC,Noto Serif,DejaVu Serif,Serif";
constexpr const char* kMono = "Noto Sans Mono CJK SC,DejaVu Sans Mono,Monospace";
constexpr const char* kLatinSerif = "Noto Serif,DejaVu Serif,Noto Serif CJK SC,Serif";

struct KnownFace {
  std::wstring_view face;  // lower case
  const char* families;
};
constexpr KnownFace kKnownFaces[] = {
    {L"", kSans},
    {L"system", kSans},
    {L"ms shell dlg", kSans},
    {L"ms shell dlg 2", kSans},
    {L"ms sans serif", kSans},
    {L"segoe ui", kSans},
    {L"tahoma", kSans},
    {L"arial", kSans},
    {L"verdana", kSans},
    {L"微软雅黑", kSans},
    {L"microsoft yahei", kSans},
    {L"microsoft yahei ui", kSans},
    {L"黑体", kSans},
    {L"simhei", kSans},
    {L"等线", kSans},
    {L"dengxian", kSans},
    {L"宋体", kSerif},
    {L"simsun", kSerif},
    {L"新宋体", kSerif},
    {L"nsimsun", kSerif},
    {L"仿宋", kSerif},
    {L"fangsong", kSerif},
    {L"楷体", kSerif},
    {L"kaiti", kSerif},
    {L"times new roman", kLatinSerif},
    {L"georgia", kLatinSerif},
    {L"courier new", kMono},
    {L"consolas", kMono},
    {L"fixedsys", kMono},
};

struct HostFaces {
  std::mutex lock;
  std::map<std::wstring, std::string> families;
};
HostFaces& host_faces() {
  static HostFaces faces;
  return faces;
}

std::wstring normalised(std::wstring_view face) {
  if (!face.empty() && face.front() == L'@') face.remove_prefix(1);
  std::wstring lower(face);
  for (wchar_t& letter : lower) {
    if (letter >= L'A' && letter <= L'Z') letter = static_cast<wchar_t>(letter - L'A' + L'a');
  }
  return lower;
}

// Empty: the face is neither in the table nor a host's.
std::string known_families(std::wstring_view face) {
  const std::wstring name = normalised(face);
  {
    HostFaces& faces = host_faces();
    const std::lock_guard<std::mutex> guard(faces.lock);
    const auto entry = faces.families.find(name);
    if (entry != faces.families.end()) return entry->second;
  }
  for (const KnownFace& known : kKnownFaces) {
    if (known.face == name) return known.families;
  }
  return {};
}

}  // namespace

std::string font_families(std::wstring_view face) {
  const std::string families = known_families(face);
  return families.empty() ? to_utf8(face) + "," + kSans : families;
}

bool stands_for_others(std::wstring_view face) { return !known_families(face).empty(); }

void map_font_face(std::wstring_view face, std::string families) {
  HostFaces& faces = host_faces();
  const std::lock_guard<std::mutex> guard(faces.lock);
  if (families.empty()) {
    faces.families.erase(normalised(face));
  } else {
    faces.families[normalised(face)] = std::move(families);
  }
}

}  // namespace corvane::system
