// Painting, clicking and turning the wheel in the folder tree with 100,000 expanded folders,
// against the same with 1,000.
#include <cstdio>
#include <string>

#include "bench/measure.h"
#include "corvane/platform/framework/framework.h"
#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"
#include "tests/support/app_desktop.h"
#include "tests/support/own_system.h"

namespace corvane::bench {
namespace {

constexpr SIZE tree_size{300, 900};
constexpr int folders_in_a_year = 100;
constexpr int wheel_notch = 120;

class ParentWindow : public CWnd {
 public:
  ~ParentWindow() override { DestroyWindow(); }
  bool open() {
    return CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"parent", WS_POPUP | WS_VISIBLE,
                    CRect(0, 0, 2 * tree_size.cx, tree_size.cy), nullptr, 0);
  }
};

// A tree of years with folders, all expanded, scrolled to its middle.
class Tree {
 public:
  explicit Tree(test::Desktop& desktop) : desktop_(desktop) {}
  bool open(ParentWindow& parent, int left, int folders) {
    left_ = left;
    const CRect place(left, 0, left + tree_size.cx, tree_size.cy);
    if (!tree_.Create(nullptr, L"tree", WS_CHILD | WS_VISIBLE, place, &parent, 1)) return false;
    tree_.SetPath(L"Q:\\library", nullptr);
    _NODE* root = tree_.FindNode(L"", nullptr);
    _NODE* year = nullptr;
    for (int i = 0; i < folders; ++i) {
      if (i % folders_in_a_year == 0) {
        year = tree_.AddChildNode(name(L"相册 ", i / folders_in_a_year).c_str(), root);
      } else {
        tree_.AddChildNode(name(L"2024 旅行 ", i).c_str(), year);
        if (i % folders_in_a_year == 1) tree_.Expand(tree_.GetNodePath(year));
      }
    }
    paint();
    tree_.SetScrollPos(SB_VERT, tree_.GetScrollLimit(SB_VERT) / 2);
    paint();
    return tree_.ListSort() == (folders + 1) * kTreeRowHeight;
  }

  void paint() {
    tree_.Invalidate(FALSE);
    tree_.UpdateWindow();
  }
  // On the rows in view in turn.
  void click() {
    next_row_ = (next_row_ + 1) % 25;
    ::SetCursorPos(left_ + 100, 15 + next_row_ * kTreeRowHeight);
    desktop_.send_mouse(MOUSEEVENTF_LEFTDOWN);
    desktop_.release();
    desktop_.own().windows.present();
  }
  void turn_wheel() {
    down_ = !down_;
    ::SetCursorPos(left_ + 100, 100);
    desktop_.wheel(down_ ? -wheel_notch : wheel_notch);
    desktop_.own().windows.present();
  }
  // The rows are laid out anew after such a change.
  void collapse_or_expand() {
    tree_.ClickNode({100, kTreeRowHeight * 10}, CTreeCtrlEx2::click_toggles);
    paint();
  }

  CString current() const { return tree_.GetCurPath(); }
  int position() const { return tree_.GetScrollPos(SB_VERT); }

 private:
  static std::wstring name(const wchar_t* text, int number) {
    return text + std::to_wstring(number);
  }

  test::Desktop& desktop_;
  CTreeCtrlEx2 tree_;
  int left_ = 0;
  int next_row_ = 0;
  bool down_ = false;
};

bool reacts(Tree& tree) {
  const CString folder = tree.current();
  tree.click();
  const int position = tree.position();
  tree.turn_wheel();
  return tree.current() != folder && tree.position() == position + 10;
}

int run(const Options& options) {
  Report report(options);
  test::AppDesktop desktop(SIZE{2 * tree_size.cx, tree_size.cy});
  ParentWindow parent;
  Tree few(desktop);
  Tree many(desktop);
  const int many_folders = options.smoke ? 2000 : 100000;
  if (!parent.open() || !few.open(parent, 0, 1000) ||
      !many.open(parent, tree_size.cx, many_folders) || !reacts(few) || !reacts(many)) {
    std::fputs("the trees do not react to the mouse\n", stderr);
    return 1;
  }
  const std::vector<Times> times = interleaved(
      {[&] { few.paint(); }, [&] { many.paint(); }, [&] { few.click(); }, [&] { many.click(); },
       [&] { few.turn_wheel(); }, [&] { many.turn_wheel(); }, [&] { many.collapse_or_expand(); }},
      options.smoke ? 3 : 100);
  const std::string folders = std::to_string(many_folders) + " folders";
  report.ratio("tree paint, " + folders, times[1], times[0], 1.5);
  report.value_with_limit("tree paint, " + folders, times[1].median, "ms", 2);
  report.ratio("tree click to frame, " + folders, times[3], times[2], 1.5);
  report.ratio("tree wheel notch to frame, " + folders, times[5], times[4], 1.5);
  report.value("tree paint after a folder opened, " + folders, times[6].median, "ms");
  return report.exit_status();
}

}  // namespace
}  // namespace corvane::bench

int main(int argc, char** argv) {
  return corvane::bench::run(corvane::bench::options_of(argc, argv));
}
