#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

// One UTF-16 code unit.
using uchar16_t = char16_t;

// The text type of all non-GUI code: UTF-8, with a UTF-16 view of the same text on demand.
//
// Lengths and offsets are bytes, not characters. Searching, trimming and comparing look at bytes
// only; an 8-bit text need not be valid UTF-8 (see is_valid()) until its UTF-16 view is asked for.
//
// Null pointers stand for the empty text wherever a zero-terminated text is taken. Text handed in
// may lie inside the object itself.
//
// Exceptions: std::bad_alloc when memory runs out or a length cannot be represented, and
// std::out_of_range("substr") for a position beyond the end of a text that is cut. The text is
// unchanged after either. Conversions do not throw for bad text: they write one line
// "Warning: <ICU function>: error code <n> at line <n>" to standard error. ICU counts in 32 bits;
// a text too long for that fails like a bad one.
//
// Threads: no locks. Distinct objects are independent. Const calls on a shared object may run
// side by side, except those that build its view: c_str_utf16() and normalize().
class ustring {
  template <class T>
  using only_char = std::enable_if_t<std::is_same_v<T, char>, int>;
  class needle;

 public:
  // "Nothing found", and "up to the end" as a count; the largest size_t.
  static constexpr size_t npos = static_cast<size_t>(-1);

  // Unicode normalisation forms: canonical composition and canonical decomposition.
  enum normalization_form { NFC = 0, NFD = 1 };

  // --- Construction. Converting on purpose: literals and standard strings are texts, too.

  ustring() { init(); }
  ustring(const char* s) : ustring(terminated(s), "") {}
  // A char and nothing that converts to one: a 16-bit unit or a number is no text.
  template <class Char, only_char<Char> = 0>
  ustring(Char c) : ustring(std::string_view(&c, 1), "") {}
  ustring(const std::string& s) : ustring(std::string_view(s), "") {}
  // Copies the text, not the view.
  ustring(const ustring& other) : ustring(other.text(), "") {}
  // Takes text and view without allocating; `other` is a valid empty string afterwards.
  ustring(ustring&& other) noexcept;
  // Empty, after a warning, when s is not well-formed UTF-16.
  ustring(const uchar16_t* s) : ustring() { assign(s); }
  ~ustring();

  // --- Changing the text.
  //
  // 8-bit input drops the UTF-16 view. 16-bit input goes into the view, and the text is rebuilt
  // from it at once; when the units so far are not well-formed UTF-16 (a lone surrogate, say),
  // the WHOLE string is left empty after a warning, what stood there before included.
  // Each returns *this; each operator is the assign() or append() of the same argument.

  // Empties text and view; the buffers are kept.
  void clear() noexcept { set_length(0); }

  ustring& operator=(const char* s) { return assign(s); }
  ustring& operator=(const std::string& s) { return assign(s); }
  ustring& operator=(const ustring& s) { return assign(s); }
  // Takes text and view; `other` is a valid empty string afterwards.
  ustring& operator=(ustring&& other) noexcept;
  ustring& operator=(char c) { return assign(c, 1); }
  ustring& operator=(const uchar16_t* s) { return assign(s); }
  ustring& operator=(uchar16_t c) { return assign(c, 1); }

  ustring& operator+=(const char* s) { return append(s); }
  ustring& operator+=(const std::string& s) { return append(s); }
  ustring& operator+=(const ustring& s) { return append(s); }
  ustring& operator+=(char c) { return append(c, 1); }
  ustring& operator+=(const uchar16_t* s) { return append(s); }
  ustring& operator+=(uchar16_t c) { return append(c, 1); }

  // Replaces the text by s up to its terminator.
  ustring& assign(const char* s) { return assign_text(terminated(s)); }
  // At most n bytes of s, ending early at a zero byte.
  ustring& assign(const char* s, size_t n) { return assign_text(terminated(s, n)); }
  // At most n bytes of s from pos, zero bytes included; std::out_of_range if pos > s.size().
  ustring& assign(const std::string& s, size_t pos = 0, size_t n = npos);
  // s.substr(pos, n); std::out_of_range if pos > s.length().
  ustring& assign(const ustring& s, size_t pos = 0, size_t n = npos);
  // n times the byte c.
  ustring& assign(char c, size_t n);
  // Replaces view and text by s up to its zero unit.
  ustring& assign(const uchar16_t* s) { return assign(s, npos); }
  // At most n units of s, ending early at a zero unit.
  ustring& assign(const uchar16_t* s, size_t n);
  // n times the unit c.
  ustring& assign(uchar16_t c, size_t n);

  // As the assign() of the same arguments, behind the text that is there.
  ustring& append(const char* s) { return append_text(terminated(s)); }
  ustring& append(const char* s, size_t n) { return append_text(terminated(s, n)); }
  ustring& append(const std::string& s, size_t pos = 0, size_t n = npos);
  ustring& append(const ustring& s, size_t pos = 0, size_t n = npos);
  ustring& append(char c, size_t n);
  // The view is built first when it is not there. A text that has none, because it is not valid
  // UTF-8, stays as it is: only the warning of c_str_utf16() is written.
  ustring& append(const uchar16_t* s) { return append(s, npos); }
  ustring& append(const uchar16_t* s, size_t n);
  ustring& append(uchar16_t c, size_t n);

