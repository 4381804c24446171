// ustring: a sequence of changes and searches, each compared with std::string, and the
// conversions with a decoder of our own.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <optional>
#include <string>

#include "tests/fuzz/expect.h"
#include "ustring/ustring.h"

namespace {

constexpr char32_t kLargest = 0x10FFFF;

bool is_surrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDFFF;
}

std::optional<std::u32string> decode(const std::string& s) {
  static constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};  // by extra bytes
  std::u32string out;
  for (size_t i = 0; i < s.size();) {
    const auto lead = static_cast<unsigned char>(s[i++]);
    const int extra = lead < 0x80 ? 0 : lead < 0xC0 ? -1 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF8 ? 3 : -1;
    if (extra < 0) return std::nullopt;
    char32_t c = extra == 0 ? lead : lead & (0x3F >> extra);
    for (int n = 0; n < extra; ++n) {
      if (i == s.size() || (s[i] & 0xC0) != 0x80) return std::nullopt;
      c = c << 6 | (s[i++] & 0x3F);
    }
    if (c < kSmallest[extra] || c > kLargest || is_surrogate(c)) return std::nullopt;
    out.push_back(c);
  }
  return out;
}

std::optional<std::u32string> decode(const std::u16string& s) {
  std::u32string out;
  for (size_t i = 0; i < s.size(); ++i) {
    char32_t c = s[i];
    if (is_surrogate(c)) {
      if (c >= 0xDC00 || i + 1 == s.size() || s[i + 1] < 0xDC00 || s[i + 1] > 0xDFFF) return std::nullopt;
      c = 0x10000 + ((c - 0xD800) << 10) + (s[++i] - 0xDC00);
    }
    out.push_back(c);
  }
  return out;
}

std::u16string to_utf16(const std::u32string& s) {
  std::u16string out;
  for (char32_t c : s) {
    if (c >= 0x10000) out.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
    out.push_back(static_cast<char16_t>(c >= 0x10000 ? 0xDC00 + (c & 0x3FF) : c));
  }
  return out;
}

std::string to_utf8(const std::u32string& s) {
  std::string out;
  for (char32_t c : s) {
    const int extra = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    static constexpr int kMarks[] = {0, 0xC0, 0xE0, 0xF0};
    out.push_back(static_cast<char>(kMarks[extra] | c >> 6 * extra));
    for (int n = extra; n-- > 0;) out.push_back(static_cast<char>(0x80 | (c >> 6 * n & 0x3F)));
  }
  return out;
}

void expect_text(const ustring& s, const std::string& model) {
  EXPECT(s.length() == model.size() && std::string(s.c_str(), s.length()) == model);
  EXPECT(s.c_str()[s.length()] == '\0');
}

std::string prefix(std::string s) {
  return s.substr(0, s.find('\0'));
}

// The rules for the bounds are ustring's own: nothing in an empty text or from beyond its
// end, and backward searches begin at the last byte.
void check_searches(const ustring& s, const std::string& model, const std::string& any, size_t pos) {
  const std::string needle = prefix(any);
  const size_t none = std::string::npos;
  const bool inside = pos < model.size();
  const size_t back = inside ? pos : model.size() - 1;
  const bool some = !model.empty();
  EXPECT(s.find(any, pos) == (inside ? model.find(needle, pos) : none));
  EXPECT(s.find_first_of(any, pos) == (inside ? model.find_first_of(needle, pos) : none));
  EXPECT(s.find_first_not_of(any, pos) == (inside ? model.find_first_not_of(needle, pos) : none));
  EXPECT(s.rfind(any, pos) == (some ? model.rfind(needle, back) : none));
  EXPECT(s.find_last_of(any, pos) == (some ? model.find_last_of(needle, back) : none));
  EXPECT(s.find_last_not_of(any, pos) == (some ? model.find_last_not_of(needle, back) : none));
}

int sign(int n) {
  return (n > 0) - (n < 0);
}

void check_compare(const ustring& s, const std::string& model, const ustring& t, const std::string& other, size_t n) {
  EXPECT(sign(s.compare(t)) == sign(model.compare(other)));
  EXPECT(sign(s.compare(t, n)) == sign(model.substr(0, n).compare(other.substr(0, n))));
  EXPECT((s < t) == (model < other) && (s == t) == (model == other) && (s >= t) == (model >= other));
  std::string a = model, b = other;
  for (std::string* text : {&a, &b})
    for (char& c : *text)
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
  EXPECT(sign(ustring::compare(s, t, true)) == sign(a.compare(b)));
}

