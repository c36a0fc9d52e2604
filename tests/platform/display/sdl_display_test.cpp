// SdlDisplay on a real X server and, SdlDisplayTest, on a Wayland desktop in a window of one
// (scripts/with-weston): input comes from xdotool, pixels and windows are looked at through a
// connection of the test's own.
#include "corvane/platform/system/display/sdl/sdl_display.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <set>
#include <thread>
#include <tuple>

#include "tests/platform/display/x_client.h"

namespace corvane::system {
namespace {

constexpr const wchar_t* title = L"Corvane 显示 test";
constexpr const char* title_utf8 = "Corvane 显示 test";

// The X server's window in which the display's window is seen.
std::string seen_title() {
  const char* const desktop = std::getenv("CORVANE_DESKTOP_WINDOW");
  return desktop != nullptr ? desktop : title_utf8;
}

using Events = std::vector<InputEvent>;
using Condition = std::function<bool(const InputEvent&)>;

Condition is(InputKind kind, const Condition& also = {}) {
  return [=](const InputEvent& event) { return event.kind == kind && (!also || also(event)); };
}
Condition is_text(const std::wstring& text) {
  return is(InputKind::text, [text](const auto& event) { return event.text == text; });
}
Condition is_focus(bool down) {
  return is(InputKind::focus, [down](const auto& event) { return event.down == down; });
}
Condition is_key(int virtual_key, bool down) {
  return is(InputKind::key, [=](const auto& event) {
    return event.virtual_key == virtual_key && event.down == down;
  });
}
Condition is_button(int button, bool down) {
  return is(InputKind::mouse_button,
            [=](const auto& event) { return event.button == button && event.down == down; });
}
Condition is_at(InputKind kind, int x, int y) {
  return is(kind,
            [=](const auto& event) { return event.position.x == x && event.position.y == y; });
}

const InputEvent* find(const Events& events, const Condition& condition) {
  for (const InputEvent& event : events)
    if (condition(event)) return &event;
  return nullptr;
}

class SdlDisplayOpenTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(server_.connected()) << "There is no X server; run this test by scripts/with-xvfb.";
    ASSERT_EQ(std::system("command -v xdotool >/dev/null"), 0)
        << "xdotool is not installed (Debian package xdotool).";
    tool("mousemove 5 1100");
    display_ = SdlDisplay::open({640, 480});
    ASSERT_NE(display_, nullptr);
    display_->set_title(title);
  }

  void show() {
    present_color(0xFF203040);
    display_->show();
    ASSERT_TRUE(happens([&] {
      window_ = server_.window_named(seen_title());
      return window_ != 0 && server_.place(window_).shown;
    }));
    ASSERT_TRUE(happens([&] { return server_.pixel(window_, 639, 479) == 0x203040; }));
    tool("windowfocus " + std::to_string(window_));
    ASSERT_TRUE(arrives(is_focus(true)));
    events_.clear();
  }

  void tool(const std::string& arguments) {
    ASSERT_EQ(std::system(("xdotool " + arguments).c_str()), 0) << arguments;
  }

  // Runs the display until the condition holds, at most five seconds.
  bool happens(const std::function<bool()>& condition) {
    const std::uint64_t end = display_->now() + 5000;
    while (!condition()) {
      if (display_->now() >= end) return false;
      display_->wait(std::min(end, display_->now() + 20));
      display_->poll(events_);
    }
    return true;
  }
  bool arrives(const Condition& condition) {
    return happens([&] { return find(events_, condition) != nullptr; });
  }

  void present_color(Pixel color) {
    const SIZE size = display_->size();
    const Surface frame(size.cx, size.cy, color);
    display_->present(frame, Region(frame.rect()));
  }

  std::string at(int x, int y) {
    const XClient::Place place = server_.place(window_);
    return std::to_string(place.x + x) + " " + std::to_string(place.y + y);
  }

  XClient server_;
  std::unique_ptr<SdlDisplay> display_;
  unsigned long window_ = 0;
  Events events_;
};

TEST_F(SdlDisplayOpenTest, IsHiddenUntilShown) {
  const unsigned long hidden = server_.window_named(title_utf8);
  ASSERT_NE(hidden, 0u);
  EXPECT_FALSE(server_.place(hidden).shown);
  EXPECT_FALSE(display_->warp_pointer({10, 10}));
  show();
  EXPECT_EQ(server_.place(window_).width, 640);
  EXPECT_EQ(server_.place(window_).height, 480);
}

