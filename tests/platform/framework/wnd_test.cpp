#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>

#include "corvane/platform/framework/thread_state.h"
#include "tests/platform/framework/watched_wnd.h"
#include "tests/support/desktop.h"

namespace corvane {
namespace {

using Messages = std::vector<UINT>;

class FrameworkWnd : public testing::Test {
 protected:
  void expect_failure(const char* name, WatchedWnd& window,
                      const std::function<bool(WatchedWnd&)>& create) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(create(window));
    EXPECT_EQ(window.ends, 1);
    EXPECT_EQ(window.GetSafeHwnd(), nullptr);
    EXPECT_EQ(desktop_.living_windows(), 0);
    window.refuses = WM_NULL;
    EXPECT_TRUE(window.create()) << "the failure leaves no hook behind";
    window.DestroyWindow();
  }

  test::Desktop desktop_;
};

TEST_F(FrameworkWnd, IsBoundFromTheFirstMessageToTheObjectsEnd) {
  Messages seen;
  bool bound = true;
  std::optional<WatchedWnd> window(std::in_place, [&](UINT message, WPARAM, LPARAM) {
    seen.push_back(message);
    bound = bound && CWnd::FromHandlePermanent(*window) == &*window;
  });
  ASSERT_TRUE(window->create(nullptr, WS_POPUP));
  EXPECT_TRUE(bound);
  EXPECT_EQ(seen.front(), WM_NCCREATE);
  EXPECT_EQ(std::count(seen.begin(), seen.end(), WM_CREATE), 1);
  const HWND handle = *window;
  EXPECT_TRUE(::IsWindow(handle));
  EXPECT_EQ(CWnd::FromHandle(handle), &*window);
  window.reset();
  EXPECT_FALSE(::IsWindow(handle));
  EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST_F(FrameworkWnd, RefusesASecondWindow) {
  WatchedWnd window;
  ASSERT_TRUE(window.create());
  const HWND first = window;
  EXPECT_FALSE(window.create());
  EXPECT_EQ(window.GetSafeHwnd(), first);
  EXPECT_EQ(desktop_.living_windows(), 1);
  window.DestroyWindow();
  EXPECT_TRUE(window.create()) << "after the first is gone";
}

TEST_F(FrameworkWnd, FailedCreationLeavesNothingAndEndsOnce) {
  const auto stale = reinterpret_cast<HWND>(static_cast<LONG_PTR>(0x77777));
  const std::pair<const char*, std::function<bool(WatchedWnd&)>> cases[] = {
      {"no class",
       [](auto& window) {
         return window.CreateEx(0, L"no such class", L"", WS_POPUP, CRect(), nullptr, 0);
       }},
      {"stale parent", [stale](auto& window) { return window.create(stale); }},
      {"child of none", [](auto& window) { return window.create(nullptr, WS_CHILD); }}};
  for (const auto& [name, create] : cases) {
    WatchedWnd window;
    expect_failure(name, window, create);
  }
  for (const UINT message : {WM_NCCREATE, WM_CREATE}) {
    WatchedWnd refusing;
    refusing.refuses = message;
    expect_failure("refused", refusing, [](auto& window) { return window.create(); });
    bool throws = true;
    WatchedWnd throwing([&](UINT received, WPARAM, LPARAM) {
      if (received == message && std::exchange(throws, false)) throw std::runtime_error("no path");
    });
    expect_failure("thrown", throwing, [](auto& window) { return window.create(); });
  }
}

TEST_F(FrameworkWnd, CreationsNest) {
  WatchedWnd outer, child, popup;
  bool made = false;
  WatchedWnd maker([&](UINT message, WPARAM, LPARAM) {
    if (message != WM_CREATE) return;
    made = child.create(maker, WS_CHILD | WS_VISIBLE) && popup.create(maker);
  });
  ASSERT_TRUE(outer.create());
  ASSERT_TRUE(maker.create(outer));
  EXPECT_TRUE(made);
  EXPECT_EQ(child.GetParent(), &maker);
  EXPECT_EQ(popup.GetOwner(), &maker);
  EXPECT_EQ(CWnd::FromHandlePermanent(maker), &maker);
  EXPECT_EQ(popup.GetTopLevelParent(), &outer);
}

TEST_F(FrameworkWnd, ParentTakesItsChildrensWindowsAlong) {
  WatchedWnd parent, child, owned;
  ASSERT_TRUE(parent.create());
  ASSERT_TRUE(child.create(parent, WS_CHILD));
  ASSERT_TRUE(owned.create(parent));
  EXPECT_TRUE(parent.DestroyWindow());
  for (const WatchedWnd* each : {&parent, &child, &owned}) {
    EXPECT_EQ(each->GetSafeHwnd(), nullptr);
    EXPECT_EQ(each->ends, 1);
  }
  EXPECT_FALSE(parent.DestroyWindow());
  EXPECT_EQ(parent.ends, 1);
}

// A handler of WM_NCDESTROY that leaves out the base's.
class ForgetfulWnd : public WatchedWnd {
 public:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages = MessageTable(On<WM_NCDESTROY>(&ForgetfulWnd::OnNcDestroy));
    static const MessageMap map = kMessages.extending(WatchedWnd::GetMessageMap());
    return &map;
  }

 protected:
  void OnNcDestroy() {}
};

TEST_F(FrameworkWnd, TheLastMessageUnbindsInAnyCase) {
  ForgetfulWnd window;
  ASSERT_TRUE(window.create());
  EXPECT_TRUE(window.DestroyWindow());
  EXPECT_EQ(window.GetSafeHwnd(), nullptr);
  EXPECT_EQ(window.ends, 1);
}

// --- Taking over a class with a procedure of its own

constexpr UINT kAsk = WM_USER + 1;
int asked = 0;

LRESULT CALLBACK asked_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != kAsk) return ::DefWindowProcW(window, message, wparam, lparam);
  ++asked;
  return static_cast<LRESULT>(wparam * 100) + lparam;
}

