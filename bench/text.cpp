// The project's string.
//
//   bench_text path|map|nfc|utf16

#include <cstring>

#include "bench/stopwatch.h"
#include "bench/text_jobs.h"
#include "ustring/ustring.h"

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const std::string job = argv[1];
  const ustring text = megabyte();
  ustring fresh;
  // A copy has no view yet; so each round starts from one.
  const auto prepare = [&] { fresh = ustring(text); };
  if (job == "path") {
    bench_path<ustring>();
  } else if (job == "map") {
    bench_map<ustring>();
  } else if (job == "nfc") {
    print_median(1, prepare, [&](int) { keep(fresh.normalize(ustring::NFC)); });
  } else if (job == "utf16") {
    print_median(1, prepare, [&](int) { keep(fresh.c_str_utf16()); });
  } else {
    return 2;
  }
  return 0;
}
