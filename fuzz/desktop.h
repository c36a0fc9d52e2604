#pragma once
// A host with every layer, and the things that a user, the host and strangers can do to it.
#include <memory>
#include <vector>

#include "corvane/layers/buttons/window_layer.h"
#include "corvane/layers/crop/cut_bg_layer.h"
#include "corvane/platform/framework/framework.h"
#include "corvane/skin/xml_list_mgr.h"
#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"
#include "fuzz/byte_stream.h"
#include "tests/support/desktop.h"

// Its window and layers may be destroyed by any operation; open() brings back what is missing.
class FuzzHost : public corvane::CWnd {
 public:
  FuzzHost();
  ~FuzzHost() override { DestroyWindow(); }
  void open();

  corvane::CWindowLayer& buttons() { return buttons_; }
  corvane::CCutBgLayer& crop() { return crop_; }
  corvane::CTreeCtrlEx2& tree() { return tree_; }

 private:
  const wchar_t* class_name_;
  corvane::CXmlListMgr skin_;
  corvane::CWindowLayer buttons_;
  corvane::CCutBgLayer crop_;
  corvane::CTreeCtrlEx2 tree_;
};

class Desktop {
 public:
  explicit Desktop(corvane::test::Desktop& desktop);
  void play(ByteStream& stream);
  void close();  // destroys all windows

 private:
  using Operation = void (Desktop::*)(ByteStream&);
  static const Operation kOperations[];

  void move_pointer(ByteStream& stream);
  void press_or_release_button(ByteStream& stream);
  void click(ByteStream& stream);
  void drag(ByteStream& stream);
  void turn_wheel(ByteStream& stream);
  void press_key(ByteStream& stream);
  void post_message(ByteStream& stream);
  void send_message(ByteStream& stream);
  void show_window(ByteStream& stream);
  void place_window(ByteStream& stream);
  void order_window(ByteStream& stream);
  void change_style(ByteStream& stream);
  void destroy_window(ByteStream& stream);
  void create_window(ByteStream& stream);
  void adopt_window(ByteStream& stream);
  void redraw_window(ByteStream& stream);
  void make_layered(ByteStream& stream);
  void take_input(ByteStream& stream);
  void run_timer(ByteStream& stream);
  void show_crop(ByteStream& stream);
  void change_buttons(ByteStream& stream);
  void play_tree(ByteStream& stream);
  void create_control(ByteStream& stream);
  void press_dialog_key(ByteStream& stream);
  void change_scroll_bar(ByteStream& stream);
  void use_clipboard(ByteStream& stream);
  void copy_on_desktop(ByteStream& stream);
  void drop_files(ByteStream& stream);
  void change_desktop_focus(ByteStream& stream);
  void reopen(ByteStream& stream);
  void advance_clock(ByteStream& stream);
  void resize_screen(ByteStream& stream);
  void turn_loop(ByteStream& stream);
  void take_frame(ByteStream& stream);

  // A live window, the null handle, or (seldom) a handle that was never given out.
  HWND window(ByteStream& stream) const;

  corvane::test::Desktop& desktop_;
  corvane::CWinApp app_;
  FuzzHost host_;
};
