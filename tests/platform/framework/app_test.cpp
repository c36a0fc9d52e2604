#include <optional>
#include <thread>
#include <tuple>

#include "tests/platform/framework/watched_wnd.h"
#include "tests/support/own_system.h"

namespace corvane {
namespace {

// Writes down the key presses that its filter sees, and those that reach it.
class FilterWnd : public WatchedWnd {
 public:
  FilterWnd(std::string name, std::string* log)
      : WatchedWnd([this](UINT message, WPARAM, LPARAM) {
          if (message == WM_KEYDOWN) *log_ += name_ + "! ";
        }),
        name_(std::move(name)),
        log_(log) {}
  bool swallows = false;
  CWnd* victim = nullptr;  // destroyed when it filters

  BOOL PreTranslateMessage(MSG* message) override {
    if (message->message != WM_KEYDOWN) return FALSE;
    *log_ += name_ + " ";
    if (victim != nullptr) victim->DestroyWindow();
    return swallows;
  }

 private:
  std::string name_;
  std::string* log_;
};

// main <- child <- grandchild; popup (owned by child's top level) <- button
class FrameworkApp : public testing::Test {
 protected:
  void SetUp() override {
    app_.m_pMainWnd = &main_;
    ASSERT_TRUE(main_.create());
    ASSERT_TRUE(child_.create(main_, WS_CHILD | WS_VISIBLE));
    ASSERT_TRUE(grandchild_.create(child_, WS_CHILD | WS_VISIBLE));
    ASSERT_TRUE(popup_.create(main_));
    ASSERT_TRUE(button_.create(popup_, WS_CHILD | WS_VISIBLE));
    desktop_.filter_messages(&PreTranslateInput);
    desktop_.pump();
    log_.clear();
  }
  std::string press(HWND window) {
    log_.clear();
    ::SetFocus(window);
    desktop_.key(VK_SPACE);
    return log_;
  }

