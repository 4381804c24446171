// ustring: a sequence of changes and searches, each compared with std::string, and the
// conversions there and back.

#include <endian.h>
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "tests/fuzz/expect.h"
#include "ustring/ustring.h"

namespace {

std::string prefix(const std::string& s) { return s.c_str(); }

int sign(int n) { return (n > 0) - (n < 0); }

bool well_formed(const std::u16string& s) {
  bool open = false;  // behind the first half of a pair
  for (char16_t c : s) {
    if (open != (c >= 0xDC00 && c <= 0xDFFF)) return false;
    open = c >= 0xD800 && c <= 0xDBFF;
  }
  return !open;
}

struct Search {
  size_t (ustring::*search)(const std::string&, size_t) const;
  size_t (std::string::*model)(const std::string&, size_t) const;
  bool forward;
};
constexpr Search kSearches[] = {
    {&ustring::find, &std::string::find, true},
    {&ustring::find_first_of, &std::string::find_first_of, true},
    {&ustring::find_first_not_of, &std::string::find_first_not_of, true},
    {&ustring::rfind, &std::string::rfind, false},
    {&ustring::find_last_of, &std::string::find_last_of, false},
    {&ustring::find_last_not_of, &std::string::find_last_not_of, false},
};

// The rules for the bounds are ustring's own: nothing in an empty text or from beyond its
// end, and backward searches begin at the last byte.
void check_bytes(const ustring& s, const std::string& model, const std::string& other, size_t n) {
  EXPECT(std::string(s.c_str(), s.length()) == model && s.c_str()[s.length()] == '\0');
  for (const Search& search : kSearches) {
    const bool some = search.forward ? n < model.size() : !model.empty();
    const size_t begin = std::min(n, model.size() - 1);
    const size_t found = some ? (model.*search.model)(prefix(other), begin) : ustring::npos;
    EXPECT((s.*search.search)(other, n) == found);
  }
  EXPECT(sign(s.compare(other)) == sign(model.compare(other)));
  EXPECT(sign(s.compare(other, n)) == sign(model.substr(0, n).compare(other.substr(0, n))));
  const int caseless = ustring::compare(s.c_str(), other.c_str(), true);
  EXPECT(sign(caseless) == sign(strcasecmp(s.c_str(), other.c_str())));
  EXPECT((s < other) == (model < other) && (s == other) == (model == other));
}

// From a fresh object: replace() may have left an old view in the other.
void check_unicode(const std::string& model) {
  const ustring s(model);
  const bool valid = ustring::is_valid(s);
  EXPECT(ustring(s.c_str_utf16()) == (valid ? model.c_str() : ""));
  const ustring composed = s.normalize(ustring::NFC);
  const ustring decomposed = s.normalize(ustring::NFD);
  EXPECT(composed.empty() == (model.empty() || !valid) && ustring::is_valid(composed));
  EXPECT(composed.normalize(ustring::NFC) == composed);
  EXPECT(composed.normalize(ustring::NFD) == decomposed);
  EXPECT(decomposed.normalize(ustring::NFC) == composed);
}

// What ustring shares with std::string.
template <typename Text>
void change(Text& s, int kind, const std::string& text, size_t at, size_t n) {
  // A count beyond the terminator is for ustring alone.
  const size_t count = std::is_same_v<Text, ustring> ? n : strnlen(text.c_str(), n);
  switch (kind) {
    case 0: s = text; break;
    case 1: s += text; break;
    case 2: s.assign(text.c_str(), count); break;
    case 3: s.append(text.c_str(), count); break;
    case 4: s = s.substr(at, n); break;
    case 5: s += s; break;
    case 6: s.assign(s, at, n); break;
    case 7: s += s.c_str() + at; break;
  }
}

void trim(std::string& s, const std::string& set, bool left, bool right) {
  if (right) s.erase(s.find_last_not_of(set) + 1);
  if (left) s.erase(0, s.find_first_not_of(set));
}

// Sets or continues the view: all is lost when the whole is not well-formed then, and nothing
// happens when there was no view to continue. Zero bytes would hide the end of the view.
void change_units(ustring& s, std::string& model, int kind, const std::u16string& units) {
  if (model.find('\0') != model.npos) s = prefix(model);
  const ustring old(s.c_str());
  const bool stuck = kind != 12 && !ustring::is_valid(old);
  const std::u16string whole = (kind == 12 ? u"" : old.c_str_utf16()) + units;
  if (kind == 12) s = units.c_str();
  if (kind == 13) s += units.c_str();
  if (kind == 14) s = std::move(s) + units.c_str();
  model = s.c_str();
  const std::u16string expected = stuck || !well_formed(whole) ? u"" : whole;
  EXPECT(ustring(model).c_str_utf16() == expected && (!stuck || s == old));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider in(data, size);
  ustring s;
  std::string model;
  for (int step = 0; in.remaining_bytes() > 0 && step < 64 && model.size() <= 4096; ++step) {
    const int kind = in.ConsumeIntegralInRange(0, 14);
    const std::string text = in.ConsumeRandomLengthString(64);
    const size_t pos = in.ConsumeIntegralInRange<size_t>(0, 80);
    const size_t n = in.ConsumeBool() ? ustring::npos : in.ConsumeIntegralInRange<size_t>(0, 80);
    if (kind <= 7) {
      const size_t at = std::min(pos, model.size());
      change(s, kind, text, at, n);
      change(model, kind, text, at, n);
    } else if (kind <= 10) {
      kind == 8 ? s.trim(text.c_str()) : kind == 9 ? s.ltrim(text.c_str()) : s.rtrim(text.c_str());
      trim(model, prefix(text), kind != 10, kind != 9);
    } else if (kind == 11) {
      s.replace(static_cast<char>(pos), 'x');
      std::replace(model.begin(), model.end(), static_cast<char>(pos), 'x');
      s = ustring(s);  // drops the view that shows the old text
    } else {
      std::u16string units(text.size() / 2, u'\0');
      memcpy(units.data(), text.data(), units.size() * 2);
      for (char16_t& c : units) c = htobe16(c);
      change_units(s, model, kind, units.c_str());
    }
    check_bytes(s, model, text, n == ustring::npos ? n : pos);
    check_unicode(model);
    if (in.ConsumeBool()) (void)s.c_str_utf16();  // so that the next change finds a view
  }
  return 0;
}
