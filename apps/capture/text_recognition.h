#pragma once
// Reads the text in a picture with the program tesseract, in a process of its own.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace capture {

class CTextRecognition {
 public:
  CTextRecognition() = default;
  ~CTextRecognition();  // ends a running recognition
  CTextRecognition(const CTextRecognition&) = delete;
  CTextRecognition& operator=(const CTextRecognition&) = delete;

  static bool Installed();
  // Starts reading a PNG picture; an earlier run is given up. False when it cannot be started.
  bool Start(const std::vector<std::uint8_t>& png);
  bool Running() const { return process_ > 0; }
  // The text (UTF-8), once the program has ended; empty until then. A failed run gives no text.
  std::optional<std::string> TakeResult();
  void Cancel();

 private:
  bool launch(const char* languages);
  std::string read_output() const;
  void remove_files();

  int process_ = 0;
  bool tried_chinese_ = false;
  std::string folder_;  // temporary, ours
};

}  // namespace capture
