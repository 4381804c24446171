#include "ustring/ustring.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <istream>
#include <limits>
#include <new>
#include <ostream>
#include <stdexcept>
#include <type_traits>

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

static_assert(std::is_same_v<uchar16_t, UChar>, "the view is handed to ICU as it is");
static_assert(ustring::npos == std::string_view::npos, "search results are passed on as they are");

namespace {

// What a moved-from string points to, so that moving never has to allocate.
char no_text[1];
uchar16_t no_view[1];

constexpr size_t icu_max = std::numeric_limits<int32_t>::max();
// A UTF-16 unit becomes at most 3 bytes of UTF-8, and ICU sums them up in an int32_t unchecked.
constexpr size_t icu_max_to_utf8 = icu_max / 3;

int32_t icu_length(size_t n) { return static_cast<int32_t>(std::min(n, icu_max)); }

// The line numbers are fixed: readers of the output know the places by them.
void warn(const char* function, UErrorCode error, int line) {
  std::fprintf(stderr, "Warning: %s: error code %d at line %d\n", function, static_cast<int>(error),
               line);
}

// Buffer size for len + added units and a terminator; must not wrap around to a tiny one.
size_t size_for(size_t len, size_t added) {
  if (added >= ustring::npos - len) throw std::bad_alloc();
  return len + added + 1;
}

// Exact sizes, and less than half used is given back: most texts are paths and keys, kept long.
template <class Unit>
void resize(Unit*& buffer, size_t& capacity, size_t size) {
  const bool fits = size <= capacity;
  // size < capacity / 2 would round, 2 * size < capacity could overflow.
  const bool below_half = fits && size < capacity - size;
  if (fits && !below_half) return;
  if (size > ustring::npos / sizeof(Unit)) throw std::bad_alloc();
  void* const moved = std::realloc(capacity != 0 ? buffer : nullptr, size * sizeof(Unit));
  if (moved == nullptr) throw std::bad_alloc();
  buffer = static_cast<Unit*>(moved);
  capacity = size;
}

// std::less, because the operators promise nothing for pointers into different buffers.
template <class Unit>
bool contains(const Unit* buffer, size_t len, const Unit* s) {
  const std::less<const Unit*> less;
  return !less(s, buffer) && !less(buffer + len, s);
}

std::u16string_view terminated_units(const uchar16_t* s, size_t n) {
  if (s == nullptr) return u"";
  const uchar16_t* const end = std::char_traits<uchar16_t>::find(s, n, u'\0');
  return {s, end != nullptr ? static_cast<size_t>(end - s) : n};
}

std::string_view slice(std::string_view s, size_t pos, size_t n) {
  if (pos > s.size()) throw std::out_of_range("substr");
  return s.substr(pos, n);
}

// A table and not tolower(), whose answer depends on the locale of the process.
constexpr std::array<unsigned char, 256> make_fold_table() {
  std::array<unsigned char, 256> table{};
  for (size_t i = 0; i < table.size(); ++i)
    table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i - 'A' + 'a' : i);
  return table;
}

constexpr std::array<unsigned char, 256> fold_table = make_fold_table();

int plain(char c) { return static_cast<unsigned char>(c); }

int folded(char c) { return fold_table[static_cast<unsigned char>(c)]; }

// memcmp() promises the sign only, and knows no folding; callers are promised the difference.
template <class Value>
int difference(std::string_view a, std::string_view b, Value value) {
  const size_t common = std::min(a.size(), b.size());
  for (size_t i = 0; i < common; ++i) {
    if (value(a[i]) != value(b[i])) return value(a[i]) - value(b[i]);
  }
  if (a.size() == b.size()) return 0;
  // A zero byte inside the longer text equals the other's terminator, but the texts differ.
  if (a.size() > common) return std::max(value(a[common]), 1);
  return -std::max(value(b[common]), 1);
}

}  // namespace

ustring::ustring(ustring&& other) noexcept : data(no_text), wdata(no_view) { swap(other); }

