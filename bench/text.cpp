// Benchmark of texts: the project's string.
//
//   bench_text path|map|nfc|utf16

#include "bench/text_jobs.h"
#include "ustring/ustring.h"

int main(int argc, char** argv) {
  const ustring text = bench::megabyte();
  ustring fresh;
  return bench::run_text_job<ustring>(
      argc, argv, [&] { fresh = ustring(text); },  // a copy has no view of the other encoding yet
      [&] { return fresh.normalize(ustring::NFC); }, [&] { return fresh.c_str_utf16(); });
}
