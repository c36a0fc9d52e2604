#include <algorithm>
#include <optional>

#include "corvane/platform/framework/thread_state.h"
#include "tests/platform/framework/watched_wnd.h"

namespace corvane {
namespace {

using Messages = std::vector<UINT>;
using FrameworkWnd = WatchedWndTest;

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
  const HWND first = window_;
  EXPECT_FALSE(window_.create());
  EXPECT_EQ(window_.GetSafeHwnd(), first);
  EXPECT_EQ(desktop_.living_windows(), 1);
  window_.DestroyWindow();
  EXPECT_TRUE(window_.create()) << "after the first is gone";
}

TEST_F(FrameworkWnd, FailedCreationLeavesNothingAndEndsOnce) {
  const auto stale = reinterpret_cast<HWND>(static_cast<LONG_PTR>(0x77777));
  const auto failing = [](UINT WatchedWnd::*how, UINT message) {
    return [how, message](WatchedWnd& window) {
      window.*how = message;
      return window.create();
    };
  };
  const std::pair<const char*, std::function<bool(WatchedWnd&)>> cases[] = {
      {"no class",
       [](auto& window) {
         return window.CreateEx(0, L"no such class", L"", WS_POPUP, CRect(), nullptr, 0);
       }},
      {"stale parent", [stale](auto& window) { return window.create(stale); }},
      {"child of none", [](auto& window) { return window.create(nullptr, WS_CHILD); }},
      {"refused at once", failing(&WatchedWnd::refuses, WM_NCCREATE)},
      {"refused", failing(&WatchedWnd::refuses, WM_CREATE)},
      {"thrown at once", failing(&WatchedWnd::throws, WM_NCCREATE)},
      {"thrown", failing(&WatchedWnd::throws, WM_CREATE)}};
  for (const auto& [name, create] : cases) {
    SCOPED_TRACE(name);
    WatchedWnd window;
    EXPECT_FALSE(create(window));
    EXPECT_EQ(window.ends, 1);
    EXPECT_EQ(window.GetSafeHwnd(), nullptr);
    EXPECT_EQ(desktop_.living_windows(), 1);
    window.refuses = window.throws = WM_NULL;
    EXPECT_TRUE(window.create()) << "the failure leaves no hook behind";
  }
}

TEST_F(FrameworkWnd, CreationsNest) {
  WatchedWnd child, popup;
  bool made = false;
  WatchedWnd maker([&](UINT message, WPARAM, LPARAM) {
    if (message != WM_CREATE) return;
    made = child.create(maker, WS_CHILD | WS_VISIBLE) && popup.create(maker);
  });
  ASSERT_TRUE(maker.create(window_));
  EXPECT_TRUE(made);
  EXPECT_EQ(child.GetParent(), &maker);
  EXPECT_EQ(popup.GetOwner(), &maker);
  EXPECT_EQ(CWnd::FromHandlePermanent(maker), &maker);
  EXPECT_EQ(popup.GetTopLevelParent(), &window_);
}

TEST_F(FrameworkWnd, ParentTakesItsChildrensWindowsAlong) {
  WatchedWnd child, owned;
  ASSERT_TRUE(child.create(window_, WS_CHILD));
  ASSERT_TRUE(owned.create(window_));
  window_.refuses = WM_NCDESTROY;  // The last message unbinds also when the base does not get it.
  EXPECT_TRUE(window_.DestroyWindow());
  for (const WatchedWnd* each : {&window_, &child, &owned}) {
    EXPECT_EQ(each->GetSafeHwnd(), nullptr);
    EXPECT_EQ(each->ends, 1);
  }
  EXPECT_FALSE(window_.DestroyWindow());
  EXPECT_EQ(window_.ends, 1);
}

// --- Handlers

constexpr UINT kAsk = WM_USER + 1;
int asked = 0;

LRESULT CALLBACK asked_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != kAsk) return ::DefWindowProcW(window, message, wparam, lparam);
  ++asked;
  return static_cast<LRESULT>(wparam * 100) + lparam;
}

class HandlingWnd : public WatchedWnd {
 public:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages = MessageTable(
        OnMessage<kAsk>(&HandlingWnd::OnAsk), OnCommandId(5, &HandlingWnd::OnMenu),
        OnCommandId(5, &HandlingWnd::OnControl, 2), On<WM_PAINT>(&HandlingWnd::OnPaint),
        On<WM_LBUTTONDOWN>(&HandlingWnd::OnLButtonDown),
        On<WM_MOUSEWHEEL>(&HandlingWnd::OnMouseWheel));
    static const MessageMap map = kMessages.extending(WatchedWnd::GetMessageMap());
    return &map;
  }
  LRESULT OnAsk(WPARAM, LPARAM) {
    // Messages handled in between do not change what is being handled here.
    if (other != nullptr) ::SendMessageW(other, WM_USER + 2, 9, 9);
    return Default();
  }

  HWND other = nullptr;
  int menu = 0, control = 0, paints = 0, turned = 0;
  CPoint pressed{-1, -1};
  enum class Wheel { takes, leaves, passes_on } wheel = Wheel::takes;

 protected:
  void OnMenu() { ++menu; }
  void OnControl() { ++control; }
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