class SdlDisplayTest : public SdlDisplayOpenTest {
 protected:
  void SetUp() override {
    SdlDisplayOpenTest::SetUp();
    if (!HasFatalFailure()) show();
  }
};
class SdlDisplayOnXTest : public SdlDisplayTest {};

TEST_F(SdlDisplayTest, PresentsOnlyTheDamage) {
  Surface frame(640, 480, 0xFFFF0000);
  for (int x = 0; x < 640; ++x) frame.row(100)[x] = 0xFF000000 | static_cast<Pixel>(x * 100);
  Region damage({50, 90, 60, 110});
  damage.unite(RECT{630, 470, 800, 600});
  display_->present(frame, damage);
  ASSERT_TRUE(happens([&] { return server_.pixel(window_, 639, 479) == 0xFF0000; }));
  EXPECT_EQ(server_.pixel(window_, 50, 90), 0xFF0000u);
  EXPECT_EQ(server_.pixel(window_, 59, 100), 5900u);
  for (const auto& [x, y] : {std::pair(60, 100), std::pair(49, 100), std::pair(629, 470)})
    EXPECT_EQ(server_.pixel(window_, x, y), 0x203040u);
}

TEST_F(SdlDisplayTest, ShowsAllOfManyPartsThatWerePresentedAtOnce) {
  const auto left_of = [](int part) { return (part * 64 + 256) % 640; };
  for (int part = 0; part < 10; ++part) {
    const Surface frame(640, 480, 0xFF000010 + static_cast<Pixel>(part));
    display_->present(frame, Region({left_of(part), 0, left_of(part) + 64, 480}));
  }
  ASSERT_TRUE(happens([&] { return server_.pixel(window_, left_of(9), 240) == 0x19; }));
  server_.damage(window_, 0x777777);  // the desktop has to draw all of it again
  for (int part = 0; part < 10; ++part) {
    EXPECT_TRUE(happens([&] {
      return server_.pixel(window_, left_of(part) + 20, 240) == 0x10u + part;
    })) << part;
  }
}

TEST_F(SdlDisplayOnXTest, RepaintsWhatWasExposed) {
  server_.damage(window_, 0x777777);
  EXPECT_EQ(server_.pixel(window_, 320, 240), 0x777777u);
  EXPECT_TRUE(happens([&] { return server_.pixel(window_, 320, 240) == 0x203040; }));
}

TEST_F(SdlDisplayTest, BringsMouseMovesButtonsAndModifiers) {
  tool("mousemove " + at(123, 45));
  EXPECT_TRUE(arrives(is_at(InputKind::mouse_move, 123, 45)));
  const struct {
    const char *device, *name;  // for xdotool
    Condition (*is_change)(int, bool);
    int virtual_key;
  } cases[] = {{"mouse", "1", is_button, 0x01},    {"mouse", "2", is_button, 0x04},
               {"mouse", "3", is_button, 0x02},    {"key", "Shift_R", is_key, 0x10},
               {"key", "Control_L", is_key, 0x11}, {"key", "Alt_L", is_key, 0x12}};
  for (const auto& [device, name, is_change, virtual_key] : cases) {
    for (const bool down : {true, false}) {
      tool(std::string(device) + (down ? "down " : "up ") + name);
      EXPECT_TRUE(arrives(is_change(virtual_key, down))) << name << down;
    }
  }
  const InputEvent* const press = find(events_, is_button(0x01, true));
  ASSERT_NE(press, nullptr);
  EXPECT_EQ(press->position.x, 123);
  EXPECT_EQ(press->position.y, 45);
}

TEST_F(SdlDisplayTest, BringsTheWheel) {
  tool("mousemove " + at(300, 200));
  tool("click 4");
  ASSERT_TRUE(arrives(is_at(InputKind::mouse_wheel, 300, 200)));
  EXPECT_EQ(find(events_, is(InputKind::mouse_wheel))->wheel, 120);
  events_.clear();
  tool("click 5");
  ASSERT_TRUE(arrives(is(InputKind::mouse_wheel)));
  EXPECT_EQ(find(events_, is(InputKind::mouse_wheel))->wheel, -120);
}

