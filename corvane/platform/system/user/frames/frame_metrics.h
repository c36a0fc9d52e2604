#pragma once
// The sizes of windows' frames, in logical pixels; GetSystemMetrics tells them.

namespace corvane::system {

inline constexpr int kFlatBorder = 1;    // the line of WS_BORDER
inline constexpr int kSizingBorder = 1;  // what WS_THICKFRAME adds
inline constexpr int kEdge = 2;          // of WS_EX_CLIENTEDGE and WS_EX_WINDOWEDGE
inline constexpr int kStaticEdge = 1;
inline constexpr int kFixedFrame = kEdge + kFlatBorder;  // around a caption without a sizing border
inline constexpr int kSizeFrame = kFixedFrame + kSizingBorder;

inline constexpr int kCaptionHeight = 19;
inline constexpr int kSmallCaptionHeight = 16;  // of WS_EX_TOOLWINDOW
inline constexpr int kBoxWidth = 26;            // of the boxes in a caption
inline constexpr int kSmallBoxWidth = 19;

// The smallest captioned window that the user can make: the boxes and a little of the text.
inline constexpr int kMinTrackWidth = 112;
inline constexpr int kMinTrackHeight = kCaptionHeight + 2 * kSizeFrame;
// A minimized window: its caption.
inline constexpr int kMinimizedWidth = 160;
inline constexpr int kMinimizedHeight = kCaptionHeight + 2 * kFixedFrame;

}  // namespace corvane::system
