// Config: each line of the input through parse() and the whole through read(), compared
// with a model; what can be written must be read back as it was.

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "lib/config.h"
#include "tests/fuzz/expect.h"

namespace {

using Model = std::map<std::string, std::string>;

constexpr const char* kSpaces = " \t\n\v\f\r";
constexpr const char* kKeyChars =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_.";

void drop_spaces(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(kSpaces), rest.size()));
}

// The grammar once more, by searches instead of byte by byte.
int parse_model(std::string_view rest, std::string& key, std::string& value) {
  drop_spaces(rest);
  const std::string_view name = rest.substr(0, rest.find_first_not_of(kKeyChars));
  rest.remove_prefix(name.size());
  if (rest.empty() || rest[0] == '#') return Config::EMPTY;
  drop_spaces(rest);
  if (rest.empty() || rest[0] != '=') return Config::INVALID;
  rest.remove_prefix(1);
  drop_spaces(rest);
  if (rest.empty()) return Config::INVALID;

  const bool quoted = rest[0] == '"' || rest[0] == '\'';
  const char end = quoted ? rest[0] : ' ';
  if (quoted) rest.remove_prefix(1);
  const auto stop = std::find_if(rest.begin(), rest.end(), [end](unsigned char c) {
    return c < 32 || c == 127 || c == static_cast<unsigned char>(end);
  });
  const std::string_view text = rest.substr(0, stop - rest.begin());
  rest.remove_prefix(text.size());
  if (quoted) {
    if (rest.empty() || rest[0] != end) return Config::INVALID;
    rest.remove_prefix(1);
  }
  drop_spaces(rest);
  if (!rest.empty() && rest[0] != '#') return Config::INVALID;
  key = name;
  value = text;
  return Config::OK;
}

// parse() on a buffer of just the size it needs, so that a byte too far is seen.
int parse_line(const std::string& line, std::string& key, std::string& value) {
  const std::unique_ptr<char[]> buffer(new char[line.size() + 1]);
  memcpy(buffer.get(), line.c_str(), line.size() + 1);
  ustring k("old key");
  ustring v("old value");
  Config config;
  const int result = config.parse(buffer.get(), static_cast<int>(line.size()), k, v);
  if (result != Config::OK) {
    EXPECT(k == "old key" && v == "old value");
    EXPECT(memcmp(buffer.get(), line.c_str(), line.size() + 1) == 0);
  }
  key = k.c_str();
  value = v.c_str();
  return result;
}

// What read() makes of the whole: lines, cut at 8191 bytes and ended by a zero byte.
int read_model(std::string_view text, Model& store) {
  while (!text.empty()) {
    const size_t feed = text.find('\n');
    const size_t size = std::min<size_t>(feed == text.npos ? text.size() : feed + 1, 8191);
    const std::string line(std::string(text.substr(0, size)).c_str());
    text.remove_prefix(size);
    std::string key, value, other_key, other_value;
    const int result = parse_model(line, key, value);
    EXPECT(parse_line(line, other_key, other_value) == result);
    if (result == Config::INVALID) {
      store.clear();
      return -1;
    }
    if (result == Config::EMPTY) continue;
    EXPECT(key == other_key && value == other_value);
    store[key] = value;
  }
  return 0;
}

// A file in memory and a path to it.
class MemoryFile {
 public:
  MemoryFile() : fd(memfd_create("config", MFD_CLOEXEC)) { EXPECT(fd >= 0); }
  ~MemoryFile() { (void)close(fd); }  // goes with its content
  ustring path() const { return ustring("/proc/self/fd/") + std::to_string(fd).c_str(); }
  void fill(const uint8_t* data, size_t size) const {
    EXPECT(ftruncate(fd, 0) == 0 && pwrite(fd, data, size, 0) == static_cast<ssize_t>(size));
  }

 private:
  const int fd;
};

void expect_equal(const Config& config, const Model& model) {
  auto it = model.begin();
  for (const auto& [key, value] : config) {
    EXPECT(it != model.end() && key == it->first.c_str() && value == it->second.c_str());
    ++it;
  }
  EXPECT(it == model.end());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const MemoryFile file;
  file.fill(data, size);
  Model model;
  Config config;
  const int expected = read_model({reinterpret_cast<const char*>(data), size}, model);
  EXPECT(config.read(file.path()) == expected);
  expect_equal(config, model);
  for (const auto& [key, value] : config) {
    (void)config.get_int(key);  // any text will do
    EXPECT(config.get_bool(key) == (value == "1" || value == "yes" || value == "true"));
  }

  static const MemoryFile copy;
  if (config.write(copy.path()) == 0) {
    Config again;
    EXPECT(again.read(copy.path()) == 0);
    expect_equal(again, model);
  }
  return 0;
}
