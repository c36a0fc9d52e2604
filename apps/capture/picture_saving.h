#pragma once
// Saves a part of a picture as a new file.
#include <cstdint>
#include <string>
#include <vector>

#include "apps/capture/look.h"
#include "corvane/platform/framework/c_string.h"

namespace capture {

struct SavedPart {
  std::wstring name;  // of the file in its folder; empty when it could not be saved
  int error = 0;      // then why, as errno tells it
};
// Saves the bytes in the folder (wide path) as STEM_1.png, STEM_2.png ..., whole or not at all and
// never over an existing file. The stem is `picture_name` without its ending, shortened where the
// file system wants a shorter name. Any thread.
SavedPart save_numbered(const std::wstring& folder, const std::wstring& picture_name,
                        const std::vector<std::uint8_t>& png);

// Why it could not be saved: the usual reasons in the user's language, others in the system's.
corvane::CString save_error_text(int error, const CLook& look);

}  // namespace capture
