#include "fuzz/tree_play.h"

#include <climits>

#include "fuzz/require.h"
#include "tests/support/desktop.h"

namespace {

using corvane::_NODE;
using corvane::CRect;
using corvane::CString;

constexpr const wchar_t* kNames[] = {L"a", L"b", L"图库", L"", L"a\\b", L".", L"a\nb", L"Z:"};
constexpr UINT kMessages[] = {WM_VSCROLL, WM_HSCROLL, WM_MOUSEWHEEL, WM_SYSCOMMAND,
                              WM_NCLBUTTONDOWN};

int number(ByteStream& stream) {
  constexpr int kEnds[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
  if (stream.flag()) return stream.coordinate();
  if (stream.flag()) return kEnds[stream.below(std::size(kEnds))];
  const unsigned high = stream.word();
  return static_cast<int>(high << 16 | stream.word());
}

const wchar_t* name(ByteStream& stream) { return kNames[stream.below(std::size(kNames))]; }

CRect rect(ByteStream& stream) {
  const int left = number(stream);
  const int top = number(stream);
  const int right = number(stream);
  return {left, top, right, number(stream)};
}

int rows_of(const _NODE& node) {
  int rows = 1;
  if (!node.expanded()) return rows;
  for (const _NODE& child : node.children()) rows += rows_of(child);
  return rows;
}

}  // namespace

const TreePlay::Operation TreePlay::kOperations[] = {
    &TreePlay::add_node, &TreePlay::add_node, &TreePlay::remove_node, &TreePlay::load,
    &TreePlay::choose,   &TreePlay::expand,   &TreePlay::click_node,  &TreePlay::find,
    &TreePlay::lay_out,  &TreePlay::draw,     &TreePlay::scroll,      &TreePlay::set_scroll,
    &TreePlay::press_bar};

void TreePlay::play_one(ByteStream& stream) {
  (this->*kOperations[stream.below(std::size(kOperations))])(stream);
}

_NODE* TreePlay::node(ByteStream& stream) {
  _NODE* found = tree_.FindNode(nullptr, nullptr);
  const unsigned way = stream.byte();
  if (way == 255) return nullptr;
  for (unsigned depth = way % 8; depth > 0 && !found->children().empty(); --depth) {
    auto child = found->children().begin();
    std::advance(child, stream.below(found->children().size()));
    found = const_cast<_NODE*>(&*child);
  }
  return found;
}

CString TreePlay::path(ByteStream& stream) {
  const CString path = tree_.GetNodePath(node(stream));
  return stream.flag() ? path : path + L"\\" + name(stream);
}

void TreePlay::add_node(ByteStream& stream) {
  _NODE* const parent = node(stream);
  tree_.AddChildNode(name(stream), parent);
}

void TreePlay::remove_node(ByteStream& stream) {
  if (stream.flag()) {
    tree_.DelNode(node(stream));
  } else {
    tree_.DelNode(path(stream));
  }
}

void TreePlay::load(ByteStream& stream) {
  _NODE* const parent = node(stream);
  tree_.SetPath(stream.flag() ? path(stream) : CString(L"Q:\\Lib"), parent);
}

void TreePlay::choose(ByteStream& stream) {
  if (stream.flag()) {
    tree_.SetCurPath(path(stream));
  } else if (stream.flag()) {
    tree_.SetCurPath(nullptr);
  } else {
    tree_.ClearCurPath();
  }
}

void TreePlay::expand(ByteStream& stream) { tree_.Expand(path(stream)); }

void TreePlay::click_node(ByteStream& stream) {
  const int x = number(stream);
  const int y = number(stream);
  tree_.ClickNode({x, y}, stream.below(4));
}

void TreePlay::find(ByteStream& stream) {
  const CString of = path(stream);
  tree_.FindNode(of, node(stream));
  const int x = number(stream);
  tree_.HitTest(node(stream), {x, number(stream)});
}

void TreePlay::lay_out(ByteStream& stream) {
  if (stream.flag()) {
    _NODE* const below = node(stream);
    const int width = number(stream);
    tree_.ListSort(below, width, number(stream));
    return;
  }
  const _NODE& root = *tree_.FindNode(nullptr, nullptr);
  const int rows = root.name().IsEmpty() ? 0 : rows_of(root);
  require(tree_.ListSort() == rows * corvane::kTreeRowHeight, "every visible node has a row");
}

void TreePlay::draw(ByteStream& stream) {
  corvane::CBufferDC buffer;
  buffer.CreateBufferDC(nullptr, CRect(0, 0, 100, 100));
  if (stream.flag()) {
    tree_.DoDraw(buffer, rect(stream));
  } else {
    tree_.DrawItem(buffer, node(stream));
  }
}

void TreePlay::scroll(ByteStream& stream) {
  const UINT message = kMessages[stream.below(std::size(kMessages))];
  const auto wparam = static_cast<WPARAM>(static_cast<UINT>(number(stream)));
  const LPARAM lparam = number(stream);
  if (stream.flag()) {
    tree_.SendMessageW(message, wparam, lparam);
  } else {
    tree_.PostMessageW(message, wparam, lparam);
  }
}

void TreePlay::set_scroll(ByteStream& stream) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = stream.byte();
  info.nMin = number(stream);
  info.nMax = number(stream);
  info.nPage = static_cast<UINT>(number(stream));
  info.nPos = number(stream);
  const int bar = stream.below(3);
  switch (stream.below(4)) {
    case 0:
      tree_.ShowScrollBar(static_cast<UINT>(bar), stream.flag());
      break;
    case 1:
      tree_.OpenVscroll(stream.below(2), info.nMax, static_cast<int>(info.nPage));
      break;
    default:
      tree_.SetScrollInfo(bar, &info, stream.flag());
  }
}

// The display lets go of the bar after a while.
void TreePlay::press_bar(ByteStream& stream) {
  CRect frame;
  tree_.GetWindowRect(frame);
  constexpr int kMiddleOfBar = 8;  // pixels from its side
  ::SetCursorPos(frame.right - kMiddleOfBar, frame.top + stream.coordinate());
  corvane::test::Desktop::send_mouse(MOUSEEVENTF_LEFTDOWN);
}