  // Turns every byte `from` into `to`, in place. Meant to leave a view that is already built as
  // it was, so it shows the old text: whoever needs the view afterwards must not build it before.
  // 16-bit input afterwards continues that old view, and so undoes the change.
  ustring& replace(char from, char to) noexcept;
  template <class From, class To>
  ustring& replace(From from, To to) = delete;  // a 16-bit unit or a number is no char

  // Removes the leading (ltrim) and trailing (rtrim) bytes contained in set; an empty set
  // removes nothing. trim() does both.
  void ltrim(const needle& set = " \t\r\n");
  void rtrim(const needle& set = " \t\r\n");
  void trim(const needle& set = " \t\r\n");

  // Exchanges texts and views.
  void swap(ustring& other) noexcept;
  friend void swap(ustring& a, ustring& b) noexcept { a.swap(b); }

  // --- Access.

  // The text, zero-terminated, never null. Valid until the object changes or dies.
  const char* c_str() const noexcept { return data; }
  const char* c_str_utf8() const noexcept { return data; }
  // The UTF-16 view, zero-terminated, never null; built from the text unless it is there.
  // Empty, after a warning, when the text is not valid UTF-8. Valid until the object changes or
  // dies; for an empty view, until the next call.
  const uchar16_t* c_str_utf16() const;

  // Bytes, not characters, without the terminator.
  size_t length() const noexcept { return data_len; }
  size_t size() const noexcept { return data_len; }
  bool empty() const noexcept { return data_len == 0; }

  // Byte i, unchecked; i == length() reads the terminator. Writing through it leaves the view as
  // it was, as replace() does, and 16-bit input afterwards undoes it in the same way.
  char& operator[](size_t i) noexcept { return data[i]; }
  const char& operator[](size_t i) const noexcept { return data[i]; }

  // The bytes from pos, at most n of them; std::out_of_range("substr") if pos > length().
  ustring substr(size_t pos = 0, size_t n = npos) const;

  // --- Searching. All return the byte offset of the match, or npos.
  //
  // Forward searches begin at pos and find nothing if pos >= length(). Backward searches begin at
  // pos or, if that is at or beyond the end, at the last byte. An empty text never matches, not
  // even an empty needle. A needle is a zero-terminated text, a std::string, a ustring or a char;
  // it ends at its first zero byte, and the char '\0' is an empty one. UTF-16 is looked for as
  // ustring(u"...").

  // The needle as a whole, beginning at pos or later; an empty needle matches at pos.
  size_t find(const needle& s, size_t pos = 0) const;
  // The needle as a whole, beginning at pos or earlier; an empty needle matches where it begins.
  size_t rfind(const needle& s, size_t pos = npos) const;

  // Forward for a byte of the set; an empty set never matches.
  size_t find_first_of(const needle& set, size_t pos = 0) const;
  // Forward for a byte outside the set; an empty set matches at pos.
  size_t find_first_not_of(const needle& set, size_t pos = 0) const;

  // Backward for a byte of the set; an empty set never matches.
  size_t find_last_of(const needle& set, size_t pos = npos) const;
  // Backward for a byte outside the set; an empty set matches where the search begins.
  size_t find_last_not_of(const needle& set, size_t pos = npos) const;

  // --- Comparison, by unsigned bytes.

  // 0 for equal texts, otherwise the difference of the first differing bytes of a and b; where
  // one text ends, its terminator counts as a byte of value 0. With `caseless`, A to Z count as
  // a to z; letters outside ASCII are not folded.
  static int compare(const ustring& a, const ustring& b, bool caseless);
  int compare(const ustring& other) const { return compare(*this, other, false); }
  // Looks at no more than the first n bytes of both texts; 0 if n is 0.
  int compare(const ustring& other, size_t n) const;

  // The sign of compare(), taken from memcmp() without looking for the differing byte: these
  // order the keys of every map.
  friend bool operator==(const ustring& a, const ustring& b) noexcept {
    return a.text() == b.text();
  }
  friend bool operator!=(const ustring& a, const ustring& b) noexcept {
    return a.text() != b.text();
  }
  friend bool operator<(const ustring& a, const ustring& b) noexcept { return a.text() < b.text(); }
  friend bool operator>(const ustring& a, const ustring& b) noexcept { return a.text() > b.text(); }
  friend bool operator<=(const ustring& a, const ustring& b) noexcept {
    return a.text() <= b.text();
  }
  friend bool operator>=(const ustring& a, const ustring& b) noexcept {
    return a.text() >= b.text();
  }

  // --- Concatenation: a new string, left's text followed by right's. A temporary on the left
  // gives up its buffers, but is copied for 16-bit input: that would continue its view, which
  // replace() may have left behind, and not its text.