class AskingWnd : public WatchedWnd {
 public:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages = MessageTable(OnMessage<kAsk>(&AskingWnd::OnAsk));
    static const MessageMap map = kMessages.extending(WatchedWnd::GetMessageMap());
    return &map;
  }
  HWND other = nullptr;

  LRESULT OnAsk(WPARAM, LPARAM) {
    // Messages handled in between do not change what is being handled here.
    if (other) ::SendMessageW(other, WM_USER + 2, 9, 9);
    return Default();
  }
};

TEST_F(FrameworkWnd, DefaultHandlingIsNotForAnotherWindowsMessage) {
  AskingWnd called;
  ASSERT_TRUE(called.create());
  WatchedWnd closing([&](UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) called.OnAsk(0, 0);
  });
  ASSERT_TRUE(closing.create());
  closing.SendMessageW(WM_CLOSE);
  EXPECT_EQ(closing.GetSafeHwnd(), nullptr);
  EXPECT_NE(called.GetSafeHwnd(), nullptr) << "it was not asked to close";
}

TEST_F(FrameworkWnd, DefaultHandlingIsTheClassesOwnProcedure) {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &asked_procedure;
  window_class.lpszClassName = L"asked";
  ASSERT_TRUE(::RegisterClassW(&window_class));
  asked = 0;
  WatchedWnd other;
  ASSERT_TRUE(other.create());
  AskingWnd window;
  window.other = other;
  ASSERT_TRUE(window.CreateEx(0, L"asked", L"", WS_POPUP, CRect(), nullptr, 0));
  EXPECT_EQ(window.SendMessageW(kAsk, 7, 5), 705);
  EXPECT_EQ(asked, 1);
  const HWND released = window.Detach();
  EXPECT_EQ(CWnd::FromHandlePermanent(released), nullptr);
  EXPECT_EQ(::SendMessageW(released, kAsk, 3, 1), 301) << "without its object";
  EXPECT_TRUE(window.Attach(released));
  EXPECT_EQ(CWnd::FromHandle(released), &window);
  EXPECT_FALSE(window.Attach(other)) << "has a window";
  WatchedWnd second;
  EXPECT_FALSE(second.Attach(other)) << "has an object";
}

