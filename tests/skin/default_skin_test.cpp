// The default skin holds what the library and its program ask for.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "corvane/frame/window_lists.h"
#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/images/gdi_image.h"
#include "corvane/platform/system/gdi/surface.h"
#include "corvane/skin/xml_list_mgr.h"
#include "tests/support/source_folder.h"

namespace corvane {
namespace {

class DefaultSkin : public testing::Test {
 protected:
  DefaultSkin() { SetSkinFolder(wide_path_of(test::source_folder() / "skins/default")); }
  ~DefaultSkin() override { SetSkinFolder(L""); }
};

TEST_F(DefaultSkin, EveryButtonHasItsSizeImagesCaptionAndFont) {
  struct Case {
    int list;
    int control;
    const wchar_t* caption;  // null: none
    CRect rect;
  };
  const Case cases[] = {
      {4, 3, L"保存", {0, 0, 96, 40}},        {4, 4, L"识别", {0, 0, 96, 40}},
      {4, 1, L"重画", {0, 0, 96, 40}},        {4, 2, L"取消", {0, 0, 96, 40}},
      {4, 5, L"识别", {0, 0, 96, 40}},        {4, 6, L"取消", {0, 0, 96, 40}},
      {100, 1, L"裁剪", {12, 8, 100, 68}},    {100, 2, L"文字识别", {104, 8, 192, 68}},
      {100, 3, L"打开", {196, 8, 284, 68}},   {100, 4, L"上一张", {288, 8, 376, 68}},
      {100, 5, L"下一张", {380, 8, 468, 68}}, {100, 6, L"退出", {472, 8, 560, 68}},
      {101, 1, nullptr, {0, 0, 32, 32}}};
  for (const auto& each : cases) {
    SCOPED_TRACE(testing::Message() << "list " << each.list << " control " << each.control);
    CXmlListMgr skin;
    skin.Load({each.list});
    const _MYCONTROL* const control = skin.GetCtrl(each.control);
    ASSERT_TRUE(control);
    EXPECT_EQ(CRect(control->rect), each.rect);
    const CString folder = skin.GetBgImgPath(-1);
    for (const auto* const image : {&control->image, &control->hover_image, &control->pressed_image,
                                    &control->disabled_image, &control->selected_image}) {
      EXPECT_TRUE(std::filesystem::is_regular_file(native_path((folder + *image).AsStdString())));
    }
    ASSERT_EQ(control->caption_ids != nullptr, each.caption != nullptr);
    if (!each.caption) continue;
    const _MYLANGUAGE* const caption = skin.GetLanguage(control->caption_ids[0]);
    ASSERT_TRUE(caption);
    EXPECT_EQ(caption->text, each.caption);
    EXPECT_TRUE(skin.GetMyFont(caption->font_id));
  }
}

TEST_F(DefaultSkin, TheTreesPicturesFillTheirCellsAndDiffer) {
  CXmlListMgr skin;
  skin.Load(kFolderTreeList);
  const CString folder = skin.GetBgImgPath(-1);
  std::set<std::vector<std::uint32_t>> seen;
  for (const int id : {1, 2}) {
    const _MYCONTROL* const control = skin.GetCtrl(id);
    ASSERT_TRUE(control) << id;
    for (const auto* const name : {&control->image, &control->selected_image}) {
      CGdiImage image;
      ASSERT_TRUE(image.Load(folder + *name)) << id;
      EXPECT_EQ(image.GetWidth(), 30) << id;
      EXPECT_EQ(image.GetHeight(), 30) << id;
      std::vector<std::uint32_t> pixels;
      for (int at = 0; at < 900; ++at) {
        pixels.push_back(image.GetImage()->pixels()->at(at % 30, at / 30));
      }
      EXPECT_EQ(pixels.front(), 0u) << "a transparent corner of control " << id;
      EXPECT_TRUE(seen.insert(pixels).second) << "a picture of control " << id << " comes twice";
    }
  }
}

}  // namespace
}  // namespace corvane
