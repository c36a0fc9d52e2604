#pragma once
// What the program shows of a library when nobody has chosen a picture.
#include <memory>
#include <stop_token>
#include <string>

#include "apps/capture/picture.h"

namespace capture {

struct FirstPicture {
  std::wstring folder;  // the first one, in order, that holds a picture; empty: there is none
  std::shared_ptr<const CPicture> picture;  // null: none of its first pictures can be opened
};
// Reads folders until it finds one, or is stopped. Any thread.
FirstPicture find_first_picture(const std::wstring& library, const std::stop_token& stop);

}  // namespace capture
