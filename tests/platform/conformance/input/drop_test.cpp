// Dropped files: who gets them, and what the list says.
#include <cstring>

#include "corvane/platform/system/shell/wide_path.h"
#include "tests/platform/conformance/support/family_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

class DropTest : public FamilyTest {
 protected:
  DropTest() {
    for (const char* const name : {"top", "parent", "child", "other"}) {
      recorder().on(name, WM_DROPFILES, [this, name](const Message& sent) {
        receivers_ += name;
        const auto drop = reinterpret_cast<HDROP>(sent.wparam);
        inside_ = DragQueryPoint(drop, &point_);
        files_.clear();
        for (UINT at = 0; at < DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0); ++at) {
          std::wstring file(DragQueryFileW(drop, at, nullptr, 0) + 1, L'x');
          EXPECT_EQ(DragQueryFileW(drop, at, file.data(), static_cast<UINT>(file.size())),
                    file.size() - 1);
          files_.push_back(system::file_system_path(file.c_str()));
        }
        DragFinish(drop);
        EXPECT_EQ(DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0), 0U);
        return 0;
      });
    }
  }
  std::string dropped_at(POINT point, const std::vector<std::string>& files = {"/a"}) {
    system::InputEvent event;
    event.kind = system::InputKind::drop;
    event.position = point;
    event.files = files;
    own().display.push(event);
    pump();
    return std::exchange(receivers_, {});
  }

  std::string receivers_;
  std::vector<std::string> files_;
  POINT point_{};
  BOOL inside_ = FALSE;
};

TEST_F(DropTest, GoToTheNearestWindowThatTakesFiles) {
  EXPECT_EQ(dropped_at({140, 140}), "");
  DragAcceptFiles(top_, TRUE);
  EXPECT_NE(GetWindowLongPtrW(top_, GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
  EXPECT_EQ(dropped_at({140, 145}), "top");
  EXPECT_EQ(std::tuple(point_.x, point_.y, inside_), std::tuple(40, 45, TRUE));
  DragAcceptFiles(child_, TRUE);
  EXPECT_EQ(dropped_at({140, 140}), "child");
  EXPECT_EQ(dropped_at({200, 200}), "top") << "its parent takes none";
  DragAcceptFiles(child_, FALSE);
  EXPECT_EQ(dropped_at({140, 140}), "top");
}

TEST_F(DropTest, EveryNameSurvives) {
  DragAcceptFiles(top_, TRUE);
  const std::vector<std::string> names = {"/图片/裁 剪.png", "/a\\b", "/\xFF\xE5.jpg",
                                          "/\U0001F4F7"};
  EXPECT_EQ(dropped_at({200, 200}, names), "top");
  EXPECT_EQ(files_, names);
}

TEST_F(DropTest, ListsAreCutAndForeignMemoryIsNone) {
  HGLOBAL const own_list = GlobalAlloc(GHND, sizeof(DROPFILES) + 8 * sizeof(wchar_t));
  const DROPFILES head{sizeof(DROPFILES), {1, 2}, TRUE, TRUE};
  auto* const bytes = static_cast<char*>(GlobalLock(own_list));
  std::memcpy(bytes, &head, sizeof(head));
  std::memcpy(bytes + sizeof(head), L"abc\0def\0", 8 * sizeof(wchar_t));
  const auto drop = static_cast<HDROP>(own_list);
  EXPECT_EQ(DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0), 2U) << "the last 0 is not there";
  wchar_t cut[3] = {};
  EXPECT_EQ(DragQueryFileW(drop, 1, cut, 3), 2U);
  EXPECT_STREQ(cut, L"de");
  EXPECT_EQ(DragQueryFileW(drop, 2, cut, 3), 0U);
  POINT point{};
  EXPECT_FALSE(DragQueryPoint(drop, &point));
  EXPECT_EQ(point.y, 2);
  bytes[0] = 120;
  EXPECT_EQ(DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0), 0U) << "begins behind the end";
  DragFinish(drop);
}

}  // namespace
}  // namespace corvane::conformance