TEST_F(SdlDisplayOnXTest, TellsOfTheLeaving) {
  tool("mousemove " + at(300, 200));
  ASSERT_TRUE(arrives(is_at(InputKind::mouse_move, 300, 200)));
  tool("mousemove " + at(-30, -30));
  EXPECT_TRUE(arrives(is(InputKind::mouse_leave)));
}

TEST_F(SdlDisplayOnXTest, KeepsTheMouseWhileCaptured) {
  tool("mousemove " + at(100, 100));
  ASSERT_TRUE(arrives(is_at(InputKind::mouse_move, 100, 100)));
  display_->set_capture(true);
  tool("mousemove " + at(-40, 700));
  EXPECT_TRUE(arrives(is_at(InputKind::mouse_move, -40, 700)));
  display_->set_capture(false);
}

TEST_F(SdlDisplayTest, BringsKeysAndText) {
  const struct {
    const char* keys;  // for xdotool
    int virtual_key;
    const wchar_t* text;  // null: the key makes a character itself, and no text may come
  } cases[] = {{"a", 'A', L"a"},          {"A", 'A', L"A"},
               {"7", '7', L"7"},          {"exclam", '1', L"!"},
               {"space", 0x20, L" "},     {"semicolon", 0xBA, L";"},
               {"KP_Add", 0x6B, L"+"},    {"Return", 0x0D, nullptr},
               {"Tab", 0x09, nullptr},    {"BackSpace", 0x08, nullptr},
               {"Escape", 0x1B, nullptr}, {"Delete", 0x2E, nullptr},
               {"Left", 0x25, nullptr},   {"Prior", 0x21, nullptr},
               {"F1", 0x70, nullptr},     {"F12", 0x7B, nullptr},
               {"ctrl+a", 'A', nullptr},  {"ctrl+1", '1', nullptr},
               {"alt+f", 'F', nullptr},   {"ctrl+shift+z", 'Z', nullptr}};
  for (const auto& [keys, virtual_key, text] : cases) {
    SCOPED_TRACE(keys);
    events_.clear();
    tool(std::string("key ") + keys);
    ASSERT_TRUE(arrives(is_key(virtual_key, false)));
    const InputEvent* const down = find(events_, is_key(virtual_key, true));
    ASSERT_NE(down, nullptr);
    EXPECT_EQ(down->makes_char, text == nullptr);
    EXPECT_FALSE(down->repeat);
    EXPECT_EQ(find(events_, is(InputKind::text)) != nullptr, text != nullptr);
    EXPECT_TRUE(text == nullptr || find(events_, is_text(text)) != nullptr);
  }
}

TEST_F(SdlDisplayOnXTest, BringsTextOfOtherScripts) {
  const std::tuple<const char*, unsigned long, const wchar_t*> letters[] = {
      {"eacute", 0x00E9, L"é"}, {"U4E2D", 0x01004E2D, L"中"}, {"U1F4F7", 0x0101F4F7, L"📷"}};
  constexpr int unused_key = 220;
  for (const auto& [key, symbol, text] : letters) {
    server_.map_key(unused_key, symbol);
    tool(std::string("key ") + key);
    EXPECT_TRUE(arrives(is_text(text))) << key;
  }
}

TEST_F(SdlDisplayOnXTest, ComposesAndTypesOnceWhileTextIsEdited) {
  constexpr unsigned long dead_acute = 0xFE51;
  server_.map_key(220, dead_acute);
  for (const bool edits : {true, false}) {
    display_->set_text_input(edits ? std::optional(RECT{10, 10, 11, 30}) : std::nullopt);
    events_.clear();
    tool("key dead_acute e x");
    ASSERT_TRUE(arrives(is_key('X', false)));
    EXPECT_EQ(find(events_, is_text(L"é")) != nullptr, edits);
    EXPECT_EQ(std::count_if(events_.begin(), events_.end(), is_text(L"x")), 1);
  }
}

TEST_F(SdlDisplayTest, TellsOfAutomaticRepeats) {
  tool("keydown x");
  EXPECT_TRUE(arrives(is(
      InputKind::key, [](const auto& event) { return event.virtual_key == 'X' && event.repeat; })));
  tool("keyup x");
  ASSERT_TRUE(arrives(is_key('X', false)));
  EXPECT_FALSE(find(events_, is_key('X', true))->repeat) << "the first press is none";
}

