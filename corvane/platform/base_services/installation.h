#pragma once
// Where the skin of the running program lies.
#include "corvane/platform/framework/c_string.h"

namespace corvane {

struct Installation {
  CString skin_folder;  // wide path without a trailing separator; empty when none was found

  CString config_folder() const { return skin_folder; }
  CString image_folder() const { return skin_folder + L"\\image"; }

  // The skin folder that SetSkinFolder named; else that of the environment variable CORVANE_SKIN;
  // else the default skin near the library or the program (see default_skin.h); else, in builds
  // for debugging, that of the source tree.
  static Installation find();
};

// Names the skin folder of this process; an empty text undoes it. Windows that exist keep their
// look; any thread may call it.
void SetSkinFolder(const CString& folder);

// Names the language of this process's captions, as "en"; an empty text undoes it. Windows that
// exist keep their captions; any thread may call it.
void SetSkinLanguage(const CString& language);

// The name of the skin's file with the captions: "ui_language.en.xml" for the language "en" where
// the skin has such a file, else "ui_language.xml".
CString CaptionFile();

}  // namespace corvane