// --- Commands and notifications

class Control : public WatchedWnd {
 public:
  Messages told;
  BOOL answer = FALSE;
  CWnd* victim = nullptr;  // deleted when it is told something

 protected:
  BOOL OnChildNotify(UINT message, WPARAM, LPARAM, LRESULT* result) override {
    told.push_back(message);
    *result = 31;
    delete victim;
    return answer;
  }
};

class CommandWnd : public WatchedWnd {
 public:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages = MessageTable(OnCommandId(5, &CommandWnd::OnMenu),
                                                   OnCommandId(5, &CommandWnd::OnControl, 2));
    static const MessageMap map = kMessages.extending(WatchedWnd::GetMessageMap());
    return &map;
  }
  int menu = 0, control = 0;

 protected:
  void OnMenu() { ++menu; }
  void OnControl() { ++control; }
};

TEST_F(FrameworkWnd, CommandsGoToTheControlThenToTheMap) {
  CommandWnd window;
  Control control;
  ASSERT_TRUE(window.create());
  ASSERT_TRUE(control.create(window, WS_CHILD));
  const auto from_control = reinterpret_cast<LPARAM>(control.GetSafeHwnd());
  EXPECT_EQ(window.SendMessageW(WM_COMMAND, MAKEWPARAM(5, 0), 0), 1);
  EXPECT_EQ(window.SendMessageW(WM_COMMAND, MAKEWPARAM(5, 1), 0), 1) << "an accelerator";
  EXPECT_EQ(window.menu, 2);
  EXPECT_EQ(window.SendMessageW(WM_COMMAND, MAKEWPARAM(5, 2), from_control), 1);
  EXPECT_EQ(window.control, 1);
  EXPECT_EQ(window.SendMessageW(WM_COMMAND, MAKEWPARAM(6, 0), 0), 0);
  control.answer = TRUE;
  EXPECT_EQ(window.SendMessageW(WM_COMMAND, MAKEWPARAM(5, 2), from_control), 1);
  EXPECT_EQ(window.control, 1) << "the control has handled it";
  NMHDR header{control, 0, 4};
  EXPECT_EQ(window.SendMessageW(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)), 31);
  EXPECT_EQ(control.told, (Messages{WM_COMMAND, WM_COMMAND, WM_NOTIFY}));
  EXPECT_EQ(window.SendMessageW(WM_NOTIFY, 0, 0), 0) << "no header";
}