TEST_F(SdlDisplayTest, FollowsTheWindowsSizeButIsNeverSmallerThanTheLeastWindow) {
  const std::tuple<SIZE, SIZE, Pixel> cases[] = {{{800, 333}, {800, 333}, 0x010203},
                                                 {{200, 400}, {320, 400}, 0x0A0B0C},
                                                 {{640, 480}, {640, 480}, 0x0D0E0F}};
  for (const auto& [window, desktop, color] : cases) {
    tool("windowsize " + std::to_string(window_) + " " + std::to_string(window.cx) + " " +
         std::to_string(window.cy));
    ASSERT_TRUE(arrives(is_at(InputKind::resize, desktop.cx, desktop.cy)));
    EXPECT_EQ(display_->size().cx, desktop.cx);
    EXPECT_EQ(display_->size().cy, desktop.cy);
    present_color(0xFF000000 | color);
    EXPECT_TRUE(happens([&, edge = window, shown = color] {
      return server_.pixel(window_, edge.cx - 1, edge.cy - 1) == shown;
    }));
  }
}

TEST_F(SdlDisplayOnXTest, FillsTheMonitorAndComesBack) {
  const SIZE monitor = display_->full_size();
  EXPECT_GT(monitor.cx, 640);
  display_->set_full_screen(true);
  ASSERT_TRUE(arrives(is_at(InputKind::resize, monitor.cx, monitor.cy)));
  EXPECT_FALSE(display_->drag_native_window({5, 5})) << "there it stays";
  present_color(0xFF0B0C0D);
  EXPECT_TRUE(
      happens([&] { return server_.pixel(window_, monitor.cx - 1, monitor.cy - 1) == 0x0B0C0D; }));
  display_->set_full_screen(false);
  EXPECT_TRUE(arrives(is_at(InputKind::resize, 640, 480)));
}

TEST_F(SdlDisplayOnXTest, TellsOfClosingAndLostFocus) {
  server_.ask_to_close(window_);
  EXPECT_TRUE(arrives(is(InputKind::close)));
  server_.take_focus_away();
  EXPECT_TRUE(arrives(is_focus(false)));
}

TEST_F(SdlDisplayOnXTest, MovesWindowAndPointer) {
  const XClient::Place before = server_.place(window_);
  EXPECT_TRUE(display_->warp_pointer({77, 66}));
  EXPECT_TRUE(arrives(is_at(InputKind::mouse_move, 77, 66)));
  tool("mousedown 1");
  tool("mousemove_relative -- 30 -7");
  EXPECT_TRUE(display_->has_native_frame());
  EXPECT_TRUE(display_->drag_native_window({77, 66}));
  EXPECT_TRUE(happens([&] {
    const XClient::Place now = server_.place(window_);
    return now.x == before.x + 30 && now.y == before.y - 7;
  })) << "also while a button is held";
  tool("mouseup 1");
}

TEST_F(SdlDisplayTest, DescriptorTellsOfInputAndAnotherThread) {
  display_->poll(events_);
  std::thread other([&] { display_->wake(); });
  EXPECT_TRUE(display_->wait(std::nullopt));
  other.join();
  pollfd watched{display_->event_fd(), POLLIN, 0};
  EXPECT_EQ(poll(&watched, 1, 0), 1) << "a wake stays readable until the next poll()";
  EXPECT_TRUE(happens([&] {
    display_->poll(events_);
    return poll(&watched, 1, 0) == 0;
  }));
  tool("mousemove " + at(20, 20));
  ASSERT_EQ(poll(&watched, 1, 5000), 1);
  EXPECT_TRUE(arrives(is_at(InputKind::mouse_move, 20, 20)));
}

// On Wayland there is no cursor theme here.
TEST_F(SdlDisplayTest, TakesEveryCursor) {
  tool("mousemove " + at(200, 200));
  ASSERT_TRUE(arrives(is_at(InputKind::mouse_move, 200, 200)));
  for (int shape = 0; shape <= static_cast<int>(CursorShape::hand); ++shape)
    display_->set_cursor(static_cast<CursorShape>(shape));
  present_color(0xFF112233);
  EXPECT_TRUE(happens([&] { return server_.pixel(window_, 10, 10) == 0x112233; }));
}

