#pragma once

#include <pthread.h>

#include <cstddef>

#include "ustring/ustring.h"

// Short random names for temporary files and directories: 8 characters, 48 random bits
// of an RC4 key stream that is seeded from the time of day. Names are hard to meet by
// accident, not hard to guess, and nothing is checked against the disk: whoever creates
// the file handles one that exists.
//
// Any thread may ask for names.
class TmpNameGen {
 public:
  // The process-wide generator, built and seeded on the first call.
  static TmpNameGen& getInstance();

  // 8 characters out of 0-9 a-z A-Z "-" and "_"; any of them may come first.
  ustring getTmpName();

  // `prefix` unchanged, "/" and a fresh name.
  ustring getTmpPath(const ustring& prefix);

  TmpNameGen(const TmpNameGen&) = delete;
  TmpNameGen& operator=(const TmpNameGen&) = delete;

 private:
  TmpNameGen();
  ~TmpNameGen() = default;

  // Fills `key`, `n` bytes, with the seed text "<seconds>-<microseconds>".
  static void get_key(unsigned char* key, size_t n);

  // Runs the key schedule over all 256 bytes of `key`. An empty key (first byte 0) is
  // first filled with rand() bytes seeded from the clock.
  static void rc4_init(unsigned char* s_box, unsigned char* key);

  // Writes `length` bytes of key stream to `out` and moves the state on.
  static void rc4_randomize(unsigned char* s_box, unsigned char* out, size_t length);

  static pthread_mutex_t m_lock;    // guards m_s_box and m_buffer
  unsigned char m_s_box[256] = {};  // the permutation; lives as long as the process
  unsigned char m_key[256] = {};    // the seed text and the zero bytes behind it
  unsigned char m_buffer[6] = {};   // the random bytes of the latest name
};
