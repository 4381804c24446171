#pragma once

#include <map>

#include "ustring/ustring.h"

// Reader of small line-oriented key=value files: the client's pid file and the
// logger's level file.
//
//   # a comment
//   pid = 4321
//   name = "two words"   # a quoted value may hold blanks, "#" and the other quote
//
// Keys consist of letters, digits, "-", "_" and "."; they are case-sensitive and
// may be empty. Values hold no control bytes; bytes of 128 and above pass, so
// UTF-8 does. There are no escape sequences. The grammar is strict: one malformed
// line rejects the whole file.
//
// Not thread-safe; each user reads into an object of its own.
class Config {
 public:
  // What parse() makes of one line.
  enum { OK = 0, EMPTY = 1, INVALID = 2 };

  using Store = std::map<ustring, ustring>;

  Config() = default;

  // As Config() followed by read(path); a file that cannot be read leaves an empty
  // store, which is all that this constructor can say about it.
  explicit Config(const ustring& path);

  // Reads the file at `path` into the store; later lines overwrite earlier ones
  // of the same key, and what the store held before stays unless overwritten.
  // Returns 0 on success.
  // Returns -1 with the store untouched when `path` is empty, cannot be read, is no
  // regular file (which is not waited for either) or is longer than 1 MiB, and -1
  // with the store emptied when a line is malformed.
  // A line longer than 8191 bytes is parsed in pieces of that size.
  [[nodiscard]] int read(const ustring& path);

  // Replaces the file at `path` by the store, one line a key in key order, in a form
  // that read() accepts. Returns 0 on success, -1 on failure: with the file untouched
  // when a key or a value cannot be expressed in the grammar, possibly cut short when
  // writing fails.
  [[nodiscard]] int write(const ustring& path) const;

  // The value of `key`; an absent key is inserted with an empty value, so a
  // look-up never fails. The reference lives until the store is cleared.
  ustring& operator[](const ustring& key) { return store[key]; }

  // The leading decimal number of `key`'s value, which must fit an int; 0 without one.
  // Inserts nothing.
  int get_int(const ustring& key) const;

  // Whether `key`'s value is "1", "yes" or "true"; inserts nothing.
  bool get_bool(const ustring& key) const;

  // Forgets `key`.
  void unset(const ustring& key) { store.erase(key); }

  // Parses the zero-terminated line in `buf`. `n`, its length, is not consulted:
  // the terminator ends the line. On OK writes terminators into `buf` behind the
  // key and the value and sets `key` and `value`; otherwise leaves them alone.
  [[nodiscard]] int parse(char* buf, int n, ustring& key, ustring& value);

  static bool is_key_char(unsigned char c);
  static bool is_value_char(unsigned char c);
  static bool is_space(unsigned char c);

  Store::iterator begin() { return store.begin(); }
  Store::iterator end() { return store.end(); }
  Store::const_iterator begin() const { return store.begin(); }
  Store::const_iterator end() const { return store.end(); }

 private:
  Store store;
};
