#include "corvane/platform/framework/message_map.h"

#include <gtest/gtest.h>

#include <concepts>
#include <string>
#include <tuple>

#include "corvane/platform/framework/scroll_bar.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {
namespace {

constexpr UINT kDraw = WM_USER + 0x4B1;
constexpr UINT kCommand = 7;

std::string text_of(CPoint point) {
  return std::to_string(point.x) + " " + std::to_string(point.y);
}
std::string text_of(LPCREATESTRUCT creation) { return text_of(CPoint(creation->cx, creation->cy)); }
std::string text_of(CDC* dc) {
  return std::to_string(reinterpret_cast<LONG_PTR>(dc->GetSafeHdc()));
}
std::string text_of(const CWnd* window) { return window == nullptr ? "none" : "a window"; }
template <std::integral Number>
std::string text_of(Number number) {
  return std::to_string(number);
}

// Writes down the arguments of its handlers.
class Recorder : public CWnd {
 public:
  const MessageMap* GetMessageMap() const override;

  // What the map's handler was called with; "no row" when none was found.
  std::string send(UINT message, WPARAM wparam, LPARAM lparam) {
    const MessageMatch match = GetMessageMap()->find(message);
    if (!match) return "no row";
    seen = "not called";
    result = -99;
    handled = match.call(*this, wparam, lparam, result);
    return seen;
  }

  std::string seen;
  LRESULT result = 0;
  bool handled = false;
  int answer = 0;

 protected:
  template <class Result, class... Arguments>
  Result Record(Arguments... arguments) {
    seen.clear();
    ((seen += (seen.empty() ? "" : " ") + text_of(arguments)), ...);
    return static_cast<Result>(answer);
  }

 private:
  template <class Result, class... Arguments>
  static constexpr auto handler(Result (*)(Arguments...)) {
    return &Recorder::Record<Result, Arguments...>;
  }
  template <UINT... messages>
  static consteval auto table_of() {
    return MessageTable(
        OnMessage<kDraw>(&Recorder::Record<LRESULT, WPARAM, LPARAM>),
        On<messages>(
            handler(static_cast<typename MessageTraits<messages>::Signature*>(nullptr)))...);
  }
};

const MessageMap* Recorder::GetMessageMap() const {
  static constexpr auto kMessages =
      table_of<WM_CLOSE, WM_RBUTTONUP, WM_MOUSEWHEEL, WM_CREATE, WM_SIZE, WM_MOVE, WM_ERASEBKGND,
               WM_TIMER, WM_SETCURSOR, WM_CHAR, WM_SHOWWINDOW, WM_ACTIVATE, WM_NCHITTEST,
               WM_GETDLGCODE, WM_VSCROLL>();
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

LPARAM packed(int low, int high) {
  return MAKELPARAM(static_cast<WORD>(low), static_cast<WORD>(high));
}

TEST(FrameworkMessageMap, GivesTheHandlerTheMessagesPartsAndTheMessageItsResult) {
  constexpr LRESULT kNone = -99;
  CREATESTRUCT creation{};
  creation.cx = 30;
  creation.cy = 40;
  const struct {
    UINT message;
    WPARAM wparam;
    LPARAM lparam;
    const char* arguments;
    LRESULT result = kNone;
    int answer = 0;
    bool handled = true;
  } cases[] = {
      {WM_CLOSE, 1, 2, ""},
      {WM_RBUTTONUP, MK_SHIFT, packed(-3, 700), "4 -3 700"},
      {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-240)), packed(-1, -2),
       "8 -240 -1 -2", TRUE, TRUE},
      {WM_MOUSEWHEEL, 0, 0, "0 0 0 0", FALSE, FALSE, false},
      {WM_CREATE, 0, reinterpret_cast<LPARAM>(&creation), "30 40", -1, -1},
      {WM_SIZE, SIZE_MAXIMIZED, packed(40000, 3), "2 40000 3"},
      {WM_MOVE, 0, packed(-40, 30), "-40 30"},
      {WM_ERASEBKGND, 0x1234, 0, "4660", FALSE, FALSE},
      {WM_ERASEBKGND, 0, 0, "0", TRUE, TRUE},
      {WM_TIMER, 0x100000000u, 0, "4294967296"},
      {WM_SETCURSOR, 0, packed(HTCLIENT, WM_MOUSEMOVE), "none 1 512", TRUE, TRUE},
      {WM_SETCURSOR, 0, packed(HTERROR, WM_LBUTTONDOWN), "none 4294967294 513", FALSE, FALSE},
      {WM_CHAR, 0x4E2D, 0xC0010003, "20013 3 49153"},
      {WM_SHOWWINDOW, TRUE, 3, "1 3"},
      {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0, "2 none 1"},
      {WM_NCHITTEST, 0, packed(-5, 6), "-5 6", HTTRANSPARENT, HTTRANSPARENT},
      {WM_GETDLGCODE, 0, 0, "", DLGC_WANTARROWS, DLGC_WANTARROWS},
      {WM_VSCROLL, MAKEWPARAM(5, 65000), 0, "5 65000 none"},
      {kDraw, 1, -1, "1 -1", 5, 5},
  };
  Recorder recorder;
  for (const auto& each : cases) {
    SCOPED_TRACE(each.message);
    recorder.answer = each.answer;
    EXPECT_EQ(recorder.send(each.message, each.wparam, each.lparam), each.arguments);
    EXPECT_EQ(recorder.handled, each.handled);
    EXPECT_EQ(recorder.result, each.result);
  }
  EXPECT_EQ(recorder.send(WM_PAINT, 0, 0), "no row");
}

