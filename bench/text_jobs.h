#pragma once

#include <map>
#include <string>

#include "bench/stopwatch.h"

// The jobs on texts that the project's string and the standard one do alike.

// A path put together from its parts.
template <class String>
void bench_path() {
  const String home = "/home/somebody";
  const String name = "cloud-ui";
  print_median(
      20000, [] {},
      [&](int count) {
        for (int i = 0; i < count; ++i) {
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
      [&](int count) {
        for (int i = 0; i < count; ++i) keep(map.find(key)->second);
      });
}

// 1 MB of text, one letter in eight outside ASCII and half of these not composed.
inline std::string megabyte() {
  const std::string unit = "composed: \xc3\xa9, decomposed: e\xcc\x81; ";
  std::string text;
  while (text.size() < 1000000) text += unit;
  return text;
}
