#include "corvane/platform/system/display/sdl/sdl_keys.h"

#include <iterator>

namespace corvane::system {

namespace {

struct Key {
  SDL_Keycode code;
  int virtual_key;
};

constexpr Key kEys[] = {
    {SDLK_BACKSPACE, 0x08},    {SDLK_TAB, 0x09},          {SDLK_RETURN, 0x0D},
    {SDLK_PAUSE, 0x13},        {SDLK_CAPSLOCK, 0x14},     {SDLK_ESCAPE, 0x1B},
    {SDLK_SPACE, 0x20},        {SDLK_PAGEUP, 0x21},       {SDLK_PAGEDOWN, 0x22},
    {SDLK_END, 0x23},          {SDLK_HOME, 0x24},         {SDLK_LEFT, 0x25},
    {SDLK_UP, 0x26},           {SDLK_RIGHT, 0x27},        {SDLK_DOWN, 0x28},
    {SDLK_PRINTSCREEN, 0x2C},  {SDLK_INSERT, 0x2D},       {SDLK_DELETE, 0x2E},
    {SDLK_LGUI, 0x5B},         {SDLK_RGUI, 0x5C},         {SDLK_APPLICATION, 0x5D},
    {SDLK_LSHIFT, 0x10},       {SDLK_RSHIFT, 0x10},       {SDLK_LCTRL, 0x11},
    {SDLK_RCTRL, 0x11},        {SDLK_LALT, 0x12},         {SDLK_RALT, 0x12},
    {SDLK_NUMLOCKCLEAR, 0x90}, {SDLK_SCROLLLOCK, 0x91},   {SDLK_KP_MULTIPLY, 0x6A},
    {SDLK_KP_PLUS, 0x6B},      {SDLK_KP_MINUS, 0x6D},     {SDLK_KP_DIVIDE, 0x6F},
    {SDLK_KP_ENTER, 0x0D},     {SDLK_SEMICOLON, 0xBA},    {SDLK_EQUALS, 0xBB},
    {SDLK_COMMA, 0xBC},        {SDLK_MINUS, 0xBD},        {SDLK_PERIOD, 0xBE},
    {SDLK_SLASH, 0xBF},        {SDLK_BACKQUOTE, 0xC0},    {SDLK_LEFTBRACKET, 0xDB},
    {SDLK_BACKSLASH, 0xDC},    {SDLK_RIGHTBRACKET, 0xDD}, {SDLK_QUOTE, 0xDE},
};

// Keys of the number pad: a digit or a way to move, as the number lock has it.
struct PadKey {
  SDL_Keycode code;
  int locked;
  int unlocked;
};

constexpr PadKey kPadKeys[] = {
    {SDLK_KP_0, 0x60, 0x2D}, {SDLK_KP_1, 0x61, 0x23},      {SDLK_KP_2, 0x62, 0x28},
    {SDLK_KP_3, 0x63, 0x22}, {SDLK_KP_4, 0x64, 0x25},      {SDLK_KP_5, 0x65, 0x0C},
    {SDLK_KP_6, 0x66, 0x27}, {SDLK_KP_7, 0x67, 0x24},      {SDLK_KP_8, 0x68, 0x26},
    {SDLK_KP_9, 0x69, 0x21}, {SDLK_KP_PERIOD, 0x6E, 0x2E},
};

const PadKey* pad_key_of(SDL_Keycode code) {
  for (const PadKey& key : kPadKeys) {
    if (key.code == code) return &key;
  }
  return nullptr;
}

// Keys that follow one another in SDL's numbering and in the platform's.
struct KeyRow {
  int first;
  int last;
  int virtual_key;
};

int in_rows(int code, const KeyRow* begin, const KeyRow* end) {
  for (const KeyRow* row = begin; row != end; ++row) {
    if (code >= row->first && code <= row->last) return row->virtual_key + (code - row->first);
  }
  return 0;
}

constexpr KeyRow kCodeRows[] = {{SDLK_a, SDLK_z, 'A'},
                                {SDLK_0, SDLK_9, '0'},
                                {SDLK_F1, SDLK_F12, 0x70},
                                {SDLK_F13, SDLK_F24, 0x7C}};

// On a layout of another script, letters and digits go by their place on the keyboard.
constexpr KeyRow kPlaceRows[] = {{SDL_SCANCODE_A, SDL_SCANCODE_Z, 'A'},
                                 {SDL_SCANCODE_1, SDL_SCANCODE_9, '1'},
                                 {SDL_SCANCODE_0, SDL_SCANCODE_0, '0'}};

}  // namespace

int virtual_key_of(const SDL_Keysym& key) {
  for (const Key& known : kEys) {
    if (known.code == key.sym) return known.virtual_key;
  }
  if (const PadKey* const pad = pad_key_of(key.sym)) {
    return key.mod & KMOD_NUM ? pad->locked : pad->unlocked;
  }
  const int by_code = in_rows(key.sym, std::begin(kCodeRows), std::end(kCodeRows));
  return by_code ? by_code : in_rows(key.scancode, std::begin(kPlaceRows), std::end(kPlaceRows));
}

bool writes_text(const SDL_Keysym& key) {
  if (commands(key.mod)) return false;
  if (pad_key_of(key.sym) != nullptr) return (key.mod & KMOD_NUM) != 0;
  if (key.sym >= SDLK_KP_DIVIDE && key.sym <= SDLK_KP_PLUS) return true;
  return key.sym >= SDLK_SPACE && key.sym != SDLK_DELETE && ((key.sym & SDLK_SCANCODE_MASK) == 0);
}

bool commands(Uint16 modifiers) {
  const bool alt_graph = (modifiers & (KMOD_RALT | KMOD_MODE)) != 0;
  return !alt_graph && (modifiers & (KMOD_CTRL | KMOD_LALT)) != 0;
}

}  // namespace corvane::system
