#include <gtest/gtest.h>

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

  BOOL PreTranslateMessage(MSG* message) override {
    if (message->message != WM_KEYDOWN) return FALSE;
    *log_ += name_ + " ";
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

TEST_F(FrameworkApp, FiltersAreAskedFromTheWindowUp) {
  EXPECT_EQ(press(grandchild_), "grandchild child main grandchild! ");
  EXPECT_EQ(press(main_), "main main! ");
  child_.swallows = true;
  EXPECT_EQ(press(grandchild_), "grandchild child ");
}

TEST_F(FrameworkApp, APopUpsFiltersComeBeforeTheMainWindows) {
  EXPECT_EQ(press(button_), "button popup main button! ");
  popup_.swallows = true;
  EXPECT_EQ(press(button_), "button popup ");
  popup_.swallows = false;
  main_.swallows = true;
  EXPECT_EQ(press(popup_), "popup main ");
}

TEST_F(FrameworkApp, WindowsWithoutObjectsAreSteppedOver) {
  const HWND plain = ::CreateWindowExW(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, 0, 0,
                                       9, 9, child_, nullptr, nullptr, nullptr);
  EXPECT_EQ(press(plain), "child main ");
}

TEST_F(FrameworkApp, AFilterMayDestroyWhatItGuards) {
  class Fatal : public WatchedWnd {
   public:
    explicit Fatal(CWnd& victim) : victim_(victim) {}
    BOOL PreTranslateMessage(MSG* message) override {
      if (message->message == WM_KEYDOWN) victim_.DestroyWindow();
      return FALSE;
    }

   private:
    CWnd& victim_;
  };
  Fatal fatal(main_);
  ASSERT_TRUE(fatal.create(child_, WS_CHILD | WS_VISIBLE));
  ::SetFocus(fatal);
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
  EXPECT_EQ(AfxGetApp(), nullptr);
  EXPECT_EQ(AfxGetMainWnd(), nullptr);
  {
    CWinApp outer;
    {
      CWinApp inner;
      EXPECT_EQ(AfxGetApp(), &inner);
    }
    EXPECT_EQ(AfxGetApp(), &outer);
  }
  EXPECT_EQ(AfxGetApp(), nullptr);
}

class TestApp : public CWinApp {
 public:
  explicit TestApp(bool starts) : starts_(starts) {}
  bool InitInstance() override {
    calls += "init ";
    if (!starts_) return false;
    window.create();
    m_pMainWnd = &window;
    window.SetTimer(1, 50);
    return true;
  }
  int ExitInstance() override {
    calls += "exit ";
    return CWinApp::ExitInstance();
  }
  bool OnIdle(LONG count) override {
    idle_turns += count == 0;
    return count < 2;
  }

  std::string calls;
  int idle_turns = 0;
  int ticks = 0;
  std::function<void()> at_third_tick;
  WatchedWnd window{[this](UINT message, WPARAM, LPARAM) {
    if (message == WM_TIMER && ++ticks == 3) at_third_tick();
  }};

 private:
  bool starts_;
};

TEST(FrameworkAppRun, EndsWithTheCodeOfTheQuitMessage) {
  const test::Desktop desktop;
  TestApp app(true);
  app.at_third_tick = [] { ::PostQuitMessage(42); };
  EXPECT_EQ(RunApp(app), 42);
  EXPECT_EQ(app.calls, "init exit ");
  EXPECT_EQ(app.ticks, 3);
  EXPECT_GE(app.idle_turns, 3);
}

TEST(FrameworkAppRun, EndsWithTheMainWindow) {
  const test::Desktop desktop;
  TestApp app(true);
  app.at_third_tick = [&app] { app.window.DestroyWindow(); };
  EXPECT_EQ(RunApp(app), 0);
  EXPECT_EQ(app.m_pMainWnd, nullptr);
}

TEST(FrameworkAppRun, DoesNotRunWhatDidNotStart) {
  const test::Desktop desktop;
  TestApp app(false);
  EXPECT_EQ(RunApp(app), 0);
  EXPECT_EQ(app.calls, "init exit ");
}

// The tests' environment names the display in memory.
TEST(FrameworkAppSession, MakesAWindowSystemWhereThereIsNone) {
  ASSERT_EQ(system::WindowSystem::current(), nullptr);
  {
    const CWinApp app;
    ASSERT_NE(system::WindowSystem::current(), nullptr);
    WatchedWnd window;
    EXPECT_TRUE(window.create());
  }
  EXPECT_EQ(system::WindowSystem::current(), nullptr);
}

TEST(FrameworkAppSession, UsesTheOneThatThereIs) {
  test::Desktop desktop;
  {
    const CWinApp app;
    EXPECT_EQ(system::WindowSystem::current(), &desktop.own().windows);
  }
  EXPECT_EQ(system::WindowSystem::current(), &desktop.own().windows);
}

}  // namespace
}  // namespace corvane
