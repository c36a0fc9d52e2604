// Handlers that delete their own object, its parent, or only its window, in every message. With the
// address sanitizer these fail on any touch of what is gone.
#include <gtest/gtest.h>

#include "tests/platform/framework/watched_wnd.h"
#include "tests/support/desktop.h"

namespace corvane {
namespace {

enum class Deed { delete_self, destroy_self, delete_parent };

struct Count {
  int alive = 0;
  int deeds = 0;
};

// Does the deed at the first message `trigger`, in the handler that the message map names.
class FragileWnd : public WatchedWnd {
 public:
  FragileWnd(UINT trigger, Deed deed, WatchedWnd* parent, Count* count)
      : trigger_(trigger), deed_(deed), parent_(parent), count_(count) {
    ++count_->alive;
  }
  ~FragileWnd() override { --count_->alive; }
  const MessageMap* GetMessageMap() const override;

 protected:
  void Plain() { act_or_default(); }
  void Mouse(UINT, CPoint) { act_or_default(); }
  BOOL Wheel(UINT, short, CPoint) { return act(), FALSE; }
  int Create(LPCREATESTRUCT) { return act(), 0; }
  void Size(UINT, int, int) { act(); }
  void Move(int, int) { act(); }
  BOOL Erase(CDC*) { return act(), FALSE; }
  void Timer(UINT_PTR) { act(); }
  BOOL Cursor(CWnd*, UINT, UINT) { return act(), FALSE; }
  void Focus(CWnd*) { act(); }
  void Capture(CWnd*) { act(); }
  void Key(UINT, UINT, UINT) { act(); }
  void Show(BOOL, UINT) { act(); }
  void Enable(BOOL) { act(); }
  void Activate(UINT, CWnd*, BOOL) { act(); }
  void SysCommand(UINT, LPARAM) { act(); }
  void Position(WINDOWPOS*) { act_or_default(); }
  LRESULT Generic(WPARAM, LPARAM) { return act(), TRUE; }
  void Paint() {
    CPaintDC dc(this);
    act();
    dc.FillSolidRect(CRect(0, 0, 5, 5), RGB(1, 2, 3));
  }
  BOOL OnCommand(WPARAM, LPARAM) override { return act(WM_COMMAND), FALSE; }
  BOOL OnNotify(WPARAM, LPARAM, LRESULT*) override { return act(WM_NOTIFY), FALSE; }
  void PostNcDestroy() override {
    if (trigger_ == WM_NULL) delete this;
  }

 private:
  // The default handling may bring a nested message that deletes the object.
  void act_or_default() {
    if (GetCurrentMessage()->message == trigger_)
      act();
    else
      Default();
  }
  void act() { act(GetCurrentMessage()->message); }
  void act(UINT message) {
    if (message != trigger_ || count_->deeds > 0) return;
    ++count_->deeds;
    if (deed_ == Deed::delete_self)
      delete this;
    else if (deed_ == Deed::destroy_self)
      DestroyWindow();
    else
      delete parent_;
  }

