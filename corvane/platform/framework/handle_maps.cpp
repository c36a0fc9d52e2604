#include "corvane/platform/framework/handle_maps.h"

#include "corvane/platform/framework/dc.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {
namespace {

// A program whose loop never releases the temporary objects keeps about this many.
constexpr std::size_t kFirstSweep = 64;

}  // namespace

HandleMaps::HandleMaps() : sweep_at_(kFirstSweep) {}
HandleMaps::~HandleMaps() = default;

CWnd* HandleMaps::permanent(HWND window) const {
  const auto found = permanent_.find(window);
  return found == permanent_.end() ? nullptr : found->second;
}

void HandleMaps::add_permanent(HWND window, CWnd* object) { permanent_[window] = object; }

void HandleMaps::remove_permanent(HWND window) { permanent_.erase(window); }

CWnd* HandleMaps::object_of(HWND window) {
  if (window == nullptr) return nullptr;
  if (CWnd* object = permanent(window)) return object;
  if (const auto found = windows_.find(window); found != windows_.end()) return found->second.get();
  if (windows_.size() >= sweep_at_) sweep_stale_windows();
  auto object = std::make_unique<CWnd>();
  object->m_hWnd = window;
  return (windows_[window] = std::move(object)).get();
}

CDC* HandleMaps::temporary_dc(HDC dc) {
  if (dc == nullptr) return nullptr;
  std::unique_ptr<CDC>& object = dcs_[dc];
  if (!object) {
    object = std::make_unique<CDC>();
    object->Attach(dc);
  }
  return object.get();
}

void HandleMaps::release_temporary(const CDC* dc) {
  std::erase_if(dcs_, [dc](const auto& each) { return each.second.get() == dc; });
}

void HandleMaps::release_temporaries() {
  windows_.clear();
  dcs_.clear();
  sweep_at_ = kFirstSweep;
}

void HandleMaps::sweep_stale_windows() {
  std::erase_if(windows_, [](const auto& each) { return !::IsWindow(each.first); });
  sweep_at_ = kFirstSweep + 2 * windows_.size();
}

}  // namespace corvane
