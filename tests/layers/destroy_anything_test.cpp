// Whatever message a window of a layer gets, a host may destroy the layer, its parent or a part of
// it right then. Each case plays a user's whole session once for every message that comes in it and
// does its worst at that message. Nothing may crash, nothing may be left.
#include <memory>

#include "corvane/layers/buttons/window_layer.h"
#include "tests/layers/support/crop_scene.h"
#include "tests/support/destroy_session.h"

namespace corvane::test {
namespace {

class CropSession : public LayerScene<CCutBgLayer> {
 public:
  using LayerScene::LayerScene;

  void play() override {
    host_.open(session_host);
    layer_ = std::make_unique<CCutBgLayer>();
    layer_->SetParentHwnd(host_);
    layer_->ShowBtn(1);
    create_over(*layer_, host_);
    if (layer_ != nullptr) layer_->ShowWindow(SW_SHOW);
    desktop_.pump();
    trap_.begin_phase();
    desktop_.drag({30, 30}, {170, 120});
    trap_.begin_phase();
    desktop_.drag({100, 70}, {110, 75});
    trap_.begin_phase();
    if (layer_ != nullptr) click_middle_of(desktop_, ::GetDlgItem(layer_->GetBarHwnd(), 3));
    trap_.begin_phase();
    if (layer_ != nullptr) layer_->SetOCRMode(1);
    desktop_.drag({20, 20}, {100, 100});
    desktop_.key(VK_ESCAPE);
    desktop_.key(VK_RETURN);
    trap_.begin_phase();
    if (layer_ != nullptr) layer_->MoveWindow(20, 20, 150, 100, TRUE);
    desktop_.pump();
    if (layer_ != nullptr) layer_->ShowWindow(SW_HIDE);
    if (layer_ != nullptr) layer_->DestroyWindow();
    destroy_host();
  }
  void destroy_part(int which) override {
    if (layer_ == nullptr) return;
    ::DestroyWindow(which == 0 ? rect_layer_of(*layer_) : layer_->GetBarHwnd());
  }
};

class ButtonLayerSession : public LayerScene<CWindowLayer> {
 public:
  using LayerScene::LayerScene;

  void play() override {
    lists_.LoadCtrlList(L"ui_control.xml", TestSkin::button_list);
    host_.open(session_host);
    host_.on_message = [this](UINT message, WPARAM) {
      if (message != WM_ENTERSIZEMOVE) return;
      ::SetCursorPos(100, 110);
      desktop_.send_mouse(MOUSEEVENTF_LEFTUP);
    };
    layer_ = std::make_unique<CWindowLayer>();
    layer_->SetXmlListMgr(&lists_);
    for (const int id : {11, 12}) layer_->AddBtn(id);
    layer_->CreateEx(0, nullptr, L"layer", WS_CHILD, CRect(5, 5, 205, 125), &host_, 0);
    if (layer_ != nullptr) layer_->ShowWindow(SW_SHOW);
    desktop_.pump();
    trap_.begin_phase();
    desktop_.click(35, 35);
    trap_.begin_phase();
    desktop_.key(VK_SPACE);
    desktop_.key(VK_ESCAPE);
    desktop_.press_at(40, 90);
    desktop_.release();
    trap_.begin_phase();
    if (layer_ != nullptr) layer_->SetBtnRect(11, CRect(5, 5, 45, 25));
    if (layer_ != nullptr) layer_->MoveWindow(0, 0, 150, 90, TRUE);
    desktop_.pump();
    if (layer_ != nullptr) layer_->ShowWindow(SW_HIDE);
    if (layer_ != nullptr) layer_->DestroyWindow();
    destroy_host();
  }
  void destroy_part(int which) override {
    if (layer_ == nullptr) return;
    if (which == 0) {
      layer_->DelAllBtn();
    } else {
      ::DestroyWindow(::GetDlgItem(*layer_, 12));
    }
  }

 private:
  CXmlListMgr lists_;
};

class DestroyAnythingTest : public testing::TestWithParam<DestroyCase> {
 protected:
  TestSkin skin_;
};

TEST_P(DestroyAnythingTest, CropAtEveryMessage) {
  destroy_at_every_message<CropSession>(GetParam());
}

TEST_P(DestroyAnythingTest, ButtonLayerAtEveryMessage) {
  destroy_at_every_message<ButtonLayerSession>(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Deeds, DestroyAnythingTest, testing::ValuesIn(destroy_cases()),
                         [](const auto& each) { return name_of(each.param); });

}  // namespace
}  // namespace corvane::test
