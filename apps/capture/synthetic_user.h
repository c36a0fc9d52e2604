#pragma once
// Points, clicks, turns the wheel and presses keys on this program's own headless display. All
// points are screen coordinates; every call handles the messages that follow from it.
#include "corvane/platform/framework/point.h"
#include "corvane/platform/platform.h"

namespace capture {

void handle_waiting_messages();
void let_time_pass(unsigned milliseconds);  // of the display's clock

void move_to(POINT point);
void click(POINT point);
void double_click(POINT point);
void drag(POINT from, POINT to);
void turn_wheel(POINT point, int notches);  // negative: towards the user
void press_key(int virtual_key);

}  // namespace capture
