#pragma once
// The records of a skin's three files. A record owns its texts, its caption ids and its font
// description; deleting it frees them. Whoever owns the list that holds the pointer to a record
// owns the record.
#include <cstdint>
#include <memory>

#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/platform.h"

namespace corvane {

// A control of a window's list. Images are named relative to the image folder; an empty name means
// that there is none.
struct _MYCONTROL {
  std::int32_t id = 0;
  CString hover_image;
  CString image;  // the main image, also shown in every state that has no image of its own
  CString pressed_image;
  RECT rect{};  // client coordinates of the owning window, pixels
  CString disabled_image;
  CString selected_image;
  CString forward_image;   // the forward button of a list bar
  CString backward_image;  // the backward button of a list bar
  CString tool_tip;
  COLORREF text_color = 0;
  COLORREF hover_text_color = 0;
  COLORREF pressed_text_color = 0;
  COLORREF disabled_text_color = 0;
  COLORREF selected_text_color = 0;
  // The caption's distance from the control's edges, pixels.
  std::int32_t padding_left = 0;
  std::int32_t padding_top = 0;
  std::int32_t padding_right = 0;
  std::int32_t padding_bottom = 0;
  std::unique_ptr<std::int32_t[]> caption_ids;  // the first one counts; may be null
};

// A caption: a text and the font in which it is drawn.
struct _MYLANGUAGE {
  std::int32_t id = 0;
  CString text;
  std::int32_t font_id = 0;
};

struct _MYFONT {
  std::int32_t id = 0;
  std::unique_ptr<LOGFONTW> description;  // may be null
};

// The records that make up one skinned control, borrowed; each may be null.
struct SkinnedControl {
  const _MYCONTROL* control = nullptr;
  const _MYLANGUAGE* caption = nullptr;
  const _MYFONT* font = nullptr;
};

}  // namespace corvane