  friend ustring operator+(const ustring& left, const ustring& right) {
    return {left.text(), right.text()};
  }
  friend ustring operator+(const ustring& left, const char* right) {
    return {left.text(), terminated(right)};
  }
  friend ustring operator+(const ustring& left, char right) {
    return {left.text(), std::string_view(&right, 1)};
  }
  friend ustring operator+(const ustring& left, const uchar16_t* right) {
    return std::move(ustring(left) += right);
  }
  friend ustring operator+(const ustring& left, uchar16_t right) {
    return std::move(ustring(left) += right);
  }
  friend ustring operator+(ustring&& left, const ustring& right) {
    return std::move(left += right);
  }
  friend ustring operator+(ustring&& left, const char* right) { return std::move(left += right); }
  friend ustring operator+(ustring&& left, char right) { return std::move(left += right); }
  friend ustring operator+(ustring&& left, const uchar16_t* right) {
    return std::as_const(left) + right;
  }
  friend ustring operator+(ustring&& left, uchar16_t right) { return std::as_const(left) + right; }

  // --- Streams.

  // Writes the UTF-8 bytes.
  friend std::ostream& operator<<(std::ostream& out, const ustring& s);
  // Reads one blank-delimited word; s is empty when there is none.
  friend std::istream& operator>>(std::istream& in, ustring& s);

  // --- Unicode.

  // The text of s in the given form. Empty, after a warning, when s is not valid UTF-8 or ICU
  // fails. Works on the view of s as it stands, built if it is not there.
  static ustring normalize(const ustring& s, normalization_form form);
  ustring normalize(normalization_form form) const { return normalize(*this, form); }

  // Whether s is valid UTF-8; the empty text is. Writes no warning.
  [[nodiscard]] static bool is_valid(const ustring& s);

 private:
  // Capacity of both buffers after construction, in bytes and in units.
  static constexpr size_t initial_cap = 4;

  // What is searched for. Refers to the text given, so it lives no longer than the call.
  class needle {
   public:
    needle(const char* s) noexcept : m_text(terminated(s)) {}
    needle(const std::string& s) noexcept : m_text(s.c_str()) {}
    needle(const ustring& s) noexcept : m_text(s.c_str()) {}
    template <class Char, only_char<Char> = 0>
    needle(Char c) noexcept : m_char(c), m_text(&m_char, c != '\0' ? 1 : 0) {}
    needle(const needle&) = delete;
    needle& operator=(const needle&) = delete;

    std::string_view text() const noexcept { return m_text; }

   private:
    const char m_char = '\0';
    const std::string_view m_text;
  };

  // The text head + tail in a buffer allocated once, at the size it needs.
  ustring(std::string_view head, std::string_view tail);

  // Allocates both buffers and makes them empty; data takes `size` bytes where a constructor
  // knows that it needs more than the initial 4. Nothing is owned if it throws.
  void init(size_t size = initial_cap);

  // Make the buffer exactly `size` bytes or units (terminator included) if it is smaller than
  // that or more than twice as large; otherwise leave it. The content up to `size` stays.
  void realloc_data(size_t size);
  void realloc_wdata(size_t size) const;

  // Rebuild the text from the view, and the view from the text. 0, or -1 after a warning;
  // then both buffers are empty, respectively the view alone.
  [[nodiscard]] int convert_from_wdata();
  [[nodiscard]] int convert_from_data() const;

  ustring& assign_text(std::string_view s);
  ustring& append_text(std::string_view s);
  // The tail of every 8-bit change: the text has `len` bytes, and no view.
  void set_length(size_t len) noexcept;
  // The tail of every 16-bit change: the view has `len` units, and the text is rebuilt from it.
  ustring& rebuild_text(size_t len);
  void drop_view() const noexcept;
  // Keeps the bytes of [first, end) and drops the others.
  void keep(size_t first, size_t end) noexcept;

  std::string_view text() const noexcept { return {data, data_len}; }
  // Where a backward search from pos begins; the text must not be empty.
  size_t last_start(size_t pos) const noexcept { return pos < data_len ? pos : data_len - 1; }

  // s up to its terminator, or up to n bytes; empty, but not null, for a null pointer.
  static std::string_view terminated(const char* s) noexcept { return s != nullptr ? s : ""; }
  static std::string_view terminated(const char* s, size_t n) noexcept;

  // Both buffers come from realloc() and are freed in the destructor. A capacity of 0 marks a
  // moved-from string: its pointers then lead to shared empty texts that are never written.

  char* data = nullptr;                ///< owned; the UTF-8 text, zero-terminated, never null
  size_t data_len = 0;                 ///< bytes in data, without the terminator
  size_t data_cap = 0;                 ///< bytes allocated for data
  mutable uchar16_t* wdata = nullptr;  ///< owned; the UTF-16 view, zero-terminated, never null
  mutable size_t wdata_len = 0;        ///< units in wdata; 0 means that the view is not built
  mutable size_t wdata_cap = 0;        ///< units allocated for wdata
};