ustring::ustring(std::string_view head, std::string_view tail) {
  init(size_for(head.size(), tail.size()));
  std::memcpy(data, head.data(), head.size());
  std::memcpy(data + head.size(), tail.data(), tail.size());
  data_len = head.size() + tail.size();
  data[data_len] = '\0';
}

ustring::~ustring() {
  // Without capacity the buffers are the shared empty ones of a moved-from string.
  if (data_cap != 0) std::free(data);
  if (wdata_cap != 0) std::free(wdata);
  // A use after destruction then fails at once instead of reading freed memory. Volatile, or the
  // compiler leaves out what no valid program can see.
  *const_cast<char* volatile*>(&data) = nullptr;
  *const_cast<uchar16_t* volatile*>(&wdata) = nullptr;
}

void ustring::init(size_t size) {
  data_cap = std::max(size, initial_cap);
  wdata_cap = initial_cap;
  data = static_cast<char*>(std::realloc(nullptr, data_cap));
  wdata = static_cast<uchar16_t*>(std::realloc(nullptr, wdata_cap * sizeof(uchar16_t)));
  if (data == nullptr || wdata == nullptr) {
    // Called from constructors: no destructor will run.
    std::free(data);
    std::free(wdata);
    throw std::bad_alloc();
  }
  data[0] = '\0';
  wdata[0] = u'\0';
}

ustring& ustring::operator=(ustring&& other) noexcept {
  // By way of a third string: assigning to itself keeps the text.
  ustring taken(std::move(other));
  swap(taken);
  return *this;
}

void ustring::swap(ustring& other) noexcept {
  std::swap(data, other.data);
  std::swap(data_len, other.data_len);
  std::swap(data_cap, other.data_cap);
  std::swap(wdata, other.wdata);
  std::swap(wdata_len, other.wdata_len);
  std::swap(wdata_cap, other.wdata_cap);
}

void ustring::realloc_data(size_t size) { resize(data, data_cap, size); }

void ustring::realloc_wdata(size_t size) const { resize(wdata, wdata_cap, size); }

void ustring::drop_view() const noexcept {
  wdata_len = 0;
  if (wdata_cap != 0) wdata[0] = u'\0';
}

void ustring::set_length(size_t len) noexcept {
  data_len = len;
  if (data_cap != 0) data[len] = '\0';
  drop_view();
}

ustring& ustring::rebuild_text(size_t len) {
  wdata_len = len;
  wdata[len] = u'\0';
  try {
    // A failure has emptied both buffers and told why.
    (void)convert_from_wdata();
  } catch (const std::bad_alloc&) {
    // The old text still stands; a view that is ahead of it must not.
    drop_view();
    throw;
  }
  return *this;
}

std::string_view ustring::terminated(const char* s, size_t n) noexcept {
  return s != nullptr ? std::string_view(s, strnlen(s, n)) : std::string_view("");
}

ustring& ustring::assign_text(std::string_view s) {
  if (contains(data, data_len, s.data())) {
    // The part is copied out first: shrinking the buffer could cut it off.
    ustring part(s, "");
    swap(part);
    return *this;
  }
  realloc_data(size_for(0, s.size()));
  std::memcpy(data, s.data(), s.size());
  set_length(s.size());
  return *this;
}

ustring& ustring::append_text(std::string_view s) {
  // Growing may move the buffer that s lies in, so s is remembered as an offset.
  const bool own = contains(data, data_len, s.data());
  const size_t offset = own ? static_cast<size_t>(s.data() - data) : 0;
  realloc_data(size_for(data_len, s.size()));
  std::memcpy(data + data_len, own ? data + offset : s.data(), s.size());
  set_length(data_len + s.size());
  return *this;
}

ustring& ustring::assign(const std::string& s, size_t pos, size_t n) {
  return assign_text(slice(s, pos, n));
}

ustring& ustring::assign(const ustring& s, size_t pos, size_t n) {
  return assign_text(slice(s.text(), pos, n));
}

ustring& ustring::assign(char c, size_t n) {
  realloc_data(size_for(0, n));
  std::memset(data, c, n);
  set_length(n);
  return *this;
}