TEST_F(FrameworkWnd, AControlMayDeleteItsParent) {
  for (const UINT message : {WM_COMMAND, WM_NOTIFY}) {
    auto* parent = new CommandWnd;
    ASSERT_TRUE(parent->create());
    Control control;
    control.victim = parent;
    ASSERT_TRUE(control.create(*parent, WS_CHILD));
    NMHDR header{control, 0, 0};
    ::SendMessageW(*parent, message, 0,
                   message == WM_COMMAND ? reinterpret_cast<LPARAM>(control.GetSafeHwnd())
                                         : reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(control.GetSafeHwnd(), nullptr);
  }
}

// --- Temporary objects

HWND plain_window() {
  return ::CreateWindowExW(0, AfxRegisterWndClass(0), L"plain", WS_POPUP, 0, 0, 5, 5, nullptr,
                           nullptr, nullptr, nullptr);
}

TEST_F(FrameworkWnd, TemporaryObjectsLastThroughTheHandler) {
  HandleMaps& maps = ThreadState::current().handles;
  desktop_.filter_messages(&PreTranslateInput);
  const HWND plain = plain_window();
  std::size_t inside = 0;
  bool same = false;
  WatchedWnd window([&](UINT message, WPARAM, LPARAM) {
    if (message != WM_USER) return;
    maps.release_temporaries();
    CWnd* const temporary = CWnd::FromHandle(plain);
    desktop_.pump();
    same = temporary == CWnd::FromHandle(plain) && temporary->GetSafeHwnd() == plain;
    inside = maps.temporaries();
  });
  ASSERT_TRUE(window.create());
  window.PostMessageW(WM_USER);
  window.PostMessageW(WM_USER + 1);
  desktop_.pump();
  EXPECT_TRUE(same);
  EXPECT_EQ(inside, 1u);
  MSG later{};
  PreTranslateInput(&later);
  EXPECT_EQ(maps.temporaries(), 0u);
  EXPECT_TRUE(::IsWindow(plain)) << "a temporary object does not own its window";
  EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
}

TEST_F(FrameworkWnd, TemporaryObjectsOfTheDeadDoNotPileUp) {
  HandleMaps& maps = ThreadState::current().handles;
  for (int i = 0; i < 1000; ++i) {
    const HWND window = plain_window();
    CWnd::FromHandle(window);
    ::DestroyWindow(window);
  }
  EXPECT_LT(maps.temporaries(), 100u);
  WatchedWnd window;
  ASSERT_TRUE(window.create());
  maps.release_temporaries();
  for (int i = 0; i < 10; ++i) EXPECT_EQ(window.ReleaseDC(window.GetDC()), 1);
  EXPECT_EQ(maps.temporaries(), 0u);
  EXPECT_EQ(window.ReleaseDC(nullptr), 0);
}

// --- Window classes

TEST_F(FrameworkWnd, ClassNamesStandForTheirParts) {
  const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
  const std::wstring first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
  EXPECT_EQ(AfxRegisterWndClass(CS_DBLCLKS, arrow), first);
  EXPECT_NE(AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW, arrow), first);
  EXPECT_NE(AfxRegisterWndClass(CS_DBLCLKS), first);
  WNDCLASSW known{};
  ASSERT_TRUE(::GetClassInfoW(nullptr, first.c_str(), &known));
  EXPECT_EQ(known.style, CS_DBLCLKS);
  EXPECT_EQ(known.hCursor, arrow);
  test::Desktop second;
  EXPECT_EQ(AfxRegisterWndClass(CS_DBLCLKS, arrow), first);
  EXPECT_TRUE(::GetClassInfoW(nullptr, first.c_str(), &known)) << "in the second system too";
}

TEST_F(FrameworkWnd, ObjectsOfTwoSystemsStayApart) {
  WatchedWnd here, there;
  ASSERT_TRUE(here.create());
  {
    test::Desktop second;
    ASSERT_TRUE(there.create());
    EXPECT_EQ(CWnd::FromHandlePermanent(here), &here);
    EXPECT_EQ(CWnd::FromHandlePermanent(there), &there);
  }
  EXPECT_EQ(there.GetSafeHwnd(), nullptr) << "the system took its windows along";
  EXPECT_EQ(there.ends, 1);
  EXPECT_TRUE(::IsWindow(here));
}

// --- Operations

TEST_F(FrameworkWnd, TellsAndChangesItsStylesPlaceAndText) {
  WatchedWnd window;
  ASSERT_TRUE(window.create());
  EXPECT_TRUE(window.ModifyStyle(0, WS_DISABLED));
  EXPECT_FALSE(window.ModifyStyle(0, WS_DISABLED)) << "already so";
  EXPECT_FALSE(window.IsWindowEnabled());
  EXPECT_TRUE(window.ModifyStyleEx(WS_EX_APPWINDOW, WS_EX_LAYERED));
  EXPECT_EQ(window.GetExStyle() & (WS_EX_LAYERED | WS_EX_APPWINDOW), WS_EX_LAYERED);
  EXPECT_TRUE(window.GetStyle() & WS_POPUP);
  const CRect place(10, 20, 110, 70);
  window.MoveWindow(place);
  CRect rect;
  window.GetWindowRect(rect);
  EXPECT_TRUE(rect == place);
  window.ScreenToClient(&rect);
  EXPECT_TRUE(rect == CRect(0, 0, 100, 50));
  window.ClientToScreen(&rect);
  EXPECT_TRUE(rect == place);
  window.SetWindowTextW(L"标题 of this window");
  CString text(L"former");
  window.GetWindowTextW(text);
  EXPECT_EQ(text.AsStdString(), L"标题 of this window");
}

