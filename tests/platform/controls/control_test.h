#pragma once
// A desktop with a host window for controls.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/framework.h"
#include "tests/support/desktop.h"
#include "tests/support/temporary_folder.h"

namespace corvane::test {

// Records what its controls send it; a command runs `on_command` (once) before it is recorded.
class ControlHost : public CWnd {
 public:
  struct Command {
    WPARAM wparam;
    HWND sender, focus, capture;
  };
  std::vector<Command> commands;
  std::vector<CPoint> presses;  // WM_LBUTTONDOWN, client coordinates
  std::function<void()> on_command;

 protected:
  BOOL OnCommand(WPARAM wparam, LPARAM lparam) override;
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override;
};

inline constexpr LOGFONTW kCaptionFont{-14, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET,
                                       0,   0, 0, 0, L"宋体"};

// What a button shows: its face, from edge to edge, and its caption in the middle of a box. A plain
// button has an edge of another colour.
struct Shown {
  COLORREF face = 0;
  std::optional<COLORREF> edge;
  const wchar_t* caption = L"";
  LOGFONTW font = kCaptionFont;
  CRect box;
  COLORREF text = 0;
};

// Screen coordinates are the host's client coordinates.
class ControlTest : public testing::Test, protected Desktop {
 protected:
  static constexpr COLORREF kHostColor = RGB(200, 180, 160);

  ControlTest();
  ~ControlTest() override;

  // A picture of one colour in the skin's image folder.
  void write_picture(const std::string& name, int width, int height, COLORREF color);
  // The window at that place shows exactly what plain calls draw, and nothing beside it.
  void expect_shown(const CRect& place, const Shown& shown);

  TemporaryFolder folder_;
  CWinApp app_;
  std::unique_ptr<ControlHost> host_ = std::make_unique<ControlHost>();
};

}  // namespace corvane::test