TEST_F(SdlDisplayOnXTest, ShowsCursorsThatDifferAndArrowsWithTwoHeads) {
  tool("mousemove " + at(200, 200));
  ASSERT_TRUE(arrives(is_at(InputKind::mouse_move, 200, 200)));
  std::set<std::vector<unsigned long>> seen;
  for (int shape = 1; shape <= static_cast<int>(CursorShape::hand); ++shape) {
    SCOPED_TRACE(shape);
    display_->set_cursor(static_cast<CursorShape>(shape));
    std::vector<unsigned long> pixels;
    EXPECT_TRUE(happens([&] { return seen.insert(pixels = server_.cursor()).second; }))
        << "looks like one of the others";
    if (shape < static_cast<int>(CursorShape::size_nwse)) continue;
    if (shape > static_cast<int>(CursorShape::no)) continue;
    EXPECT_TRUE(std::equal(pixels.begin(), pixels.end(), pixels.rbegin()));
  }
  display_->set_cursor(CursorShape::none);
  EXPECT_TRUE(happens([&] {
    const std::vector<unsigned long> pixels = server_.cursor();
    return std::all_of(pixels.begin(), pixels.end(),
                       [](unsigned long pixel) { return pixel == 0; });
  }));
}

TEST_F(SdlDisplayOnXTest, ExchangesTextWithTheDesktopsClipboard) {
  constexpr const char* own = "裁剪\n\U0001F4F7";
  EXPECT_TRUE(display_->set_clipboard_text(own));
  std::thread reader([] {
    EXPECT_EQ(std::system("test \"$(xclip -selection clipboard -o)\" = \"$(printf '裁剪\n📷')\""),
              0);
  });
  happens([&, end = display_->now() + 500] { return display_->now() > end; });
  reader.join();
  for (const std::string other : {"first", "第二\nsecond"}) {  // the second follows no copy of ours
    events_.clear();
    ASSERT_EQ(
        std::system(
            ("printf '" + other + "' | xclip -selection clipboard -i >/dev/null 2>&1").c_str()),
        0);
    EXPECT_TRUE(arrives(is(InputKind::clipboard)));
    EXPECT_EQ(display_->clipboard_text(), other);
  }
  EXPECT_FALSE(display_->set_clipboard_text(std::string((8 << 20) + 1, 'x')));
  EXPECT_EQ(display_->clipboard_text(), "第二\nsecond");
}

TEST_F(SdlDisplayOnXTest, BringsDroppedFilesAndWhereTheyFell) {
  tool("mousemove " + at(77, 55));
  bool taken = false;
  std::thread source([&] {
    taken = XClient().drop_files(window_,
                                 "# two\r\nfile:///a%20b/%E8%A3%81.png\r\nhttp://c/d\r\n"
                                 "file:///%FF\r\n");
  });
  EXPECT_TRUE(arrives(is_at(InputKind::drop, 77, 55)));
  happens([&, end = display_->now() + 200] { return display_->now() > end; });
  source.join();
  EXPECT_TRUE(taken);
  const InputEvent* const drop = find(events_, is(InputKind::drop));
  ASSERT_NE(drop, nullptr);
  EXPECT_EQ(drop->files, (std::vector<std::string>{"/a b/裁.png", "/\xFF"}));
}

TEST_F(SdlDisplayOnXTest, ShowsCursorsInColourAndThenShapesAgain) {
  tool("mousemove " + at(200, 200));
  ASSERT_TRUE(arrives(is_at(InputKind::mouse_move, 200, 200)));
  for (const Pixel color : {0xFF123456, 0x80FF0000}) {
    display_->set_cursor_image(std::make_shared<CursorImage>(
        CursorImage{{32, 32}, {31, 0}, std::vector<Pixel>(32 * 32, color)}));
    const unsigned long shown = color >> 24 == 0xFF ? color : 0x80800000;  // premultiplied
    EXPECT_TRUE(happens([&] { return server_.cursor() == std::vector(32 * 32, shown); }));
  }
  display_->set_cursor(CursorShape::arrow);
  EXPECT_TRUE(happens([&] { return server_.cursor() != std::vector(32 * 32, 0x80800000ul); }));
}

TEST_F(SdlDisplayTest, SleepsWhileNothingHappens) {
  display_->poll(events_);
  const std::uint64_t start = display_->now();
  const std::clock_t before = std::clock();  // of the processor
  while (display_->now() < start + 3000) {
    display_->wait(start + 3000);
    display_->poll(events_);
  }
  EXPECT_LT(std::clock() - before, 3 * CLOCKS_PER_SEC / 1000);
}

}  // namespace
}  // namespace corvane::system
