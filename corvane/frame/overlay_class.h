#pragma once

namespace corvane {

// The name of the window class of the library's overlays: double clicks, redrawn on every change of
// size, the arrow cursor, a nearly white background (white itself is the colour key).
// Registered once however many overlays come and go; null when it cannot be registered.
const wchar_t* overlay_class();

}  // namespace corvane
