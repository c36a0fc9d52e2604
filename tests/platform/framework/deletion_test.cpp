// Handlers that delete their own object, its parent, or only its window, in every message. With the
// address sanitizer these fail on any touch of what is gone.
#include <set>

#include "tests/platform/framework/watched_wnd.h"

namespace corvane {
namespace {

enum class Deed { delete_self, destroy_self, delete_parent };

// What happens at the first message `trigger`; none at WM_NULL.
struct Session {
  UINT trigger = WM_NULL;
  Deed deed = Deed::delete_self;
  WatchedWnd* parent = nullptr;
  std::set<UINT> seen;
  int alive = 0;
  int deeds = 0;
};

// Does the deed in the handler that the message map names.
class FragileWnd : public WatchedWnd {
 public:
  explicit FragileWnd(Session& session) : session_(session) { ++session_.alive; }
  ~FragileWnd() override { --session_.alive; }
  const MessageMap* GetMessageMap() const override;

 protected:
  // What gives no answer goes on to the default handling, whose nested messages may delete the
  // object.
  template <class Result, class... Arguments>
  Result Act(Arguments...) {
    const UINT message = GetCurrentMessage()->message;
    const bool goes_on = std::is_void_v<Result> && message != session_.trigger;
    act(message);
    if (goes_on) Default();
    return Result();
  }
  LRESULT Generic(WPARAM, LPARAM) { return act(GetCurrentMessage()->message), TRUE; }
  void Paint() {
    CPaintDC dc(this);
    act(WM_PAINT);
    dc.FillSolidRect(CRect(0, 0, 5, 5), RGB(1, 2, 3));
  }
  BOOL OnCommand(WPARAM, LPARAM) override { return act(WM_COMMAND), FALSE; }
  BOOL OnNotify(WPARAM, LPARAM, LRESULT*) override { return act(WM_NOTIFY), FALSE; }

 private:
  void act(UINT message) {
    session_.seen.insert(message);
    if (message != session_.trigger || session_.deeds > 0) return;
    ++session_.deeds;
    if (session_.deed == Deed::delete_self) {
      delete this;
    } else if (session_.deed == Deed::destroy_self) {
      DestroyWindow();
    } else {
      delete session_.parent;
    }
  }
  template <class Result, class... Arguments>
  static constexpr auto handler(Result (*)(Arguments...)) {
    return &FragileWnd::Act<Result, Arguments...>;
  }
  template <UINT... messages>
  static consteval auto acting_table() {
    return MessageTable(
        OnMessage<WM_NCCREATE>(&FragileWnd::Generic), OnMessage<WM_USER>(&FragileWnd::Generic),
        On<WM_PAINT>(&FragileWnd::Paint),
        On<messages>(
            handler(static_cast<typename MessageTraits<messages>::Signature*>(nullptr)))...);
  }

  Session& session_;
};

const MessageMap* FragileWnd::GetMessageMap() const {
  static constexpr auto kMessages =
      acting_table<WM_CREATE, WM_DESTROY, WM_SIZE, WM_MOVE, WM_CLOSE, WM_ERASEBKGND, WM_TIMER,
                   WM_SETCURSOR, WM_SETFOCUS, WM_KILLFOCUS, WM_CAPTURECHANGED, WM_KEYDOWN, WM_KEYUP,
                   WM_CHAR, WM_SHOWWINDOW, WM_ENABLE, WM_ACTIVATE, WM_SYSCOMMAND, WM_MOUSEMOVE,
                   WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_MOUSEWHEEL,
                   WM_CANCELMODE, WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED>();
  static const MessageMap map = kMessages.extending(WatchedWnd::GetMessageMap());
  return &map;
}
constexpr std::size_t kHandled = 32;

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
  for (const DWORD flag : {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP,
                           MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP})
    desktop.send_mouse(flag);
  desktop.send_mouse(MOUSEEVENTF_WHEEL, 120);
  turn();
  desktop.key('A');
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

void play(Session& session) {
  test::Desktop desktop;
  {
    WatchedWnd main;
    ASSERT_TRUE(main.create(nullptr, WS_POPUP | WS_VISIBLE, CRect(0, 0, 600, 500)));
    session.parent = new WatchedWnd;
    ASSERT_TRUE(session.parent->create(main, WS_CHILD | WS_VISIBLE));
    const HWND parent = *session.parent;
    auto* const fragile = new FragileWnd(session);
    fragile->create(parent, WS_CHILD, CRect(40, 40, 120, 120));
    const HWND handle = ::GetWindow(parent, GW_CHILD);
    go_through_everything(desktop, handle);
    EXPECT_FALSE(::IsWindow(handle));
    const bool parent_gone = session.deeds > 0 && session.deed == Deed::delete_parent;
    EXPECT_EQ(::IsWindow(parent), !parent_gone);
    if (session.alive > 0) {
      EXPECT_EQ(fragile->GetSafeHwnd(), nullptr);
      delete fragile;
    } else {
      EXPECT_EQ(session.deed, Deed::delete_self);
    }
    if (!parent_gone) delete session.parent;
    EXPECT_EQ(desktop.living_windows(), 1);
  }
  EXPECT_EQ(desktop.living_windows(), 0);
}

TEST(FrameworkDeletion, InEveryMessageLeavesNoTraceBehind) {
  Session undisturbed;
  play(undisturbed);
  ASSERT_EQ(undisturbed.seen.size(), kHandled);
  for (const UINT message : undisturbed.seen) {
    for (const Deed deed : {Deed::delete_self, Deed::destroy_self, Deed::delete_parent}) {
      SCOPED_TRACE(std::to_string(message) + ", deed " + std::to_string(static_cast<int>(deed)));
      Session session{.trigger = message, .deed = deed, .seen = {}};
      play(session);
      EXPECT_EQ(session.deeds, 1);
    }
  }
}

TEST(FrameworkDeletion, PostNcDestroyMayDeleteTheObject) {
  class SelfDeleting : public FragileWnd {
   public:
    using FragileWnd::FragileWnd;

   protected:
    void PostNcDestroy() override { delete this; }
  };
  const test::Desktop desktop;
  Session session;
  for (const UINT refused : {WM_NULL, WM_CREATE}) {
    auto* const window = new SelfDeleting(session);
    window->refuses = refused;
    if (window->create()) window->DestroyWindow();
    EXPECT_EQ(session.alive, 0);
  }
}

}  // namespace
}  // namespace corvane
