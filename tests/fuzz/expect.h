#pragma once

#include <cstdio>
#include <cstdlib>

// Ends the process, for the fuzzer to keep the input, unless `condition` holds.
#define EXPECT(condition)                                                       \
  do {                                                                          \
    if (!(condition)) {                                                         \
      fprintf(stderr, "%s:%d: expected: %s\n", __FILE__, __LINE__, #condition); \
      abort();                                                                  \
    }                                                                           \
  } while (false)
