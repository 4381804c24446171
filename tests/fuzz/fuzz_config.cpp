// Config: what parse() makes of the input is what the grammar allows, and what can be read and
// written is read back as it was.

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lib/config.h"
#include "tests/fuzz/expect.h"

namespace {

bool all(const ustring& text, bool (*test)(unsigned char)) {
  return std::all_of(text.c_str(), text.c_str() + text.length(), test);
}

// parse() on a buffer of just the size it needs, so that a byte too far is seen.
void parse(const std::string& line) {
  const std::vector<char> original(line.c_str(), line.c_str() + line.size() + 1);
  std::vector<char> buffer = original;
  ustring key("old"), value("old");
  const int result = Config().parse(buffer.data(), static_cast<int>(line.size()), key, value);
  const size_t equals = line.find('=');
  if (result == Config::OK) {
    EXPECT(all(key, Config::is_key_char) && all(value, Config::is_value_char));
    EXPECT(line.find(key.c_str()) <= equals && line.find(value.c_str(), equals) != line.npos);
  } else {
    EXPECT(key == "old" && value == "old" && buffer == original);
    EXPECT(result == Config::INVALID || equals == line.npos || line.find('#') < equals);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const int file = memfd_create("config", MFD_CLOEXEC);
  static const ustring path = ustring("/proc/self/fd/") + std::to_string(file).c_str();
  EXPECT(ftruncate(file, 0) == 0 && pwrite(file, data, size, 0) == static_cast<ssize_t>(size));
  parse(std::string(reinterpret_cast<const char*>(data), size).c_str());  // up to a zero byte

  Config config, again;
  if (config.read(path) != 0) EXPECT(config.begin() == config.end());
  for (const auto& [key, value] : config) {
    (void)config.get_int(key);  // any text will do
    EXPECT(config.get_bool(key) == (value == "1" || value == "yes" || value == "true"));
  }
  if (config.write(path) != 0) return 0;
  EXPECT(again.read(path) == 0);
  EXPECT(std::equal(config.begin(), config.end(), again.begin(), again.end()));
  return 0;
}