ustring& ustring::assign(const uchar16_t* s, size_t n) {
  const std::u16string_view units = terminated_units(s, n);
  if (contains(wdata, wdata_len, units.data())) {
    // As in assign_text().
    ustring part;
    part.assign(units.data(), units.size());
    swap(part);
    return *this;
  }
  realloc_wdata(size_for(0, units.size()));
  std::copy(units.begin(), units.end(), wdata);
  return rebuild_text(units.size());
}

ustring& ustring::assign(uchar16_t c, size_t n) {
  realloc_wdata(size_for(0, n));
  std::fill_n(wdata, n, c);
  return rebuild_text(n);
}

ustring& ustring::append(const std::string& s, size_t pos, size_t n) {
  return append_text(slice(s, pos, n));
}

ustring& ustring::append(const ustring& s, size_t pos, size_t n) {
  return append_text(slice(s.text(), pos, n));
}

ustring& ustring::append(char c, size_t n) {
  realloc_data(size_for(data_len, n));
  std::memset(data + data_len, c, n);
  set_length(data_len + n);
  return *this;
}

ustring& ustring::append(const uchar16_t* s, size_t n) {
  const std::u16string_view units = terminated_units(s, n);
  // The text is rebuilt from the view: without one it would be replaced and not continued.
  if (wdata_len == 0 && convert_from_data() != 0) return *this;
  const bool own = contains(wdata, wdata_len, units.data());
  const size_t offset = own ? static_cast<size_t>(units.data() - wdata) : 0;
  realloc_wdata(size_for(wdata_len, units.size()));
  std::copy_n(own ? wdata + offset : units.data(), units.size(), wdata + wdata_len);
  return rebuild_text(wdata_len + units.size());
}

ustring& ustring::append(uchar16_t c, size_t n) {
  if (wdata_len == 0 && convert_from_data() != 0) return *this;
  realloc_wdata(size_for(wdata_len, n));
  std::fill_n(wdata + wdata_len, n, c);
  return rebuild_text(wdata_len + n);
}

ustring& ustring::replace(char from, char to) noexcept {
  // The view stays on purpose; see the header.
  std::replace(data, data + data_len, from, to);
  return *this;
}

void ustring::keep(size_t first, size_t end) noexcept {
  const size_t len = first < end ? end - first : 0;
  std::memmove(data, data + first, len);
  set_length(len);
}

// Both ends are found before a byte moves: the set may lie inside the text. With nothing to keep
// they are npos and npos + 1, which is 0.

void ustring::ltrim(const needle& set) {
  keep(std::min(find_first_not_of(set), data_len), data_len);
}

void ustring::rtrim(const needle& set) { keep(0, find_last_not_of(set) + 1); }

void ustring::trim(const needle& set) {
  const size_t end = find_last_not_of(set) + 1;
  keep(std::min(find_first_not_of(set), data_len), end);
}

const uchar16_t* ustring::c_str_utf16() const {
  if (wdata_len == 0) {
    // A failure has left the view empty, and that is what is handed out.
    (void)convert_from_data();
  }
  return wdata;
}

ustring ustring::substr(size_t pos, size_t n) const { return {slice(text(), pos, n), ""}; }

// The bounds on pos: unlike the standard's, no search here begins behind the last byte.

size_t ustring::find(const needle& s, size_t pos) const {
  return pos < data_len ? text().find(s.text(), pos) : npos;
}

size_t ustring::rfind(const needle& s, size_t pos) const {
  return empty() ? npos : text().rfind(s.text(), last_start(pos));
}

size_t ustring::find_first_of(const needle& set, size_t pos) const {
  return text().find_first_of(set.text(), pos);
}

size_t ustring::find_first_not_of(const needle& set, size_t pos) const {
  return text().find_first_not_of(set.text(), pos);
}

size_t ustring::find_last_of(const needle& set, size_t pos) const {
  return empty() ? npos : text().find_last_of(set.text(), last_start(pos));
}

size_t ustring::find_last_not_of(const needle& set, size_t pos) const {
  return empty() ? npos : text().find_last_not_of(set.text(), last_start(pos));
}

