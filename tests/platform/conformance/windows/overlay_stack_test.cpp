// A stack of owned overlays: a background, a keyed layer owned by it, a bar owned by the layer.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr COLORREF key_color = RGB(255, 255, 255);

class OverlayStackTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    host_ = settled_popup("host", 0, 0, 600, 500);
    recorder().after_default("background", WM_CREATE, [this] { create_layer(); });
    recorder().after_default("layer", WM_CREATE, [this] {
      create("bar", {.parent = window("layer"), .place = {.width = 0, .height = 0}});
    });
    recorder().on("background", WM_SIZE, [this](const Message&) -> std::optional<LRESULT> {
      follow();
      return std::nullopt;
    });
    recorder().on("background", WM_MOVE, [this](const Message&) -> std::optional<LRESULT> {
      follow();
      return std::nullopt;
    });
    background_ = create("background", {.parent = host_, .place = {100, 100, 200, 150}});
    creation_ = recorder().log();
    layer_ = window("layer");
    bar_ = window("bar");
  }

  void create_layer() {
    create("layer", {.parent = window("background"),
                     .place = {.width = 0, .height = 0},
                     .ex_style = WS_EX_LAYERED});
    SetLayeredWindowAttributes(window("layer"), key_color, 0, LWA_COLORKEY);
    paint_patches("layer", {{{20, 20, 60, 60}, RGB(40, 40, 40)}});
  }

  void follow() {
    RECT rect{};
    GetWindowRect(window("background"), &rect);
    MoveWindow(window("layer"), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
               TRUE);
  }

  void show_all() {
    EXPECT_EQ(ShowWindow(layer_, SW_SHOW), 0);
    EXPECT_EQ(ShowWindow(background_, SW_SHOW), 0);
    settle();
  }

  HWND host_ = nullptr;
  HWND background_ = nullptr;
  HWND layer_ = nullptr;
  HWND bar_ = nullptr;
  std::vector<LogLine> creation_;
};

TEST_F(OverlayStackTest, NestedCreationsCompleteInsideTheOuterOne) {
  std::vector<LogLine> kept;
  for (const LogLine& line : creation_) {
    for (const char* wanted : {"WM_NCCREATE", "WM_CREATE", " WM_SIZE", " WM_MOVE"}) {
      if (line.text.find(wanted) != std::string::npos) kept.push_back(line);
    }
  }
  ASSERT_GE(kept.size(), 10U);
  const std::vector<LogLine> expected = {{0, "background WM_NCCREATE"},
                                         {0, "background WM_CREATE"},
                                         {1, "layer WM_NCCREATE"},
                                         {1, "layer WM_CREATE"},
                                         {2, "bar WM_NCCREATE"},
                                         {2, "bar WM_CREATE"},
                                         {2, "bar WM_SIZE 0 0x0"},
                                         {2, "bar WM_MOVE 0,0"},
                                         {1, "layer WM_SIZE 0 0x0"},
                                         {1, "layer WM_MOVE 0,0"},
                                         {0, "background WM_SIZE 0 200x150"}};
  for (std::size_t index = 0; index < expected.size(); ++index) {
    EXPECT_EQ(kept[index].text, expected[index].text);
    EXPECT_EQ(kept[index].depth, expected[index].depth) << kept[index].text;
  }
}

TEST_F(OverlayStackTest, LayerIsPlacedBeforeTheBackgroundIsEverShown) {
  EXPECT_EQ(text_of(window_rect(layer_)), "100,100,300,250");
  EXPECT_EQ(IsWindowVisible(background_), 0);
}

TEST_F(OverlayStackTest, LayerStaysAboveTheBackgroundThatTakesTheActivation) {
  recorder().only({WM_ACTIVATE});
  recorder().clear();
  EXPECT_EQ(ShowWindow(layer_, SW_SHOW), 0);
  EXPECT_EQ(GetActiveWindow(), layer_);
  EXPECT_EQ(ShowWindow(background_, SW_SHOW), 0);
  EXPECT_EQ(GetActiveWindow(), background_);
  EXPECT_TRUE(
      log_is("host WM_ACTIVATE 0 layer > layer WM_ACTIVATE 1 host >"
             "layer WM_ACTIVATE 0 background > background WM_ACTIVATE 1 layer"));
  EXPECT_EQ(GetWindow(layer_, GW_HWNDNEXT), background_);
  pump();
  EXPECT_EQ(pixel(130, 130), RGB(40, 40, 40));
}

TEST_F(OverlayStackTest, PressOnTheDarkPartIsTheLayers) {
  show_all();
  move_to(130, 130);
  recorder().only({WM_MOUSEACTIVATE, WM_ACTIVATE, WM_LBUTTONDOWN});
  recorder().clear();
  press();
  EXPECT_TRUE(
      log_is("layer WM_MOUSEACTIVATE layer 1 WM_LBUTTONDOWN >"
             "background WM_ACTIVATE 0 layer > layer WM_ACTIVATE 2 background >"
             "layer (q) WM_LBUTTONDOWN 30,30"));
}

TEST_F(OverlayStackTest, PressOnTheKeyColouredPartIsTheBackgrounds) {
  show_all();
  recorder().only({WM_MOUSEMOVE, WM_MOUSEACTIVATE, WM_ACTIVATE, WM_LBUTTONDOWN, WM_LBUTTONUP});
  move_to(250, 200);
  click(250, 200);
  EXPECT_EQ(recorder().count("background", WM_LBUTTONDOWN), 1);
  EXPECT_EQ(recorder().count("background", WM_LBUTTONUP), 1);
  EXPECT_EQ(recorder().count("layer", WM_MOUSEMOVE) + recorder().count("layer", WM_LBUTTONDOWN) +
                recorder().count("layer", WM_MOUSEACTIVATE),
            0)
      << recorder().text();
}

TEST_F(OverlayStackTest, CaptureSetForTheLayerTakesMovesAndRelease) {
  show_all();
  recorder().before_default("background", WM_LBUTTONDOWN, [&] { SetCapture(layer_); });
  recorder().only({WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP});
  press_at(250, 200);
  recorder().clear();
  move_to(240, 190);
  release();
  EXPECT_TRUE(log_is("layer (q) WM_MOUSEMOVE 140,90 LBUTTON > layer (q) WM_LBUTTONUP 140,90 -"));
}

class ObservedOverlayStack : public OverlayStackTest {};

TEST_F(ObservedOverlayStack, ActivationWalksUpTheOwners) {
  show_all();
  MoveWindow(bar_, 120, 260, 50, 20, TRUE);
  ShowWindow(bar_, SW_SHOW);
  pump();
  for (const HWND next : {layer_, background_, host_}) {
    ShowWindow(GetActiveWindow(), SW_HIDE);
    EXPECT_EQ(name_of(GetActiveWindow()), name_of(next));
  }
}

TEST_F(OverlayStackTest, DestroyingTheBackgroundTakesTheStackAlong) {
  show_all();
  recorder().only({WM_NCDESTROY});
  DestroyWindow(background_);
  EXPECT_TRUE(log_is("bar WM_NCDESTROY > layer WM_NCDESTROY > background WM_NCDESTROY"));
  EXPECT_EQ(GetActiveWindow(), host_);
}

}  // namespace
}  // namespace corvane::conformance
