// Whatever message a window of a layer gets, a host may destroy the layer, its parent or a part of
// it right then. Each case plays a user's whole session once for every message that comes in it and
// does its worst at that message. Nothing may crash, nothing may be left.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "corvane/layers/frame/window_layer.h"
#include "tests/layers/support/crop_scene.h"
#include "tests/layers/support/message_trap.h"

namespace corvane_tests {
namespace {

constexpr SIZE screen = {240, 180};
constexpr RECT small_host = {10, 10, 230, 170};

// A host with layers, what a user does to them, and what may go wrong.
class Scene {
 public:
  Scene(Desktop& desktop, MessageTrap& trap) : desktop_(desktop), trap_(trap) {}
  virtual ~Scene() = default;

  virtual void play() = 0;
  virtual void delete_layer() = 0;
  virtual void destroy_layer() = 0;
  virtual void destroy_part(int which) = 0;
  void destroy_host() { host_.DestroyWindow(); }

 protected:
  Desktop& desktop_;
  MessageTrap& trap_;
  HostWindow host_;
};

class CropSession : public Scene {
 public:
  using Scene::Scene;

  void play() override {
    host_.open(small_host);
    desktop_.pump();
    create();
    trap_.begin_phase();
    start();
    trap_.begin_phase();
    desktop_.drag({30, 30}, {170, 120});
    trap_.begin_phase();
    desktop_.drag({100, 70}, {110, 75});
    trap_.begin_phase();
    desktop_.drag({180, 125}, {150, 110});
    trap_.begin_phase();
    repaint();
    trap_.begin_phase();
    click_button(3);
    trap_.begin_phase();
    if (background_) background_->SetOCRMode(1);
    desktop_.drag({20, 20}, {100, 100});
    trap_.begin_phase();
    click_button(5);
    desktop_.key(VK_ESCAPE);
    desktop_.key(VK_RETURN);
    trap_.begin_phase();
    finish();
  }
  void delete_layer() override { background_.reset(); }
  void destroy_layer() override {
    if (background_) background_->DestroyWindow();
  }
  void destroy_part(int which) override {
    const HWND background = handle();
    ::DestroyWindow(which == 0 ? rect_layer_of(background) : bar_of(background));
  }

 private:
  HWND handle() const { return background_ ? background_->GetSafeHwnd() : nullptr; }

  void create() {
    background_ = std::make_unique<corvane::CCutBgLayer>();
    background_->SetParentHwnd(host_);
    background_->ShowBtn(1);
    create_over(*background_, host_);
  }
  void start() {
    if (background_) background_->ShowWindow(SW_SHOW);
    desktop_.pump();
  }
  void repaint() {
    const HWND background = handle();
    for (const HWND each : {background, rect_layer_of(background), bar_of(background)}) {
      if (each) ::InvalidateRect(each, nullptr, TRUE);
    }
    desktop_.pump();
  }
  void click_button(int number) {
    const HWND bar = bar_of(handle());
    const RECT place = window_rect(bar ? ::GetDlgItem(bar, number) : nullptr);
    desktop_.click(place.left + 5, place.top + 5);
  }
  void finish() {
    if (background_) background_->MoveWindow(20, 20, 150, 100, TRUE);
    desktop_.pump();
    if (background_) background_->ShowWindow(SW_HIDE);
    if (background_) background_->DestroyWindow();
    desktop_.pump();
    destroy_host();
  }

  std::unique_ptr<corvane::CCutBgLayer> background_;
};

class ButtonLayerSession : public Scene {
 public:
  ButtonLayerSession(Desktop& desktop, MessageTrap& trap) : Scene(desktop, trap) {
    lists_.LoadCtrlList(L"ui_control.xml", TestSkin::button_list);
  }

  void play() override {
    host_.open(small_host);
    desktop_.pump();
    create();
    if (layer_) layer_->ShowWindow(SW_SHOW);
    desktop_.pump();
    trap_.begin_phase();
    desktop_.click(35, 35);
    trap_.begin_phase();
    desktop_.key(VK_SPACE);
    desktop_.key(VK_ESCAPE);
    host_.on_drag_begin = [this] {
      ::SetCursorPos(100, 110);
      desktop_.queue_release();
    };
    trap_.begin_phase();
    desktop_.press(40, 90);
    desktop_.release();
    trap_.begin_phase();
    if (layer_) layer_->SetBtnRect(11, corvane::CRect(5, 5, 45, 25));
    if (layer_) layer_->MoveWindow(0, 0, 150, 90, TRUE);
    desktop_.pump();
    if (layer_) layer_->ShowWindow(SW_HIDE);
    if (layer_) layer_->DestroyWindow();
    destroy_host();
  }
  void delete_layer() override { layer_.reset(); }
  void destroy_layer() override {
    if (layer_) layer_->DestroyWindow();
  }
  void destroy_part(int which) override {
    if (!layer_) return;
    if (which == 0) return layer_->DelAllBtn();
    const HWND button = ::GetDlgItem(*layer_, 12);
    ::DestroyWindow(button);
  }

