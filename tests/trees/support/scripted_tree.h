#pragma once
#include <functional>
#include <vector>

#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"

namespace corvane::test {

// Its scroll bar keeps the loop while the mouse button is held; a step follows each message of it.
// Keeps the keys that have come through to it.
class ScriptedTree : public CTreeCtrlEx2 {
 public:
  ~ScriptedTree() override { DestroyWindow(); }
  std::vector<std::function<void()>> steps;  // one for each WM_VSCROLL
  std::vector<WPARAM> keys;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_VSCROLL && next_ < steps.size()) steps[next_++]();
    if (message == WM_KEYDOWN || message == WM_KEYUP) keys.push_back(wparam);
    return CTreeCtrlEx2::WindowProc(message, wparam, lparam);
  }

 private:
  std::size_t next_ = 0;
};

}  // namespace corvane::test