class Base : public CWnd {
 public:
  static inline UINT registered = 0;
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages =
        MessageTable(On<WM_CLOSE>(&Base::OnClose), On<WM_DESTROY>(&Base::OnDestroy),
                     OnRegistered(&registered, &Base::OnRegisteredMessage),
                     OnCommandId(kCommand, &Base::OnMenu));
    static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
    return &map;
  }
  std::string calls;

 protected:
  void OnClose() { calls += "base close"; }
  void OnDestroy() { calls += "base destroy"; }
  LRESULT OnRegisteredMessage(WPARAM, LPARAM) { return calls += "base registered", 0; }
  void OnMenu() { calls += "base menu"; }
};

// A class without rows of its own between two that have some.
class Middle : public Base {};

class Derived : public Middle {
 public:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages =
        MessageTable(On<WM_CLOSE>(&Derived::OnClose), On<WM_TIMER>(&Derived::OnTimer),
                     OnCommandId(kCommand, &Derived::OnButton, 3));
    static const MessageMap map = kMessages.extending(Middle::GetMessageMap());
    return &map;
  }

 protected:
  void OnClose() {
    calls += "derived close, ";
    Base::OnClose();
  }
  void OnTimer(UINT_PTR) { calls += "derived timer"; }
  void OnButton() { calls += "derived button"; }
};

std::string calls_of(const MessageMatch& match) {
  Derived target;
  LRESULT result = 0;
  return match && match.call(target, 0, 0, result) ? target.calls : "no row";
}

TEST(FrameworkMessageMap, SearchesTheClassBeforeItsBases) {
  const Derived derived;
  const MessageMap* map = derived.GetMessageMap();
  Base::registered = 0;
  EXPECT_FALSE(map->find(0)) << "not registered yet, and not the null message";
  Base::registered = 0xC123;
  const std::pair<UINT, const char*> messages[] = {{WM_CLOSE, "derived close, base close"},
                                                   {WM_DESTROY, "base destroy"},
                                                   {WM_TIMER, "derived timer"},
                                                   {WM_PAINT, "no row"},
                                                   {0xC123, "base registered"},
                                                   {0xC124, "no row"},
                                                   {kCommand, "no row"}};
  for (const auto& [message, calls] : messages) EXPECT_EQ(calls_of(map->find(message)), calls);
  EXPECT_FALSE(Base().GetMessageMap()->find(WM_TIMER));
  const std::tuple<UINT, UINT, const char*> commands[] = {{kCommand, 0, "base menu"},
                                                          {kCommand, 3, "derived button"},
                                                          {kCommand, 4, "no row"},
                                                          {WM_CLOSE, 0, "no row"}};
  for (const auto& [id, code, calls] : commands)
    EXPECT_EQ(calls_of(map->find_command(id, code)), calls) << id << ", " << code;
}

// What On<message>(...) refuses to compile.
static_assert(HandlesMessage<WM_SIZE, void (Recorder::*)(UINT, int, int)>);
static_assert(HandlesMessage<WM_SIZE, void (Recorder::*)(UINT, int, int) const>);
static_assert(!HandlesMessage<WM_SIZE, void (Recorder::*)(UINT, int)>, "parameter missing");
static_assert(!HandlesMessage<WM_SIZE, BOOL (Recorder::*)(UINT, int, int)>, "other result");
static_assert(!HandlesMessage<WM_SIZE, void (Recorder::*)(int, int, int)>, "other parameter");
static_assert(!HandlesMessage<WM_LBUTTONDOWN, void (Recorder::*)(UINT, const CPoint&)>);
static_assert(!HandlesMessage<WM_SIZE, void (*)(UINT, int, int)>, "not a member");
static_assert(!HandlesMessage<kDraw, LRESULT (Recorder::*)(WPARAM, LPARAM)>, "has no traits");
static_assert(!HandlesMessage<WM_CREATE, void (Recorder::*)(LPCREATESTRUCT)>, "must have a result");

TEST(FrameworkRuntimeClass, KnowsItsBases) {
  const CWnd window;
  EXPECT_TRUE(window.IsKindOf(&CWnd::classCWnd));
  EXPECT_TRUE(window.IsKindOf(&CObject::classCObject));
  static constexpr CRuntimeClass kOther{"Other", &CWnd::classCWnd};
  EXPECT_FALSE(window.IsKindOf(&kOther));
  EXPECT_TRUE(kOther.IsDerivedFrom(&CObject::classCObject));
  EXPECT_FALSE(kOther.IsDerivedFrom(nullptr));
}

}  // namespace
}  // namespace corvane