TEST_F(FrameworkWnd, AnObjectWithoutAWindowDisturbsNoOther) {
  WatchedWnd shown, none;
  ASSERT_TRUE(shown.create());
  shown.SetFocus();
  shown.SetCapture();
  none.SetFocus();
  none.SetCapture();
  EXPECT_EQ(CWnd::GetFocus(), &shown);
  EXPECT_EQ(CWnd::GetCapture(), &shown);
  EXPECT_FALSE(none.PostMessageW(WM_USER));
  EXPECT_EQ(none.SendMessageW(WM_USER), 0);
  EXPECT_FALSE(none.ModifyStyle(0, WS_DISABLED));
  EXPECT_FALSE(none.RedrawWindow());
  EXPECT_EQ(none.SetTimer(1, 10), 0u);
  EXPECT_EQ(none.GetDC(), nullptr);
  EXPECT_EQ(CClientDC(&none).GetSafeHdc(), nullptr);
  CRect rect(1, 2, 3, 4);
  none.GetClientRect(rect);
  EXPECT_TRUE(rect.IsRectNull());
  EXPECT_EQ(none.GetParent(), nullptr);
}

// --- Painting and input

class PaintedWnd : public WatchedWnd {
 public:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages = MessageTable(On<WM_PAINT>(&PaintedWnd::OnPaint),
                                                   On<WM_LBUTTONDOWN>(&PaintedWnd::OnLButtonDown),
                                                   On<WM_MOUSEWHEEL>(&PaintedWnd::OnMouseWheel));
    static const MessageMap map = kMessages.extending(WatchedWnd::GetMessageMap());
    return &map;
  }
  int paints = 0;
  CPoint pressed{-1, -1};
  int turned = 0;
  enum class Wheel { takes, leaves, passes_on } wheel = Wheel::takes;

 protected:
  void OnPaint() {
    CPaintDC dc(this);
    dc.FillSolidRect(&dc.m_ps.rcPaint, RGB(10, 20, 30));
    ++paints;
  }
  void OnLButtonDown(UINT flags, CPoint point) {
    pressed = point;
    CWnd::OnLButtonDown(flags, point);
  }
  BOOL OnMouseWheel(UINT flags, short distance, CPoint point) {
    turned += distance;
    if (wheel == Wheel::passes_on) return CWnd::OnMouseWheel(flags, distance, point);
    return wheel == Wheel::takes ? TRUE : FALSE;
  }
};

TEST_F(FrameworkWnd, PaintsWhatIsInvalidOnce) {
  PaintedWnd window;
  ASSERT_TRUE(window.create());
  desktop_.pump();
  EXPECT_EQ(window.paints, 1);
  desktop_.pump();
  EXPECT_EQ(window.paints, 1) << "CPaintDC has validated";
  window.Invalidate();
  desktop_.pump();
  EXPECT_EQ(window.paints, 2);
  CClientDC dc(&window);
  EXPECT_EQ(::GetPixel(dc, 5, 5), RGB(10, 20, 30));
}

TEST_F(FrameworkWnd, InputReachesTheHandlersAndTheWheelEveryParentOnce) {
  using Wheel = PaintedWnd::Wheel;
  PaintedWnd parent, child;
  ASSERT_TRUE(parent.create());
  ASSERT_TRUE(child.create(parent, WS_CHILD | WS_VISIBLE, CRect(20, 30, 80, 90)));
  desktop_.pump();
  desktop_.click(125, 137);
  EXPECT_TRUE(child.pressed == CPoint(5, 7));
  EXPECT_TRUE(parent.pressed == CPoint(-1, -1));
  const std::pair<Wheel, int> cases[] = {
      {Wheel::takes, 0}, {Wheel::leaves, -120}, {Wheel::passes_on, -120}};
  for (const auto& [wheel, passed] : cases) {
    child.wheel = wheel;
    child.turned = parent.turned = 0;
    desktop_.wheel(-120);
    EXPECT_EQ(child.turned, -120);
    EXPECT_EQ(parent.turned, passed) << static_cast<int>(wheel);
  }
}

}  // namespace
}  // namespace corvane
