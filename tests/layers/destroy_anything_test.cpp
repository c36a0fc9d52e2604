// Whatever message a window of a layer gets, a host may destroy the layer, its parent or a part of
// it right then. Each case plays a user's whole session once for every message that comes in it and
// does its worst at that message. Nothing may crash, nothing may be left.
#include <memory>
#include <tuple>

#include "corvane/layers/buttons/window_layer.h"
#include "tests/layers/support/crop_scene.h"
#include "tests/support/destroy_session.h"

namespace corvane::test {
namespace {

class CropSession : public Scene {
 public:
  using Scene::Scene;

  void play() override {
    host_.open(session_host);
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
    RECT place{};
    ::GetWindowRect(bar ? ::GetDlgItem(bar, number) : nullptr, &place);
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
    host_.open(session_host);
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
      desktop_.send_mouse(MOUSEEVENTF_LEFTUP);
    };
    trap_.begin_phase();
    desktop_.press_at(40, 90);
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
using Case = std::tuple<Session, DestroyCase>;

class DestroyAnythingTest : public testing::TestWithParam<Case> {
 protected:
  TestSkin skin_;
};

TEST_P(DestroyAnythingTest, AtEveryMessage) {
  const auto& [session, destroy_case] = GetParam();
  const auto make_scene = [crop = session == Session::crop](Desktop& desktop, MessageTrap& trap) {
    std::unique_ptr<Scene> scene;
    if (crop) {
      scene = std::make_unique<CropSession>(desktop, trap);
    } else {
      scene = std::make_unique<ButtonLayerSession>(desktop, trap);
    }
    return scene;
  };
  destroy_at_every_message(make_scene, destroy_case);
}

std::string case_name(const testing::TestParamInfo<Case>& info) {
  const auto& [session, destroy_case] = info.param;
  return (session == Session::crop ? "Crop" : "ButtonLayer") + name_of(destroy_case);
}

INSTANTIATE_TEST_SUITE_P(Sessions, DestroyAnythingTest,
                         testing::Combine(testing::Values(Session::crop, Session::button_layer),
                                          testing::ValuesIn(destroy_cases())),
                         case_name);

}  // namespace
}  // namespace corvane::test
