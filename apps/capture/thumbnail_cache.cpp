#include "apps/capture/thumbnail_cache.h"

#include <algorithm>

#include "apps/capture/sorted_listing.h"

namespace capture {

void CThumbnailCache::Put(const std::wstring& name, Thumbnail thumbnail) {
  thumbnails_[name] = std::move(thumbnail);
}

const Thumbnail* CThumbnailCache::Find(const std::wstring& name) const {
  auto found = thumbnails_.find(name);
  return found == thumbnails_.end() ? nullptr : &found->second;
}

void CThumbnailCache::Keep(std::span<const std::wstring> names) {
  std::erase_if(thumbnails_, [names](const auto& entry) {
    return !std::binary_search(names.begin(), names.end(), entry.first, stands_before);
  });
}

}  // namespace capture
