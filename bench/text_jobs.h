#pragma once

#include <map>
#include <string>

#include "bench/stopwatch.h"

// The jobs on texts that the benchmark does with the project's string and its floor with the
// standard one.

namespace bench {

// A path put together from its parts.
template <class String>
void bench_path() {
  const String home = "/home/somebody";
  const String name = "cloud-ui";
  print_median(
      20000, [] {},
      [&](int total) {
        for (int done = 0; done < total; ++done) {
          const String path = home + "/.Quillmere" + "/app" + "/bin/" + name;
          keep(path);
        }
      });
}

// A look-up among as many keys as a settings file has.
template <class String>
void bench_map() {
  std::map<String, int> map;
  for (int i = 0; i < 100; ++i) map[String("component_") + std::to_string(i).c_str()] = i;
  const String key = "component_42";
  print_median(
      100000, [] {},
      [&](int total) {
        for (int done = 0; done < total; ++done) keep(map.find(key)->second);
      });
}

// 1 MB of text, one letter in eight outside ASCII and half of these not composed.
inline std::string megabyte() {
  const std::string unit = "composed: \xc3\xa9, decomposed: e\xcc\x81; ";
  std::string text;
  while (text.size() < 1000000) text += unit;
  return text;
}

// The whole program: the job named on the command line. `compose` and `to_utf16` convert a
// megabyte that `prepare`, which is not timed, has made fresh.
template <class String, class Prepare, class Compose, class ToUtf16>
int run_text_job(int argc, char** argv, Prepare prepare, Compose compose, ToUtf16 to_utf16) {
  const std::string job = argc > 1 ? argv[1] : "";
  if (job == "path") {
    bench_path<String>();
  } else if (job == "map") {
    bench_map<String>();
  } else if (job == "nfc") {
    print_median(1, prepare, [&](int) { keep(compose()); });
  } else if (job == "utf16") {
    print_median(1, prepare, [&](int) { keep(to_utf16()); });
  } else {
    return 2;
  }
  return 0;
}

}  // namespace bench
