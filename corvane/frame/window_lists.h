#pragma once
// Which list of the skin each of the library's windows reads.
#include "corvane/skin/skin_list.h"

namespace corvane {

// CWindowLayer reads none: its host lends it one.
inline constexpr SkinList kFolderTreeList{1, SkinReads::controls};
inline constexpr SkinList kSplitScreenList{3};
inline constexpr SkinList kCropBarList{4};
inline constexpr SkinList kDataPathList{5};
inline constexpr SkinList kMessageBoxList{7};
inline constexpr SkinList kRotateKnobList{9};
inline constexpr SkinList kGestureList{10};
inline constexpr SkinList kAutoPhotographList{11};
inline constexpr SkinList kPaintList{12, SkinReads::controls};

}  // namespace corvane
