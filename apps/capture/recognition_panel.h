#pragma once
// Reads the text in a picture with the recognition program and shows it, or why it cannot.
#include <cstdint>
#include <vector>

#include "apps/capture/text_panel.h"
#include "apps/capture/text_recognition.h"

namespace capture {

class CRecognitionPanel : public CTextPanel {
 public:
  using CTextPanel::CTextPanel;
  // Shows itself in the middle of the area (screen coordinates) and reads the PNG picture.
  void Read(const std::vector<std::uint8_t>& png, const RECT& screen_area);
  bool Running() const { return recognition_.Running(); }

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  void OnTimer(UINT_PTR id);

 private:
  void say(Text title, const corvane::CString& text);

  CTextRecognition recognition_;
};

}  // namespace capture
