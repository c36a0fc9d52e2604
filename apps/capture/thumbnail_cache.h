#pragma once
// The thumbnails of one folder that are at hand, by file name.
#include <map>
#include <span>
#include <string>

#include "apps/capture/thumbnail.h"

namespace capture {

class CThumbnailCache {
 public:
  void Put(const std::wstring& name, Thumbnail thumbnail);
  // Null: not loaded. A loaded one may itself be null (no readable picture).
  const Thumbnail* Find(const std::wstring& name) const;
  // Forgets all but those of these names, which stand in order (stands_before).
  void Keep(std::span<const std::wstring> names);
  void Forget(const std::wstring& name) { thumbnails_.erase(name); }
  void Clear() { thumbnails_.clear(); }
  std::size_t size() const { return thumbnails_.size(); }

 private:
  std::map<std::wstring, Thumbnail> thumbnails_;
};

}  // namespace capture
