// Config: what parse() makes of each line of the input is what the grammar allows, what
// read() makes of the whole is the sum of it, and what can be written is read back as it was.

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
int parse(const std::string& line, ustring& key, ustring& value) {
  const std::vector<char> original(line.c_str(), line.c_str() + line.size() + 1);
  std::vector<char> buffer = original;
  key = "old key";
  value = "old value";
  const int result = Config().parse(buffer.data(), static_cast<int>(line.size()), key, value);
  if (result == Config::OK) {
    EXPECT(all(key, Config::is_key_char) && all(value, Config::is_value_char));
    EXPECT(line.find(key.c_str()) <= line.find('=') && line.find('=') != line.npos);
    EXPECT(line.find(value.c_str(), line.find('=')) != line.npos);
  } else {
    EXPECT(key == "old key" && value == "old value" && buffer == original);
    EXPECT(result == Config::INVALID || line.find('=') == line.npos ||
           line.find('#') < line.find('='));
  }
  return result;
}

void expect_equal(const Config& a, const Config& b) {
  EXPECT(std::equal(a.begin(), a.end(), b.begin(), b.end()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const int file = memfd_create("config", MFD_CLOEXEC);
  static const ustring path = ustring("/proc/self/fd/") + std::to_string(file).c_str();
  EXPECT(ftruncate(file, 0) == 0 && pwrite(file, data, size, 0) == static_cast<ssize_t>(size));

  Config sum;
  int result = Config::OK;
  std::string text(reinterpret_cast<const char*>(data), size);
  while (!text.empty() && result != Config::INVALID) {
    const size_t length = std::min<size_t>(std::min(text.find('\n'), text.size() - 1) + 1, 8191);
    ustring key, value;
    result = parse(text.substr(0, length).c_str(), key, value);  // up to a zero byte
    if (result == Config::OK) sum[key] = value;
    text.erase(0, length);
  }
  if (result == Config::INVALID) sum = Config();

  Config config;
  EXPECT(config.read(path) == (result == Config::INVALID ? -1 : 0));
  expect_equal(config, sum);
  for (const auto& [key, value] : config) {
    (void)config.get_int(key);  // any text will do
    EXPECT(config.get_bool(key) == (value == "1" || value == "yes" || value == "true"));
  }
  Config again;
  if (config.write(path) == 0) {
    EXPECT(again.read(path) == 0);
    expect_equal(again, config);
  }
  return 0;
}
