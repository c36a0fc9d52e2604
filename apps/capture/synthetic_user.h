#pragma once
// Points, clicks, turns the wheel and presses keys on this program's own headless display. All
// points are screen coordinates; every call handles the messages that follow from it.
#include "corvane/platform/framework/point.h"
#include "corvane/platform/platform.h"

namespace capture {

void HandleWaitingMessages();
void LetTimePass(unsigned milliseconds);  // of the display's clock

void MoveTo(POINT point);
void Click(POINT point);
void DoubleClick(POINT point);
void Drag(POINT from, POINT to);
void TurnWheel(POINT point, int notches);  // negative: towards the user
void PressKey(int virtual_key);

}  // namespace capture
