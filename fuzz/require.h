#pragma once
// Ends the run with the broken promise's text; libFuzzer keeps the input.
#include <cstdio>
#include <cstdlib>

inline void require(bool kept, const char* promise) {
  if (kept) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}
