// Whatever message a window gets while a user works with the tree, the host may destroy the tree or
// change its folders right then.
#include <gtest/gtest.h>

#include "tests/support/destroy_session.h"
#include "tests/trees/support/scripted_tree.h"

namespace corvane::test {
namespace {

// The tree is too narrow for the names of its folders: finding a font takes as long as all else.
class TreeSession : public LayerScene<ScriptedTree> {
 public:
  using LayerScene::LayerScene;

  void play() override {
    host_.open({10, 10, 90, 130});
    desktop_.pump();
    create();
    trap_.begin_phase();
    desktop_.click(40, 30);
    desktop_.double_click(40, 60);
    desktop_.wheel_at(40, 60, -120);
    for (const int key : {VK_ESCAPE, VK_RETURN}) desktop_.key(key);
    trap_.begin_phase();
    drag_thumb();
    trap_.begin_phase();
    if (layer_ != nullptr) layer_->SetCurPath(L"Q:\\Lib\\1");
    if (layer_ != nullptr) layer_->MoveWindow(5, 5, 50, 70, TRUE);
    desktop_.pump();
    if (layer_ != nullptr) layer_->DelAllNode();
    if (layer_ != nullptr) layer_->DestroyWindow();
    destroy_host();
  }
  void destroy_part(int which) override {
    if (layer_ == nullptr) return;
    if (which == 0) {
      layer_->DelAllNode();
    } else {
      fill(3);  // so few that the bar goes
    }
  }

 private:
  void create() {
    layer_ = std::make_unique<ScriptedTree>();
    fill(12);
    layer_->Create(nullptr, L"tree", WS_CHILD | WS_VISIBLE, CRect(5, 5, 65, 105), &host_, 1);
    desktop_.pump();
  }
  void fill(int count) {
    layer_->SetPath(L"Q:\\Lib", nullptr);
    _NODE* root = layer_->FindNode(L"", nullptr);
    for (int i = 0; i < count; ++i) {
      layer_->AddChildNode(L"inner", layer_->AddChildNode(std::to_wstring(i).c_str(), root));
    }
  }
  void drag_thumb() {
    if (layer_ != nullptr) {
      layer_->steps = {[] { ::SetCursorPos(66, 80); },
                       [this] { desktop_.send_mouse(MOUSEEVENTF_LEFTUP); }};
    }
    desktop_.press_at(66, 40);
    desktop_.release();
  }
};

class TreeDestroyTest : public testing::TestWithParam<DestroyCase> {
 protected:
  TestSkin skin_;
};

TEST_P(TreeDestroyTest, AtEveryMessage) { destroy_at_every_message<TreeSession>(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Deeds, TreeDestroyTest, testing::ValuesIn(destroy_cases()),
                         [](const auto& each) { return name_of(each.param); });

}  // namespace
}  // namespace corvane::test
