#pragma once
// Picture files as the decoding library's pictures.
#include <gdk-pixbuf/gdk-pixbuf.h>

#include <functional>
#include <memory>
#include <stop_token>
#include <string>

#include "corvane/platform/system/types.h"

namespace corvane::system {

struct UnreferencePixbuf {
  void operator()(GdkPixbuf* pixbuf) const { g_object_unref(pixbuf); }
};
using Pixbuf = std::unique_ptr<GdkPixbuf, UnreferencePixbuf>;

// The size at which a file of that size (not yet turned upright) is to be decoded; an empty one is
// the file's own.
using ChooseSize = std::function<SIZE(int width, int height)>;

// Loads a file by its byte path and turns it upright by the orientation it carries. Null for what
// decode_image_file refuses, and when a stop was requested meanwhile. May be called from any
// thread.
Pixbuf load_pixbuf(const std::string& path, const ChooseSize& choose_size,
                   const std::stop_token& stop);

}  // namespace corvane::system
