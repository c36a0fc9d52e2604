#pragma once
// The host of the layers under test: shows a picture that is known everywhere and keeps the
// messages that reach it.
#include <functional>
#include <vector>

#include "corvane/platform/framework/framework.h"

namespace corvane::test {

// What the picture shows at a point of the host's client area: squares of 16 pixels, each of its
// own colour.
COLORREF picture_color(int x, int y);

class HostWindow : public corvane::CWnd {
 public:
  struct Received {
    UINT message;
    WPARAM wparam;
    LPARAM lparam;
  };

  ~HostWindow() override { DestroyWindow(); }
  bool open(const RECT& place);
  // What has come of that message so far, in order; the count of it.
  std::vector<Received> of(UINT message) const;
  std::size_t count(UINT message) const { return of(message).size(); }
  void forget() { received_.clear(); }
  // Called with each message and its wParam before it is handled.
  std::function<void(UINT, WPARAM)> on_message;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  void paint();

  std::vector<Received> received_;
};

}  // namespace corvane::test
