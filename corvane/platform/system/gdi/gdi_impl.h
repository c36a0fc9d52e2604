#pragma once
// The tables behind Gdi and the look-ups that the platform-named functions share. The last error is
// set by whoever fails to find something.
#include <array>
#include <exception>
#include <memory>
#include <type_traits>
#include <variant>

#include "corvane/platform/system/gdi/dc.h"
#include "corvane/platform/system/gdi/gdi.h"
#include "corvane/platform/system/gdi/objects.h"
#include "corvane/platform/system/handle_table.h"

namespace corvane::system {

class TextEngine;

constexpr int kStockObjects = DEFAULT_GUI_FONT + 1;
constexpr int kSystemColors = 31;

struct Gdi::Impl {
  Impl();
  ~Impl();

  HandleTable<GdiObject> objects{next_owner_tag()};
  HandleTable<DeviceContext> contexts{next_owner_tag()};
  std::array<HGDIOBJ, kStockObjects> stock{};
  std::array<HBRUSH, kSystemColors> system_brushes{};
  HBITMAP default_bitmap = nullptr;  // what a fresh memory context has selected

  std::unique_ptr<TextEngine> text;  // made with the first text

  // The object of one kind behind a handle, or null.
  template <class Kind>
  Kind* get(const void* handle) {
    GdiObject* object = objects.find(handle);
    return object != nullptr ? std::get_if<Kind>(&object->kind) : nullptr;
  }
  // The colour of a brush handle or of a system colour index + 1; no_color is set for the null
  // brush. False for neither.
  bool brush_color(HBRUSH brush, std::optional<COLORREF>* color);

  HGDIOBJ add(GdiObject object);
  void select_defaults(DeviceContext& dc);
  void hold(const void* object);     // one more context has it selected
  void release(const void* object);  // one less
  // Frees a doomed object that no context has selected any more.
  void bury(const void* object);
  void release_all(DeviceContext& dc);
  TextEngine& text_engine();
};

// The calling thread's tables, or null with ERROR_INVALID_HANDLE.
Gdi::Impl* current_tables();
// A device context of the current tables, or null with ERROR_INVALID_HANDLE.
DeviceContext* find_dc(HDC dc);

COLORREF system_color(int index);
void add_stock_objects(Gdi::Impl& tables);

// Runs a drawing function; when memory is short it fails softly with `failure`.
template <class Result, class Function>
Result softly(Result failure, Function function) {
  try {
    return function();
  } catch (const std::exception&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return failure;
  }
}

}  // namespace corvane::system
