// corvane-check-skin [--without-capture] FOLDER
// Prints what is wrong with a skin. Ends with 0 when nothing is, else with 1.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/framework/platform_session.h"
#include "corvane/platform/skin_reader/skin_complaints.h"
#include "tools/check_skin/skin_check.h"

int main(int count, char** values) {
  constexpr int kUsageError = 2;
  const bool without_capture = count == 3 && std::string_view(values[1]) == "--without-capture";
  std::error_code error;
  if (count != (without_capture ? 3 : 2) ||
      !std::filesystem::is_directory(values[count - 1], error)) {
    std::fprintf(stderr, "usage: corvane-check-skin [--without-capture] FOLDER\n");
    return kUsageError;
  }
  setenv("CORVANE_DISPLAY", "headless", 1);  // text is measured, nothing is shown
  const corvane::PlatformSession session;
  const corvane::CString folder(
      corvane::CString(corvane::wide_path_of(std::filesystem::absolute(values[count - 1], error)))
          .TrimRight(L"\\"));
  int faults = 0;
  corvane::set_skin_complaint_handler([&faults](const corvane::SkinComplaint& complaint) {
    ++faults;
    std::printf("%s\n", corvane::narrow_path(complaint.text()).c_str());
  });
  check_skin::SkinCheck(folder).run(!without_capture);
  if (faults == 0) {
    std::printf("No faults were found.\n");
  } else {
    std::printf("%d %s found.\n", faults, faults == 1 ? "fault was" : "faults were");
  }
  return faults == 0 ? 0 : 1;
}
