// Floor of the texts: the standard string, and ICU called directly.
//
//   floor_text path|map|nfc|utf16

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <string>

#include "bench/text_jobs.h"

namespace {

// As ICU's documentation shows it: asked for the length first, so that no buffer is larger than
// its content.

std::u16string to_utf16(const std::string& text) {
  const auto text_length = static_cast<int32_t>(text.size());
  int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, &length, text.data(), text_length, &error);
  std::u16string units(static_cast<size_t>(length), u'\0');
  error = U_ZERO_ERROR;
  u_strFromUTF8(units.data(), length, nullptr, text.data(), text_length, &error);
  return units;
}

std::string to_utf8(const std::u16string& units) {
  const auto units_length = static_cast<int32_t>(units.size());
  int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strToUTF8(nullptr, 0, &length, units.data(), units_length, &error);
  std::string text(static_cast<size_t>(length), '\0');
  error = U_ZERO_ERROR;
  u_strToUTF8(text.data(), length, nullptr, units.data(), units_length, &error);
  return text;
}

std::string compose(const std::string& text) {
  const std::u16string units = to_utf16(text);
  const auto units_length = static_cast<int32_t>(units.size());
  UErrorCode error = U_ZERO_ERROR;
  const UNormalizer2* const normalizer = unorm2_getNFCInstance(&error);
  const int32_t length =
      unorm2_normalize(normalizer, units.data(), units_length, nullptr, 0, &error);
  std::u16string composed(static_cast<size_t>(length), u'\0');
  error = U_ZERO_ERROR;
  (void)unorm2_normalize(normalizer, units.data(), units_length, composed.data(), length, &error);
  return to_utf8(composed);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string text = bench::megabyte();
  return bench::run_text_job<std::string>(
      argc, argv, [] {}, [&] { return compose(text); }, [&] { return to_utf16(text); });
}
