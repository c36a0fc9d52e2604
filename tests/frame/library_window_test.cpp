#include "corvane/frame/library_window.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "corvane/platform/framework/win_app.h"
#include "tests/support/desktop.h"
#include "tests/support/host_window.h"

namespace corvane {
namespace {

// Says when it ends, and lets the window speak.
class Member {
 public:
  explicit Member(std::string& log) : log_(log) {}
  ~Member() {
    log_ += "member ended;";
    ::SendMessageW(window, WM_APP, 0, 0);
  }

  HWND window = nullptr;

 private:
  std::string& log_;
};

class CPlainWindow : public LibraryWindow<CWnd> {
 public:
  CPlainWindow(std::string& log, std::optional<KeyFilter> keys)
      : LibraryWindow(this, end_), log_(log), keys_(keys) {}
  static const CRuntimeClass classCPlainWindow;
  int OnCreate(LPCREATESTRUCT creation) {
    member_.window = m_hWnd;
    return CWnd::OnCreate(creation);
  }
  LRESULT OnSpeak(WPARAM, LPARAM) {
    log_ += "spoke;";
    return 0;
  }
  void OnDestroy() {
    log_ += "OnDestroy;";
    CWnd::OnDestroy();
  }

 protected:
  const WindowDescription& description() const override {
    static constexpr auto kMessages = MessageTable(On<WM_CREATE>(&CPlainWindow::OnCreate),
                                                   On<WM_DESTROY>(&CPlainWindow::OnDestroy),
                                                   OnMessage<WM_APP>(&CPlainWindow::OnSpeak));
    const auto with_keys = [this](std::optional<KeyFilter> keys) {
      return WindowDescription{classCPlainWindow, kMessages.extending(base_messages()), keys};
    };
    static const WindowDescription filtered = with_keys(KeyFilter::swallow_only);
    static const WindowDescription unfiltered = with_keys(std::nullopt);
    return keys_ ? filtered : unfiltered;
  }

 private:
  std::string& log_;
  std::optional<KeyFilter> keys_;
  Member member_{log_};
  WindowEnd end_{*this};
};

constexpr CRuntimeClass CPlainWindow::classCPlainWindow{"CPlainWindow", &CWnd::classCWnd};

// As a host derives from a class of the library.
class CHostWindow : public CPlainWindow {
 public:
  using CPlainWindow::CPlainWindow;
  ~CHostWindow() override { DestroyWindow(); }
  static const CRuntimeClass classCHostWindow;
  const CRuntimeClass* GetRuntimeClass() const override { return &classCHostWindow; }
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages = MessageTable(OnMessage<WM_USER>(&CHostWindow::OnUser));
    static const MessageMap map = kMessages.extending(CPlainWindow::GetMessageMap());
    return &map;
  }
  LRESULT OnUser(WPARAM, LPARAM) { return 42; }
};

constexpr CRuntimeClass CHostWindow::classCHostWindow{"CHostWindow",
                                                      &CPlainWindow::classCPlainWindow};

class LibraryWindowTest : public testing::Test {
 protected:
  template <class Window>
  std::unique_ptr<Window> open(std::optional<KeyFilter> keys) {
    auto window = std::make_unique<Window>(log_, keys);
    EXPECT_TRUE(window->CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    return window;
  }

  test::Desktop desktop_;
  std::string log_;
};

TEST_F(LibraryWindowTest, TheWindowEndsBeforeTheMembers) {
  open<CPlainWindow>(std::nullopt).reset();
  EXPECT_EQ(log_, "OnDestroy;member ended;");
  EXPECT_EQ(desktop_.living_windows(), 0);
}

TEST_F(LibraryWindowTest, DeletedWhileItsWindowIsBeingDestroyedItHandlesNothingMore) {
  test::HostWindow parent;
  ASSERT_TRUE(parent.open({0, 0, 9, 9}));
  std::unique_ptr<CWnd> child = std::make_unique<CPlainWindow>(log_, std::nullopt);
  parent.on_message = [&](UINT message, WPARAM wparam) {
    if (message == WM_PARENTNOTIFY && LOWORD(wparam) == WM_DESTROY) child.reset();
  };
  ASSERT_TRUE(child->Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &parent, 1));
  ::DestroyWindow(*child);
  EXPECT_EQ(log_, "member ended;");
  EXPECT_EQ(desktop_.living_windows(), 1);
}

TEST_F(LibraryWindowTest, AHostsClassAddsToItsMessagesAndClass) {
  const auto window = open<CHostWindow>(std::nullopt);
  EXPECT_EQ(window->SendMessageW(WM_USER), 42);
  EXPECT_TRUE(window->IsKindOf(&CPlainWindow::classCPlainWindow));
  EXPECT_EQ(std::string(window->GetRuntimeClass()->m_lpszClassName), "CHostWindow");
  window->DestroyWindow();
  EXPECT_EQ(log_, "OnDestroy;");
}

TEST_F(LibraryWindowTest, FiltersTheKeysOfItsDescriptionOrNone) {
  for (const bool filtered : {true, false}) {
    const auto keys = filtered ? std::optional(KeyFilter::swallow_only) : std::nullopt;
    const auto window = open<CPlainWindow>(keys);
    EXPECT_EQ(std::string(window->GetRuntimeClass()->m_lpszClassName), "CPlainWindow");
    MSG escape{*window, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    EXPECT_EQ(PreTranslateInput(&escape), filtered);
    MSG letter{*window, WM_KEYDOWN, 'A', 0, 0, {}};
    EXPECT_FALSE(PreTranslateInput(&letter));
  }
}

}  // namespace
}  // namespace corvane
