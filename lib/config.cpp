#include "lib/config.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "lib/open-file.h"

namespace {

constexpr size_t kLineBuffer = 8192;  // bytes, the terminator included
constexpr size_t kMaxFile = 1048576;  // bytes; a file beyond this is none of ours

// Reads the whole file into `text`; false when it is no file, cannot be read or is too long.
bool read_file(const ustring& path, std::string& text) {
  const int fd = open_file(path.c_str(), O_RDONLY);
  if (fd < 0) return false;
  char buffer[kLineBuffer];
  ssize_t count;
  do {
    count = TEMP_FAILURE_RETRY(::read(fd, buffer, sizeof buffer));
    if (count > 0) text.append(buffer, static_cast<size_t>(count));
  } while (count > 0 && text.size() <= kMaxFile);
  (void)close(fd);  // nothing was written
  return count == 0;
}

template <typename Test>
bool all_bytes(const ustring& text, Test test) {
  const char* const begin = text.c_str();
  return std::all_of(begin, begin + text.length(),
                     [test](char c) { return test(static_cast<unsigned char>(c)); });
}

// Appends "key=<quote>value<quote>\n"; false when the grammar has no way to say it.
bool append_line(const ustring& key, const ustring& value, std::string& out) {
  const char quote = value.find('"') == ustring::npos ? '"' : '\'';
  if (!all_bytes(key, Config::is_key_char) || !all_bytes(value, Config::is_value_char) ||
      value.find(quote) != ustring::npos) {
    return false;
  }
  const size_t start = out.size();
  out.append(key.c_str()).append("=").append(1, quote).append(value.c_str());
  out.append(1, quote).append("\n");
  return out.size() - start < kLineBuffer;  // a longer line would be read in pieces
}

}  // namespace

bool Config::is_space(unsigned char c) { return (c >= 9 && c <= 13) || c == ' '; }

bool Config::is_key_char(unsigned char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
         c == '_' || c == '.';
}

bool Config::is_value_char(unsigned char c) { return c >= 32 && c != 127; }

int Config::parse(char* buf, int /*n*/, ustring& key, ustring& value) {
  char* p = buf;
  const auto skip_spaces = [&p] {
    while (is_space(static_cast<unsigned char>(*p))) ++p;
  };

  skip_spaces();
  char* const key_begin = p;
  while (is_key_char(static_cast<unsigned char>(*p))) ++p;
  char* const key_end = p;
  // The byte directly behind the key decides, before any blanks: "key# comment"
  // counts as empty, "key # comment" is a key without a value.
  if (*key_end == '#' || *key_end == '\0') return EMPTY;

  skip_spaces();
  if (*p != '=') return INVALID;
  ++p;
  skip_spaces();
  if (*p == '\0') return INVALID;

  char delimiter = ' ';
  const bool quoted = *p == '"' || *p == '\'';
  if (quoted) delimiter = *p++;

  char* const value_begin = p;
  while (is_value_char(static_cast<unsigned char>(*p)) && *p != delimiter) ++p;
  char* const value_end = p;
  if (quoted) {
    if (*p != delimiter) return INVALID;
    ++p;
  }

  skip_spaces();
  if (*p != '\0' && *p != '#') return INVALID;

  *key_end = '\0';
  *value_end = '\0';
  key = key_begin;
  value = value_begin;
  return OK;
}

Config::Config(const ustring& path) {
  // A store that stays empty is the defined outcome of an unreadable file.
  (void)read(path);
}

int Config::read(const ustring& path) {
  std::string text;
  if (path.empty() || !read_file(path, text)) return -1;

  for (size_t start = 0; start < text.size();) {
    const size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
    const size_t length = std::min(end - start, kLineBuffer - 1);
    char line[kLineBuffer];
    line[text.copy(line, length, start)] = '\0';
    start += length;

    ustring key;
    ustring value;
    const int result = parse(line, static_cast<int>(length), key, value);
    if (result == INVALID) {
      store.clear();
      return -1;
    }
    if (result == OK) store[key] = value;
  }
  return 0;
}

int Config::write(const ustring& path) const {
  std::string text;
  for (const auto& [key, value] : store) {
    if (!append_line(key, value, text)) return -1;
  }
  if (text.size() > kMaxFile) return -1;  // read() would refuse it
  FILE* const fp = fopen(path.c_str(), "we");
  if (!fp) return -1;
  const bool written = fwrite(text.data(), 1, text.size(), fp) == text.size();
  const bool closed = fclose(fp) == 0;  // flushes, so it is always called and looked at
  return written && closed ? 0 : -1;
}

int Config::get_int(const ustring& key) const {
  const auto it = store.find(key);
  return it == store.end() ? 0 : static_cast<int>(strtol(it->second.c_str(), nullptr, 10));
}

bool Config::get_bool(const ustring& key) const {
  const auto it = store.find(key);
  return it != store.end() && (it->second == "1" || it->second == "yes" || it->second == "true");
}
