#include "corvane/platform/skin_reader/skin_complaints.h"

#include <cstdio>
#include <memory>
#include <mutex>
#include <set>
#include <utility>

#include "corvane/platform/base_services/system_paths.h"

namespace corvane {
namespace {

constexpr std::size_t kMaxRemembered = 10000;

struct Listener {
  std::mutex mutex;
  std::shared_ptr<const SkinComplaintHandler> handler;
  std::set<std::wstring> told;
};

Listener& listener() {
  static Listener only;
  return only;
}

void print(const SkinComplaint& complaint) {
  std::string bytes;
  try {
    bytes = narrow_path(complaint.text());
  } catch (const PathConversionError&) {
    bytes = "a file of the skin has a fault that cannot be written in this console's characters";
  }
  std::fprintf(stderr, "%s\n", bytes.c_str());
}

}  // namespace

std::wstring SkinComplaint::text() const {
  std::wstring text = file.IsEmpty() ? L"skin" : file.AsStdString();
  if (line > 0) text += L":" + std::to_wstring(line);
  return text + L": " + what.AsStdString() + L"; " + to_do.AsStdString();
}

void set_skin_complaint_handler(SkinComplaintHandler handler) {
  Listener& only = listener();
  const std::lock_guard lock(only.mutex);
  only.handler =
      handler ? std::make_shared<const SkinComplaintHandler>(std::move(handler)) : nullptr;
  only.told.clear();
}

void complain(const SkinComplaint& complaint) {
  std::shared_ptr<const SkinComplaintHandler> handler;
  {
    Listener& only = listener();
    const std::lock_guard lock(only.mutex);
    if (only.told.size() >= kMaxRemembered) only.told.clear();
    if (!only.told.insert(complaint.text()).second) return;
    handler = only.handler;
  }
  handler ? (*handler)(complaint) : print(complaint);
}

}  // namespace corvane
