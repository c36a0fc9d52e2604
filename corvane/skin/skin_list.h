#pragma once
// A numbered list of the skin, and what of it a window reads. A host's own windows take numbers
// from 100 on.

namespace corvane {

enum class SkinReads { controls, controls_captions_and_fonts };

struct SkinList {
  int id = 0;
  SkinReads reads = SkinReads::controls_captions_and_fonts;
};

}  // namespace corvane