 private:
  void create() {
    layer_ = std::make_unique<corvane::CWindowLayer>();
    layer_->SetXmlListMgr(&lists_);
    for (const int id : {11, 12}) layer_->AddBtn(id);
    layer_->CreateEx(0, nullptr, L"layer", WS_CHILD, corvane::CRect(5, 5, 205, 125), &host_, 0);
  }

  corvane::CXmlListMgr lists_;
  std::unique_ptr<corvane::CWindowLayer> layer_;
};

enum class Session { crop, button_layer };
enum class Deed { delete_layer, destroy_layer, destroy_host, destroy_first, destroy_second };

void do_worst(Scene& scene, Deed deed) {
  switch (deed) {
    case Deed::delete_layer:
      return scene.delete_layer();
    case Deed::destroy_layer:
      return scene.destroy_layer();
    case Deed::destroy_host:
      return scene.destroy_host();
    case Deed::destroy_first:
      return scene.destroy_part(0);
    case Deed::destroy_second:
      return scene.destroy_part(1);
  }
}

struct Case {
  Session session;
  Deed deed;
  TrapSide side;
};

class DestroyAnythingTest : public testing::TestWithParam<Case> {
 protected:
  std::unique_ptr<Scene> scene(Desktop& desktop, MessageTrap& trap) const {
    if (GetParam().session == Session::crop) return std::make_unique<CropSession>(desktop, trap);
    return std::make_unique<ButtonLayerSession>(desktop, trap);
  }

  // The messages of an undisturbed session, each at its first time in every phase.
  std::map<TrapPoint, std::vector<int>> listen() {
    Desktop desktop(screen);
    MessageTrap trap;
    scene(desktop, trap)->play();
    return trap.firsts();
  }

  // False: the message did not come.
  bool play(const TrapPoint& point, int occurrence) {
    Desktop desktop(screen);
    const int windows = desktop.windows().live_windows();
    bool sprung = false;
    {
      MessageTrap trap;
      const auto played = scene(desktop, trap);
      desktop.app().m_pMainWnd = nullptr;
      trap.set(point, occurrence, GetParam().side, [&] { do_worst(*played, GetParam().deed); });
      played->play();
      sprung = trap.sprung();
      played->delete_layer();
    }
    EXPECT_EQ(desktop.windows().live_windows(), windows);
    EXPECT_EQ(desktop.windows().live_timers(), 0);
    return sprung;
  }

  TestSkin skin_;
};

TEST_P(DestroyAnythingTest, AtEveryMessage) {
  const auto messages = listen();
  ASSERT_GT(messages.size(), 50U);
  for (const auto& [point, occurrences] : messages) {
    for (const int occurrence : occurrences) {
      SCOPED_TRACE(point.window + " at message " + std::to_string(point.message) + ", occurrence " +
                   std::to_string(occurrence));
      EXPECT_TRUE(play(point, occurrence));
    }
  }
}

std::vector<Case> cases() {
  std::vector<Case> all;
  for (const Session session : {Session::crop, Session::button_layer}) {
    for (const Deed deed : {Deed::delete_layer, Deed::destroy_layer, Deed::destroy_host,
                            Deed::destroy_first, Deed::destroy_second}) {
      for (const TrapSide side : {TrapSide::before_handling, TrapSide::after_handling}) {
        all.push_back({session, deed, side});
      }
    }
  }
  return all;
}

std::string name_of(const testing::TestParamInfo<Case>& info) {
  constexpr const char* deeds[] = {"DeletesLayer", "DestroysLayer", "DestroysHost",
                                   "DestroysFirstPart", "DestroysSecondPart"};
  return std::string(info.param.session == Session::crop ? "Crop" : "ButtonLayer") +
         deeds[static_cast<int>(info.param.deed)] +
         (info.param.side == TrapSide::before_handling ? "Before" : "After");
}

INSTANTIATE_TEST_SUITE_P(Sessions, DestroyAnythingTest, testing::ValuesIn(cases()), name_of);

}  // namespace
}  // namespace corvane_tests