int ustring::compare(const ustring& a, const ustring& b, bool caseless) {
  if (caseless) return difference(a.text(), b.text(), folded);
  // Equal texts, the longest to compare, are left to memcmp().
  return a == b ? 0 : difference(a.text(), b.text(), plain);
}

int ustring::compare(const ustring& other, size_t n) const {
  return difference(text().substr(0, n), other.text().substr(0, n), plain);
}

std::ostream& operator<<(std::ostream& out, const ustring& s) { return out << s.text(); }

std::istream& operator>>(std::istream& in, ustring& s) {
  // A failing extractor may leave its string alone; a new one is empty.
  std::string word;
  in >> word;
  s.assign(word);
  return in;
}

int ustring::convert_from_wdata() {
  // What a text too long for ICU is reported as, without asking ICU.
  UErrorCode error = U_INDEX_OUTOFBOUNDS_ERROR;
  int32_t len = 0;
  if (wdata_len <= icu_max_to_utf8) {
    // Asking for the length "fails" with a buffer overflow; a real error comes back below.
    UErrorCode ignored = U_ZERO_ERROR;
    u_strToUTF8(nullptr, 0, &len, wdata, icu_length(wdata_len), &ignored);
    realloc_data(static_cast<size_t>(len) + 1);
    error = U_ZERO_ERROR;
    u_strToUTF8(data, icu_length(data_cap), &len, wdata, icu_length(wdata_len), &error);
  }
  if (U_FAILURE(error)) {
    warn("u_strToUTF8", error, 867);
    clear();
    return -1;
  }
  data_len = static_cast<size_t>(len);
  data[data_len] = '\0';
  return 0;
}

int ustring::convert_from_data() const {
  // As in convert_from_wdata(), but UTF-16 never takes more units than UTF-8 takes bytes.
  UErrorCode error = U_INDEX_OUTOFBOUNDS_ERROR;
  int32_t len = 0;
  if (data_len <= icu_max) {
    UErrorCode ignored = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &len, data, icu_length(data_len), &ignored);
    realloc_wdata(static_cast<size_t>(len) + 1);
    error = U_ZERO_ERROR;
    u_strFromUTF8(wdata, icu_length(wdata_cap), &len, data, icu_length(data_len), &error);
  }
  if (U_FAILURE(error)) {
    warn("u_strFromUTF8", error, 900);
    drop_view();
    return -1;
  }
  wdata_len = static_cast<size_t>(len);
  wdata[wdata_len] = u'\0';
  return 0;
}

ustring ustring::normalize(const ustring& s, normalization_form form) {
  ustring result;
  if (s.empty()) return result;
  const UNormalization2Mode mode = form == NFC ? UNORM2_COMPOSE : UNORM2_DECOMPOSE;
  UErrorCode error = U_ZERO_ERROR;
  const UNormalizer2* const normalizer = unorm2_getInstance(nullptr, "nfc", mode, &error);
  if (U_FAILURE(error)) {
    warn("unorm2_getInstance", error, 993);
    return result;
  }
  // As it is, also behind replace(). No view is longer than ICU can count.
  const uchar16_t* const view = s.c_str_utf16();
  const int32_t view_len = static_cast<int32_t>(s.wdata_len);
  UErrorCode ignored = U_ZERO_ERROR;
  const int32_t len = unorm2_normalize(normalizer, view, view_len, nullptr, 0, &ignored);
  result.realloc_wdata(static_cast<size_t>(std::max(len, 0)) + 1);
  const int32_t filled = unorm2_normalize(normalizer, view, view_len, result.wdata,
                                          icu_length(result.wdata_cap), &error);
  if (U_FAILURE(error)) {
    warn("unorm2_normalize", error, 1005);
    result.clear();
    return result;
  }
  result.rebuild_text(static_cast<size_t>(filled));
  return result;
}

bool ustring::is_valid(const ustring& s) {
  if (s.empty()) return true;
  // Without a view, which a text beyond ICU's count cannot have, it is not valid either.
  if (s.data_len > icu_max) return false;
  int32_t len = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, &len, s.data, icu_length(s.data_len), &error);
  // Without a destination even a good text ends in an error, the buffer overflow.
  return error != U_INVALID_CHAR_FOUND;
}
