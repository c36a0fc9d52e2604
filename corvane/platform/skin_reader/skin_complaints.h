#pragma once
// What is wrong with the files of a skin, in words for the person who makes it.
#include <functional>
#include <string>

#include "corvane/platform/framework/c_string.h"

namespace corvane {

struct SkinComplaint {
  CString file;   // wide path; empty when no skin folder was found
  int line = 0;   // from 1; 0: the file as a whole
  CString what;   // what is wrong, without a stop at its end
  CString to_do;  // what to do about it

  std::wstring text() const;  // "file:line: what; to do"
};

// Hears of every fault once, while a window reads its skin: it may keep and show the complaint, but
// has to leave windows alone until the window that reads is there.
using SkinComplaintHandler = std::function<void(const SkinComplaint&)>;

// Who hears in this process from now on, of faults that were told before, too. Null, as at first:
// they are written to the standard error output. Any thread may call it; the handler is called on
// the thread that reads.
void set_skin_complaint_handler(SkinComplaintHandler handler);

void complain(const SkinComplaint& complaint);

}  // namespace corvane
