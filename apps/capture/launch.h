#pragma once
// From the command line to what the program begins with.
#include <string>

#include "apps/capture/main_window.h"

namespace capture {

struct Arguments {
  std::string library;        // folder; empty: the picture's
  std::string picture;        // empty: one of the library's
  std::string language;       // "en", "zh"; empty: the environment's
  std::string script_folder;  // empty: an ordinary session
  bool valid = false;         // a library or a picture is given
};
Arguments parse_arguments(int count, char** values);

// The language that the environment asks for, as "en"; empty when it asks for none.
std::string environment_language();

struct Launch {
  Beginning beginning;
  std::string error;  // one line, when it cannot begin
};
// Looks the library up and opens the picture that was named. Byte paths.
Launch prepare_launch(const Arguments& arguments);

}  // namespace capture
