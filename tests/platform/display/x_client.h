#pragma once
// Another client of the X server: what it sees of the windows, and what it can do to them.
#include <cstdint>
#include <string>
#include <vector>

struct _XDisplay;  // what the X library calls Display

namespace corvane::system {

class XClient {
 public:
  XClient();
  ~XClient();
  XClient(const XClient&) = delete;
  XClient& operator=(const XClient&) = delete;

  bool connected() const { return display_ != nullptr; }

  // A top-level window by its UTF-8 title, 0 when there is none.
  unsigned long window_named(const std::string& title) const;
  struct Place {
    int x, y, width, height;
    bool shown;
  };
  Place place(unsigned long window) const;
  // 0x00RRGGBB of a pixel in a shown window.
  std::uint32_t pixel(unsigned long window, int x, int y) const;

  // Width, height and pixels (0xAARRGGBB) of the window's icon; nothing when it has none.
  std::vector<unsigned long> icon(unsigned long window) const;
  // The pixels of the cursor that is on the screen now.
  std::vector<unsigned long> cursor() const;

  // Wipes the middle of a window and tells it to paint there.
  void damage(unsigned long window, std::uint32_t color) const;
  void ask_to_close(unsigned long window) const;
  void take_focus_away() const;
  // Drops such a list of files where the pointer is. The window's program has to run meanwhile;
  // false when it does not take the drop to its end in five seconds.
  bool drop_files(unsigned long window, const std::string& uri_list) const;
  // Makes a key of the keyboard write another symbol.
  void map_key(int key, unsigned long symbol) const;

 private:
  std::string title_of(unsigned long window) const;
  unsigned long atom(const char* name) const;
  bool drop_answered(unsigned long answer, const std::string& uri_list) const;
  _XDisplay* display_;
};

}  // namespace corvane::system
