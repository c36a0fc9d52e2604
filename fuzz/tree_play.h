#pragma once
// What a host and strangers can do to a folder tree.
#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"
#include "fuzz/byte_stream.h"

class TreePlay {
 public:
  explicit TreePlay(corvane::CTreeCtrlEx2& tree) : tree_(tree) {}
  void play_one(ByteStream& stream);

 private:
  using Operation = void (TreePlay::*)(ByteStream&);
  static const Operation kOperations[];

  void add_node(ByteStream& stream);
  void remove_node(ByteStream& stream);
  void load(ByteStream& stream);
  void choose(ByteStream& stream);
  void expand(ByteStream& stream);
  void click_node(ByteStream& stream);
  void find(ByteStream& stream);
  void lay_out(ByteStream& stream);
  void draw(ByteStream& stream);
  void scroll(ByteStream& stream);
  void set_scroll(ByteStream& stream);
  void press_bar(ByteStream& stream);

  corvane::_NODE* node(ByteStream& stream);  // also null
  corvane::CString path(ByteStream& stream);

  corvane::CTreeCtrlEx2& tree_;
};
