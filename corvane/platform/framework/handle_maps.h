#pragma once
// The objects of one thread's handles. Permanent objects belong to the program; temporary ones
// stand in for handles that have none, and belong to the maps.
#include <memory>
#include <unordered_map>

#include "corvane/platform/platform.h"

namespace corvane {

class CDC;
class CWnd;

class HandleMaps {
 public:
  HandleMaps();
  ~HandleMaps();
  HandleMaps(const HandleMaps&) = delete;
  HandleMaps& operator=(const HandleMaps&) = delete;

  CWnd* permanent(HWND window) const;  // null: none
  void add_permanent(HWND window, CWnd* object);
  void remove_permanent(HWND window);

  // The permanent or else a temporary object; null for a null handle.
  CWnd* object_of(HWND window);
  CDC* temporary_dc(HDC dc);
  void release_temporary(const CDC* dc);  // nothing when it is none
  void release_temporaries();
  std::size_t temporaries() const { return windows_.size() + dcs_.size(); }

 private:
  void sweep_stale_windows();

  std::unordered_map<HWND, CWnd*> permanent_;
  std::unordered_map<HWND, std::unique_ptr<CWnd>> windows_;
  std::unordered_map<HDC, std::unique_ptr<CDC>> dcs_;
  std::size_t sweep_at_;
};

}  // namespace corvane