void trim_model(std::string& s, const std::string& set, bool left, bool right) {
  if (right) s.erase(s.find_last_not_of(set) + 1);
  if (left) s.erase(0, std::min(s.find_first_not_of(set), s.size()));
}

// Both conversions, from a fresh object: replace() may have left an old view in `s`.
void check_unicode(const std::string& model) {
  const ustring s(model);
  const auto text = decode(model);
  EXPECT(ustring::is_valid(s) == text.has_value());
  const std::u16string units = text ? to_utf16(*text) : std::u16string();
  const uchar16_t* const view = s.c_str_utf16();
  EXPECT(std::equal(units.begin(), units.end(), view) && view[units.size()] == 0);

  const ustring composed = s.normalize(ustring::NFC);
  const ustring decomposed = s.normalize(ustring::NFD);
  EXPECT(composed.empty() == (model.empty() || !text) && ustring::is_valid(composed));
  EXPECT(composed.normalize(ustring::NFC) == composed && decomposed.normalize(ustring::NFD) == decomposed);
  EXPECT(composed.normalize(ustring::NFD) == decomposed && decomposed.normalize(ustring::NFC) == composed);
  if (std::all_of(model.begin(), model.end(), [](char c) { return c >= 0; })) EXPECT(composed == s);
}

// Continues the text by UTF-16: all is lost when the whole is not well-formed then, and
// nothing happens when there was no view to continue.
void append_units(std::string& model, const std::u16string& units) {
  const auto text = decode(model);
  if (!text) return;
  const auto whole = decode(to_utf16(*text) + units.substr(0, units.find(u'\0')));
  model = whole ? to_utf8(*whole) : "";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider in(data, size);
  ustring s;
  std::string model;
  for (int step = 0; in.remaining_bytes() > 0 && step < 64; ++step) {
    const int change = in.ConsumeIntegralInRange(0, 14);
    const std::string text = in.ConsumeRandomLengthString(64);
    const size_t pos = in.ConsumeIntegralInRange<size_t>(0, 80);
    const size_t n = in.ConsumeBool() ? ustring::npos : in.ConsumeIntegralInRange<size_t>(0, 80);
    std::u16string units(text.size() / 2, u'\0');
    for (size_t i = 0; i < units.size(); ++i)
      units[i] = static_cast<char16_t>(static_cast<unsigned char>(text[2 * i]) << 8 | static_cast<unsigned char>(text[2 * i + 1]));
    const size_t at = std::min(pos, model.size());
    switch (change) {
      case 0: s = text; model = text; break;
      case 1: s += text; model += text; break;
      case 2: s.assign(text.c_str(), n); model = prefix(text).substr(0, n); break;
      case 3: s.append(text.c_str(), n); model += prefix(text).substr(0, n); break;
      case 4: s = s.substr(at, n); model = model.substr(at, n); break;
      case 5: s += s; model += model; break;
      case 6: s.assign(s, at, n); model.assign(std::string(model), at, n); break;
      case 7: s += s.c_str() + at; model += prefix(model.substr(at)); break;
      case 8: s.trim(text.c_str()); trim_model(model, prefix(text), true, true); break;
      case 9: s.ltrim(text.c_str()); trim_model(model, prefix(text), true, false); break;
      case 10: s.rtrim(text.c_str()); trim_model(model, prefix(text), false, true); break;
      case 11:
        s.replace(static_cast<char>(pos), 'x');
        std::replace(model.begin(), model.end(), static_cast<char>(pos), 'x');
        s = ustring(s);  // drops the view that shows the old text
        break;
      case 12: {
        s = units.c_str();
        const auto whole = decode(std::u16string(units.c_str()));
        model = whole ? to_utf8(*whole) : "";
        break;
      }
      case 13: s += units.c_str(); append_units(model, units); break;
      case 14: s = std::move(s) + static_cast<uchar16_t>(pos << 8 | 0x41); append_units(model, {static_cast<char16_t>(pos << 8 | 0x41)}); break;
    }
    if (model.size() > 4096) return 0;
    expect_text(s, model);
    check_searches(s, model, text, n == ustring::npos ? n : pos);
    check_compare(s, model, ustring(text), text, n);
    check_unicode(model);
    if (in.ConsumeBool()) (void)s.c_str_utf16();  // so that the next change finds a view
    expect_text(s, model);
  }
  return 0;
}
