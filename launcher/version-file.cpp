#include "launcher/version-file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "lib/open-file.h"

namespace {

using std::string_view;

constexpr size_t kMaxSize = 65536;  // bytes; a version file has about a hundred
constexpr string_view kBlanks = " \t\n\v\f\r";
constexpr string_view kLineEnds = "\n\r";
constexpr string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr char kOther = '?';  // for a character that no object begins or ends with

bool is_in(string_view set, char c) { return set.find(c) != string_view::npos; }

// One line, as the settings reader cuts it.
struct Line {
  string_view text;
  size_t equals = string_view::npos;  // the place of the first "=" outside quotes
};

// The length of the escape at `at`: a backslash and what it takes the meaning from, which is a
// line end of two characters or one character of any kind.
size_t escape_length(string_view text, size_t at) {
  const string_view next = text.substr(at + 1, 2);
  const bool pair = next == "\r\n" || next == "\n\r";
  return std::min(text.size() - at, size_t{pair ? 3u : 2u});
}

size_t skip_blank_lines(string_view text, size_t at) {
  return std::min(text.find_first_not_of(" \t\n\r", at), text.size());
}

// Takes the next line off `rest`; false at the end. A line goes on over quoted and escaped line
// ends and ends before a ";". Blanks and comments at its front are no part of it.
bool next_line(string_view& rest, Line& line) {
  bool quoted = false;
  size_t begin = skip_blank_lines(rest, 0);
  size_t at = begin;
  line.equals = string_view::npos;
  while (at < rest.size()) {
    const char c = rest[at];
    if (c == '\\') {
      at += escape_length(rest, at);
      continue;
    }
    if (c == '"') quoted = !quoted;
    if (c == '=' && !quoted && line.equals == string_view::npos) line.equals = at - begin;
    if (at == begin && c == ';') {
      begin = at = skip_blank_lines(rest, rest.find_first_of(kLineEnds, at));
      continue;
    }
    if (!quoted && (c == ';' || is_in(kLineEnds, c))) break;
    ++at;
  }
  line.text = rest.substr(begin, at - begin);
  rest.remove_prefix(at);
  return !line.text.empty();
}

// Whether the heading `text` may be that of the group. A "%" begins an escape there, which has
// too many forms to tell it from the name by looking.
bool heads_version(string_view text) {
  text = text.substr(1, std::min(text.find(']'), text.size()) - 1);
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
  return text == "Version" || is_in(text, '%');
}

// Takes the digits of `base` off the front of `rest` and appends the character that they number,
// of which the reader keeps 16 bits. Without a digit nothing is appended.
void take_number(string_view& rest, unsigned base, std::string& part) {
  static constexpr string_view kDigits = "0123456789abcdef0123456789ABCDEF";
  const string_view digits = base == 16 ? kDigits : kDigits.substr(0, base);
  if (rest.empty() || !is_in(digits, rest.front())) return;
  unsigned code = 0;
  while (!rest.empty() && is_in(digits, rest.front())) {
    code = code * base + static_cast<unsigned>(digits.find(rest.front()) % 16);
    rest.remove_prefix(1);
  }
  code &= 0xffff;
  part += code > ' ' && code < 128 ? static_cast<char>(code) : kOther;
}

// Takes the escape off the front of `rest` and appends what it stands for.
void take_escape(string_view& rest, std::string& part) {
  const size_t length = escape_length(rest, 0);
  const char c = length > 1 ? rest[1] : '\n';
  if (c >= '0' && c <= '7') {
    rest.remove_prefix(1);
    take_number(rest, 8, part);
    return;
  }
  rest.remove_prefix(length);
  if (c == 'x') {
    take_number(rest, 16, part);
  } else if (is_in("abfnrtv\"?'\\", c)) {
    part += kOther;
  }
}

// Takes the part before the next comma outside quotes off `rest`. What is in `part` then is the
// text that the reader makes of it; but for blanks at its end, which the reader may keep.
void take_part(string_view& rest, std::string& part) {
  bool quoted = false;
  bool skips_blanks = true;
  part.clear();
  while (!rest.empty()) {
    const char c = rest.front();
    if (c == '\\') {
      take_escape(rest, part);
      skips_blanks = false;
      continue;
    }
    if (rest.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
      rest.remove_prefix(kByteOrderMark.size());  // the reader drops some of them
      continue;
    }
    rest.remove_prefix(1);
    if (c == ',' && !quoted) break;
    if (c == '"') {
      skips_blanks = quoted;
      quoted = !quoted;
    } else if (!skips_blanks || !is_in(" \t", c)) {
      part += c;
      skips_blanks = false;
    }
  }
  part.erase(part.find_last_not_of(" \t") + 1);
}

// The texts that the reader builds objects from. What begins with "@String(", "@ByteArray(" or
// "@@" and all else that begins with "@" is text and bytes to it.
bool is_object(string_view part) {
  if (part.empty() || part.back() != ')') return false;
  for (const string_view front : {"@Variant(", "@DateTime(", "@Rect(", "@Size(", "@Point("}) {
    if (part.substr(0, front.size()) == front) return true;
  }
  return false;
}

// Reads a regular file that is not too large into `text`. The results are CheckVersionFile()'s.
int read_file(const ustring& path, std::string& text, ustring& fault) {
  const int fd = open_file(path.c_str(), O_RDONLY);
  if (fd < 0) {
    if (errno == EINVAL) fault = "not a regular file";
    return fault.empty() ? -1 : -2;
  }
  text.resize(kMaxSize + 1);
  size_t size = 0;
  ssize_t count = 0;
  do {
    size += static_cast<size_t>(count);
    count = TEMP_FAILURE_RETRY(read(fd, &text[size], text.size() - size));
  } while (count > 0);
  if (count < 0) fault = "cannot be read";
  if (size > kMaxSize) fault = "larger than 64 KiB";
  (void)close(fd);  // only read from: nothing is lost
  text.resize(size);
  return fault.empty() ? 0 : -2;
}

}  // namespace

bool HoldsObject(string_view text) {
  if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
    text.remove_prefix(kByteOrderMark.size());
  }
  bool inside = false;
  std::string part;
  for (Line line; next_line(text, line);) {
    if (line.text.front() == '[') {
      inside = heads_version(line.text);
    } else if (inside && line.equals != string_view::npos) {
      for (string_view value = line.text.substr(line.equals + 1); !value.empty();) {
        take_part(value, part);
        if (is_object(part)) return true;
      }
    }
  }
  return false;
}

int CheckVersionFile(const ustring& path, ustring& fault) {
  fault.clear();
  std::string text;
  const int result = read_file(path, text, fault);
  if (result != 0 || !HoldsObject(text)) return result;
  fault = "holds an object of the toolkit's in the group Version";
  return -2;
}
