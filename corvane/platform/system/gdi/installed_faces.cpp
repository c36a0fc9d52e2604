#include "corvane/platform/system/gdi/installed_faces.h"

#include <pango/pangocairo.h>

#include <memory>
#include <span>
#include <string>

#include "corvane/platform/system/gdi/font_faces.h"
#include "corvane/platform/system/gdi/text_utf8.h"

namespace corvane::system {
namespace {

struct Unref {
  void operator()(PangoFontMap* fonts) const { g_object_unref(fonts); }
};
struct Free {
  void operator()(PangoFontFamily** families) const { g_free(static_cast<void*>(families)); }
};

}  // namespace

bool is_installed_face(std::wstring_view face) {
  if (stands_for_others(face)) return true;
  if (face.starts_with(L'@')) face.remove_prefix(1);
  const std::string wanted = to_utf8(face);
  const std::unique_ptr<PangoFontMap, Unref> fonts(pango_cairo_font_map_new());
  PangoFontFamily** list = nullptr;
  int count = 0;
  pango_font_map_list_families(fonts.get(), &list, &count);
  const std::unique_ptr<PangoFontFamily*, Free> families(list);
  for (PangoFontFamily* const family : std::span(list, static_cast<std::size_t>(count))) {
    if (g_ascii_strcasecmp(pango_font_family_get_name(family), wanted.c_str()) == 0) return true;
  }
  return false;
}

}  // namespace corvane::system
