#pragma once
// Which numbered list of the skin a window reads. A host's own windows take numbers from 100 on.

namespace corvane {

enum class SkinReads { controls, controls_captions_and_fonts };

struct SkinList {
  int id = 0;
  SkinReads reads = SkinReads::controls_captions_and_fonts;
};

// The lists of the library's windows. CWindowLayer reads none: its host lends it one.
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
