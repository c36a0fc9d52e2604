#pragma once
// Texts that the program shows, in the language of the installation.
#include "corvane/platform/framework/c_string.h"

namespace corvane {

// The text that "texts.txt" in the configuration folder gives for the key, else the default text.
// The file is read anew for each call. It is UTF-8; each line is key=text, in which \n stands for
// a line break and \\ for a backslash; blanks around the key are ignored, the first line of a key
// counts. Lines without "=" say nothing.
CString GetLanguageText(const CString& key, const CString& default_text);

}  // namespace corvane