TEST_F(FrameworkWnd, DefaultHandlingIsNotForAnotherWindowsMessage) {
  HandlingWnd called;
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
  HandlingWnd window;
  window.other = window_;
  ASSERT_TRUE(window.CreateEx(0, L"asked", L"", WS_POPUP, CRect(), nullptr, 0));
  EXPECT_EQ(window.SendMessageW(kAsk, 7, 5), 705);
  EXPECT_EQ(asked, 1);
  const HWND released = window.Detach();
  EXPECT_EQ(CWnd::FromHandlePermanent(released), nullptr);
  EXPECT_EQ(::SendMessageW(released, kAsk, 3, 1), 301) << "without its object";
  EXPECT_TRUE(window.Attach(released));
  EXPECT_EQ(CWnd::FromHandle(released), &window);
  EXPECT_FALSE(window.Attach(window_)) << "has a window";
  EXPECT_FALSE(CWnd().Attach(window_)) << "has an object";
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

TEST_F(FrameworkWnd, CommandsGoToTheControlThenToTheMap) {
  HandlingWnd window;
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
  for (const bool command : {true, false}) {
    auto* const parent = new WatchedWnd;
    ASSERT_TRUE(parent->create());
    Control control;
    control.victim = parent;
    ASSERT_TRUE(control.create(*parent, WS_CHILD));
    NMHDR header{control, 0, 0};
    const void* const from = command ? static_cast<const void*>(header.hwndFrom) : &header;
    EXPECT_EQ(
        parent->SendMessageW(command ? WM_COMMAND : WM_NOTIFY, 0, reinterpret_cast<LPARAM>(from)),
        command ? 1 : 31);
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
  maps.release_temporaries();
  for (int i = 0; i < 10; ++i) EXPECT_EQ(window_.ReleaseDC(window_.GetDC()), 1);
  EXPECT_EQ(maps.temporaries(), 0u);
  EXPECT_EQ(window_.ReleaseDC(nullptr), 0);
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
  WatchedWnd there;
  {
    test::Desktop second;
    ASSERT_TRUE(there.create());
    EXPECT_EQ(CWnd::FromHandlePermanent(window_), &window_);
    EXPECT_EQ(CWnd::FromHandlePermanent(there), &there);
  }
  EXPECT_EQ(there.GetSafeHwnd(), nullptr) << "the system took its windows along";
  EXPECT_EQ(there.ends, 1);
  EXPECT_TRUE(::IsWindow(window_));
}

// --- Operations

TEST_F(FrameworkWnd, TellsAndChangesItsStylesPlaceAndText) {
  EXPECT_TRUE(window_.ModifyStyle(0, WS_DISABLED));
  EXPECT_FALSE(window_.ModifyStyle(0, WS_DISABLED)) << "already so";
  EXPECT_FALSE(window_.IsWindowEnabled());
  EXPECT_TRUE(window_.ModifyStyleEx(WS_EX_APPWINDOW, WS_EX_LAYERED));
  EXPECT_EQ(window_.GetExStyle() & (WS_EX_LAYERED | WS_EX_APPWINDOW), WS_EX_LAYERED);
  EXPECT_TRUE(window_.GetStyle() & WS_POPUP);
  const CRect place(10, 20, 110, 70);
  window_.MoveWindow(place);
  CRect rect;
  window_.GetWindowRect(rect);
  EXPECT_TRUE(rect == place);
  window_.ScreenToClient(&rect);
  EXPECT_TRUE(rect == CRect(0, 0, 100, 50));
  window_.ClientToScreen(&rect);
  EXPECT_TRUE(rect == place);
  window_.SetWindowTextW(L"标题 of this window");
  CString text(L"former");
  window_.GetWindowTextW(text);
  EXPECT_EQ(text.AsStdString(), L"标题 of this window");
  WatchedWnd child;
  ASSERT_TRUE(child.create(window_, WS_CHILD));
  EXPECT_TRUE(window_.IsChild(&child) && !child.IsChild(&window_) && !window_.IsChild(nullptr));
  EXPECT_NE(window_.SetTimer(1, 10), 0u);
  EXPECT_TRUE(window_.KillTimer(1));
  EXPECT_FALSE(window_.KillTimer(1));
}

TEST_F(FrameworkWnd, AnObjectWithoutAWindowDisturbsNoOther) {
  WatchedWnd none;
  window_.SetFocus();
  window_.SetCapture();
  none.SetFocus();
  none.SetCapture();
  EXPECT_EQ(CWnd::GetFocus(), &window_);
  EXPECT_EQ(CWnd::GetCapture(), &window_);
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

TEST_F(FrameworkWnd, PaintsWhatIsInvalidOnce) {
  HandlingWnd window;
  ASSERT_TRUE(window.create());
  for (const int paints : {1, 1, 2}) {  // CPaintDC has validated
    if (paints > 1) window.Invalidate();
    desktop_.pump();
    EXPECT_EQ(window.paints, paints);
  }
  CClientDC dc(&window);
  EXPECT_EQ(::GetPixel(dc, 5, 5), RGB(10, 20, 30));
}

TEST_F(FrameworkWnd, InputReachesTheHandlersAndTheWheelEveryParentOnce) {
  using Wheel = HandlingWnd::Wheel;
  HandlingWnd parent, child;
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