  UINT trigger_;
  Deed deed_;
  WatchedWnd* parent_;
  Count* count_;
};

const MessageMap* FragileWnd::GetMessageMap() const {
  using W = FragileWnd;
  static constexpr auto kMessages = MessageTable(
      OnMessage<WM_NCCREATE>(&W::Generic), On<WM_CREATE>(&W::Create), On<WM_DESTROY>(&W::Plain),
      On<WM_SIZE>(&W::Size), On<WM_MOVE>(&W::Move), On<WM_PAINT>(&W::Paint),
      On<WM_CLOSE>(&W::Plain), On<WM_ERASEBKGND>(&W::Erase), On<WM_TIMER>(&W::Timer),
      On<WM_SETCURSOR>(&W::Cursor), On<WM_SETFOCUS>(&W::Focus), On<WM_KILLFOCUS>(&W::Focus),
      On<WM_CAPTURECHANGED>(&W::Capture), On<WM_KEYDOWN>(&W::Key), On<WM_KEYUP>(&W::Key),
      On<WM_CHAR>(&W::Key), On<WM_SHOWWINDOW>(&W::Show), On<WM_ENABLE>(&W::Enable),
      On<WM_ACTIVATE>(&W::Activate), On<WM_SYSCOMMAND>(&W::SysCommand),
      On<WM_WINDOWPOSCHANGING>(&W::Position), On<WM_WINDOWPOSCHANGED>(&W::Position),
      On<WM_MOUSEMOVE>(&W::Mouse), On<WM_LBUTTONDOWN>(&W::Mouse), On<WM_LBUTTONUP>(&W::Mouse),
      On<WM_LBUTTONDBLCLK>(&W::Mouse), On<WM_RBUTTONDOWN>(&W::Mouse), On<WM_MOUSEWHEEL>(&W::Wheel),
      On<WM_CANCELMODE>(&W::Plain), OnMessage<WM_USER>(&W::Generic));
  static const MessageMap map = kMessages.extending(WatchedWnd::GetMessageMap());
  return &map;
}

constexpr UINT kTriggers[] = {
    WM_NCCREATE,
    WM_CREATE,
    WM_DESTROY,
    WM_SIZE,
    WM_MOVE,
    WM_PAINT,
    WM_CLOSE,
    WM_ERASEBKGND,
    WM_TIMER,
    WM_SETCURSOR,
    WM_SETFOCUS,
    WM_KILLFOCUS,
    WM_CAPTURECHANGED,
    WM_KEYDOWN,
    WM_KEYUP,
    WM_CHAR,
    WM_SHOWWINDOW,
    WM_ENABLE,
    WM_ACTIVATE,
    WM_SYSCOMMAND,
    WM_COMMAND,
    WM_NOTIFY,
    WM_MOUSEMOVE,
    WM_LBUTTONDOWN,
    WM_LBUTTONUP,
    WM_LBUTTONDBLCLK,
    WM_RBUTTONDOWN,
    WM_MOUSEWHEEL,
    WM_CANCELMODE,
    WM_USER,
    WM_WINDOWPOSCHANGING,
    WM_WINDOWPOSCHANGED,
};

// Makes the window system send or post every message above to the window; stops caring when it is
// gone. WM_NCCREATE to WM_MOVE come with the creation.
void go_through_everything(test::Desktop& desktop, HWND window) {
  NMHDR header{window, 0, 0};
  const auto turn = [&desktop] {
    desktop.pump();
    desktop.pixel(0, 0);  // composes
  };
  ::ShowWindow(window, SW_SHOW);
  turn();
  ::SetFocus(window);
  ::SetTimer(window, 3, 20, nullptr);
  desktop.advance(25);
  turn();
  ::SetCursorPos(150, 150);
  turn();
  desktop.send_mouse(MOUSEEVENTF_LEFTDOWN);
  turn();
  desktop.send_mouse(MOUSEEVENTF_LEFTUP);
  desktop.send_mouse(MOUSEEVENTF_LEFTDOWN);
  desktop.send_mouse(MOUSEEVENTF_LEFTUP);
  desktop.send_mouse(MOUSEEVENTF_RIGHTDOWN);
  desktop.send_mouse(MOUSEEVENTF_RIGHTUP);
  desktop.send_mouse(MOUSEEVENTF_WHEEL, 120);
  turn();
  desktop.send_key('A', true);
  desktop.send_key('A', false);
  turn();
  ::SetCapture(window);
  ::ReleaseCapture();
  ::MoveWindow(window, 60, 60, 90, 80, TRUE);
  ::EnableWindow(window, FALSE);
  ::EnableWindow(window, TRUE);
  ::SetFocus(nullptr);
  ::SendMessageW(window, WM_COMMAND, 5, 0);
  ::SendMessageW(window, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
  ::SendMessageW(window, WM_CANCELMODE, 0, 0);
  ::SendMessageW(window, WM_SYSCOMMAND, 0xF999, 0);
  ::PostMessageW(window, WM_USER, 0, 0);
  turn();
  ::SendMessageW(window, WM_ACTIVATE, WA_INACTIVE, 0);
  ::SendMessageW(window, WM_CLOSE, 0, 0);
  ::DestroyWindow(window);
}

class FrameworkDeletion : public testing::TestWithParam<std::tuple<UINT, Deed>> {};

TEST_P(FrameworkDeletion, LeavesNoTraceBehind) {
  const auto [trigger, deed] = GetParam();
  Count count;
  test::Desktop desktop;
  {
    WatchedWnd main;
    ASSERT_TRUE(main.create(nullptr, WS_POPUP | WS_VISIBLE, CRect(0, 0, 600, 500)));
    auto* parent = new WatchedWnd;
    ASSERT_TRUE(parent->create(main, WS_CHILD | WS_VISIBLE));
    const HWND parent_handle = *parent;
    auto* fragile = new FragileWnd(trigger, deed, parent, &count);
    HWND handle = nullptr;
    fragile->create(parent_handle, WS_CHILD, CRect(40, 40, 120, 120));
    handle = ::GetWindow(parent_handle, GW_CHILD);
    go_through_everything(desktop, handle);
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(count.deeds, 1);
    EXPECT_EQ(::IsWindow(parent_handle), deed != Deed::delete_parent);
    EXPECT_EQ(count.alive, deed == Deed::delete_self ? 0 : 1);
    if (count.alive) {
      EXPECT_EQ(fragile->GetSafeHwnd(), nullptr);
      delete fragile;
    }
    if (deed != Deed::delete_parent) delete parent;
    EXPECT_EQ(desktop.living_windows(), 1);
  }
  EXPECT_EQ(desktop.living_windows(), 0);
}

std::string name_of(const testing::TestParamInfo<std::tuple<UINT, Deed>>& info) {
  constexpr const char* kDeeds[] = {"DeleteSelf", "DestroySelf", "DeleteParent"};
  char text[64];
  std::snprintf(text, sizeof text, "%s_0x%04X", kDeeds[static_cast<int>(std::get<1>(info.param))],
                std::get<0>(info.param));
  return text;
}

INSTANTIATE_TEST_SUITE_P(EveryMessage, FrameworkDeletion,
                         testing::Combine(testing::ValuesIn(kTriggers),
                                          testing::Values(Deed::delete_self, Deed::destroy_self,
                                                          Deed::delete_parent)),
                         name_of);

TEST(FrameworkDeletionAtTheEnd, PostNcDestroyMayDeleteTheObject) {
  Count count;
  test::Desktop desktop;
  auto* window = new FragileWnd(WM_NULL, Deed::delete_self, nullptr, &count);
  ASSERT_TRUE(window->create());
  window->DestroyWindow();
  EXPECT_EQ(count.alive, 0);
  auto* failing = new FragileWnd(WM_NULL, Deed::delete_self, nullptr, &count);
  EXPECT_FALSE(failing->CreateEx(0, L"no such class", L"", 0, CRect(), nullptr, 0));
  EXPECT_EQ(count.alive, 0);
}

}  // namespace
}  // namespace corvane
