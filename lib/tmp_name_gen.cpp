#include "lib/tmp_name_gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace {

constexpr size_t kStateSize = 256;
constexpr size_t kRandomBytes = 6;
constexpr size_t kNameLength = 8;
constexpr char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// Encodes three bytes as four characters, grouping bits as base64 does.
void encode(const unsigned char* in, char* out) {
  out[0] = kAlphabet[in[0] >> 2];
  out[1] = kAlphabet[(in[0] % 4) * 16 + (in[1] >> 4)];
  out[2] = kAlphabet[(in[1] % 16) * 4 + (in[2] >> 6)];
  out[3] = kAlphabet[in[2] % 64];
}

}  // namespace

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

TmpNameGen& TmpNameGen::getInstance() {
  static TmpNameGen instance;
  return instance;
}

TmpNameGen::TmpNameGen() {
  get_key(m_key, sizeof m_key);
  rc4_init(m_s_box, m_key);
}

void TmpNameGen::get_key(unsigned char* key, size_t n) {
  timeval now = {};
  // Cannot fail with a valid pointer; a zero time would still be a key.
  (void)gettimeofday(&now, nullptr);
  // Two numbers fit; a failed format leaves an empty key, which rc4_init replaces.
  (void)snprintf(reinterpret_cast<char*>(key), n, "%lu-%lu", static_cast<unsigned long>(now.tv_sec),
                 static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* s_box, unsigned char* key) {
  for (size_t i = 0; i < kStateSize; ++i) s_box[i] = static_cast<unsigned char>(i);

  if (key[0] == 0) {
    srand(static_cast<unsigned>(time(nullptr)));
    for (size_t i = 0; i < kStateSize; ++i) key[i] = static_cast<unsigned char>(rand());
  }

  unsigned char j = 0;
  for (size_t i = 0; i < kStateSize; ++i) {
    j = static_cast<unsigned char>(j + s_box[i] + key[i]);
    std::swap(s_box[i], s_box[j]);
  }
}

void TmpNameGen::rc4_randomize(unsigned char* s_box, unsigned char* out, size_t length) {
  // Both counters start anew with every call; only the permutation goes on. That is
  // meant: a name depends on the names before it through the state alone.
  unsigned char i = 0;
  unsigned char j = 0;
  for (size_t k = 0; k < length; ++k) {
    ++i;
    j = static_cast<unsigned char>(j + s_box[i]);
    std::swap(s_box[i], s_box[j]);
    out[k] = s_box[static_cast<unsigned char>(s_box[i] + s_box[j])];
  }
}

ustring TmpNameGen::getTmpName() {
  char name[kNameLength + 1] = {};
  // A statically initialised mutex that no thread locks twice: neither call can fail.
  (void)pthread_mutex_lock(&m_lock);
  rc4_randomize(m_s_box, m_buffer, kRandomBytes);
  encode(m_buffer, name);
  encode(m_buffer + 3, name + 4);
  (void)pthread_mutex_unlock(&m_lock);
  return name;
}

ustring TmpNameGen::getTmpPath(const ustring& prefix) { return prefix + "/" + getTmpName(); }