  test::Desktop desktop_;
  CWinApp app_;
  std::string log_;
  FilterWnd main_{"main", &log_}, child_{"child", &log_}, grandchild_{"grandchild", &log_},
      popup_{"popup", &log_}, button_{"button", &log_};
};

TEST_F(FrameworkApp, FiltersAreAskedFromTheWindowUpAndThoseOfAPopUpBeforeTheMainWindows) {
  const HWND without_object =
      ::CreateWindowExW(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, 0, 0, 9, 9, child_,
                        nullptr, nullptr, nullptr);
  const std::tuple<HWND, FilterWnd*, const char*> cases[] = {
      {without_object, nullptr, "child main "},
      {grandchild_, nullptr, "grandchild child main grandchild! "},
      {main_, nullptr, "main main! "},
      {grandchild_, &child_, "grandchild child "},
      {button_, nullptr, "button popup main button! "},
      {button_, &popup_, "button popup "},
      {popup_, &main_, "popup main "}};
  for (const auto& [window, swallowing, seen] : cases) {
    for (FilterWnd* each : {&main_, &child_, &popup_}) each->swallows = each == swallowing;
    EXPECT_EQ(press(window), seen);
  }
}

TEST_F(FrameworkApp, AFilterMayDestroyWhatItGuards) {
  grandchild_.victim = &main_;
  ::SetFocus(grandchild_);
  desktop_.send_key(VK_SPACE, true);
  EXPECT_FALSE(desktop_.pump()) << "the main window's end quits";
  EXPECT_EQ(desktop_.living_windows(), 0);
  EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

TEST_F(FrameworkApp, TheApplicationMayFilterItself) {
  class Swallowing : public CWinApp {
   public:
    BOOL PreTranslateMessage(MSG* message) override { return message->message == WM_KEYDOWN; }
  };
  Swallowing inner;
  EXPECT_EQ(AfxGetApp(), &inner);
  EXPECT_EQ(press(child_), "");
}

TEST(FrameworkAppLife, TheLastOneMadeIsTheThreadsOne) {
  const test::Desktop desktop;
  EXPECT_EQ(AfxGetMainWnd(), nullptr);
  std::optional<CWinApp> outer(std::in_place), inner(std::in_place);
  EXPECT_EQ(AfxGetApp(), &*inner);
  inner.reset();
  EXPECT_EQ(AfxGetApp(), &*outer);
  outer.reset();
  EXPECT_EQ(AfxGetApp(), nullptr);
}

class TestApp : public CWinApp {
 public:
  bool InitInstance() override {
    calls += "init ";
    window.create();
    m_pMainWnd = &window;
    window.SetTimer(1, 50);
    return starts;
  }
  int ExitInstance() override {
    calls += "exit ";
    return CWinApp::ExitInstance();
  }
  bool OnIdle(LONG count) override {
    idle_turns += count == 0;
    return count < 2;
  }

  bool starts = true;
  std::string calls;
  int idle_turns = 0, ticks = 0;
  std::function<void()> at_third_tick;
  WatchedWnd window{[this](UINT message, WPARAM, LPARAM) {
    if (message == WM_TIMER && ++ticks == 3) at_third_tick();
  }};
};

TEST(FrameworkAppRun, EndsWithTheCodeOfTheQuitMessageOrTheMainWindow) {
  for (const int code : {42, 0}) {
    const test::Desktop desktop;
    TestApp app;
    app.at_third_tick = [&app, code] {
      code == 0 ? static_cast<void>(app.window.DestroyWindow()) : ::PostQuitMessage(code);
    };
    EXPECT_EQ(RunApp(app), code);
    EXPECT_EQ(app.calls, "init exit ");
    EXPECT_EQ(app.ticks, 3);
    EXPECT_GE(app.idle_turns, 3);
    EXPECT_EQ(app.m_pMainWnd == nullptr, code == 0);
  }
  const test::Desktop desktop;
  TestApp app;
  app.starts = false;
  EXPECT_EQ(RunApp(app), 0);
  EXPECT_EQ(app.calls, "init exit ");
  EXPECT_EQ(app.ticks, 0) << "what did not start does not run";
  EXPECT_FALSE(app.CWinApp::OnIdle(0));
}

TEST(FrameworkAppRun, ATurnHandlesWhatWaitsAndTellsOfTheQuitMessage) {
  const test::Desktop desktop;
  std::vector<UINT> seen;
  WatchedWnd window([&seen](UINT message, WPARAM, LPARAM) {
    if (message == WM_CHAR || message == WM_USER) seen.push_back(message);
  });
  ASSERT_TRUE(window.create());
  window.PostMessageW(WM_USER);
  window.PostMessageW(WM_KEYDOWN, 'A');
  EXPECT_TRUE(seen.empty()) << "only posted";
  EXPECT_TRUE(PumpMessages());
  EXPECT_EQ(seen, (std::vector<UINT>{WM_USER, WM_CHAR}));
  ::PostQuitMessage(0);
  EXPECT_FALSE(PumpMessages());
}

// The tests' environment names the display in memory.
TEST(FrameworkAppSession, UsesTheWindowSystemThatThereIsOrMakesOneWhenItIsNeeded) {
  const std::function<void()> needs[] = {
      [] { EXPECT_TRUE(WatchedWnd().create()); },
      [] { EXPECT_TRUE(CFont().CreateFontIndirectW(std::make_unique<LOGFONTW>().get())); },
      [] { EXPECT_NE(AfxRegisterWndClass(0), nullptr); }, [] { EXPECT_TRUE(PumpMessages()); }};
  for (const auto& need : needs) {
    {
      const CWinApp app;
      const CWinApp inner;
      EXPECT_EQ(system::WindowSystem::current(), nullptr) << "not yet";
      need();
      EXPECT_NE(system::WindowSystem::current(), nullptr);
    }
    EXPECT_EQ(system::WindowSystem::current(), nullptr);
  }
  test::Desktop desktop;
  const CWinApp app;
  EXPECT_NE(AfxRegisterWndClass(0), nullptr);
  EXPECT_EQ(system::WindowSystem::current(), &desktop.own().windows);
}

TEST(FrameworkAppSession, EndsWithItsThreadWhenTheApplicationObjectOutlivesIt) {
  std::optional<CWinApp> app;
  bool destroyed = false;
  WatchedWnd window([&destroyed](UINT message, WPARAM, LPARAM) {
    if (message == WM_NCDESTROY) destroyed = true;
  });
  std::thread([&] {
    app.emplace();
    EXPECT_TRUE(window.create());
  }).join();
  EXPECT_TRUE(destroyed);
  EXPECT_EQ(window.GetSafeHwnd(), nullptr);
}

}  // namespace
}  // namespace corvane
