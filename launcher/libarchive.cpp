// libarchive, loaded when the first archive is opened.
//
// Linked, it would cost every start 1.5 ms, with its compressions and its cryptography, and most
// starts have nothing to extract. The functions below have the names and types of its own and pass
// each call on, so that the extractor is written against the library as everybody knows it. Where
// the library, or one of them, is not to be had, no handle can be made, and nothing else is called
// without one.

#include <archive.h>
#include <archive_entry.h>
#include <dlfcn.h>

#include "lib/log.h"

namespace {

const ustring kComponent("extractor_debug");

// A function of the library.
struct Symbol {
  explicit Symbol(const char* function) : name(function), next(first) { first = this; }

  static Symbol* first;
  const char* const name;
  Symbol* const next;
  void* address = nullptr;
};
Symbol* Symbol::first = nullptr;

// Finds every function before the first is called; logs what the loader says when it cannot.
// The library stays loaded: its handles are used until the process ends.
bool load() {
  void* const library = dlopen(LIBARCHIVE_SONAME, RTLD_NOW | RTLD_LOCAL);
  bool complete = library;
  for (Symbol* symbol = Symbol::first; complete && symbol; symbol = symbol->next) {
    symbol->address = dlsym(library, symbol->name);
    complete = symbol->address;
  }
  if (!complete) {
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] libarchive(%d): %s\n", __LINE__, dlerror());
  }
  return complete;
}

bool is_loaded() {
  static const bool loaded = load();
  return loaded;
}

}  // namespace

// Defines `name` with its own type as a call of the library's function. FORWARD_NEW is for
// the functions that make a handle: they return null where there is no library.
#define FORWARD(result, name, parameters, arguments)                           \
  static Symbol symbol_##name(#name);                                          \
  result name parameters {                                                     \
    return reinterpret_cast<decltype(&name)>(symbol_##name.address) arguments; \
  }
#define FORWARD_NEW(name)                                                                      \
  static Symbol symbol_##name(#name);                                                          \
  archive* name() {                                                                            \
    return is_loaded() ? reinterpret_cast<decltype(&name)>(symbol_##name.address)() : nullptr; \
  }

extern "C" {

FORWARD_NEW(archive_read_new)
FORWARD_NEW(archive_write_disk_new)

FORWARD(int, archive_read_support_filter_all, (archive * a), (a))
FORWARD(int, archive_read_support_format_all, (archive * a), (a))
FORWARD(int, archive_read_open_filename, (archive * a, const char* name, size_t block),
        (a, name, block))
FORWARD(int, archive_read_next_header, (archive * a, archive_entry** entry), (a, entry))
FORWARD(int, archive_read_data_skip, (archive * a), (a))
FORWARD(int, archive_read_data_block,
        (archive * a, const void** buffer, size_t* size, la_int64_t* offset),
        (a, buffer, size, offset))
FORWARD(int, archive_read_extract2, (archive * a, archive_entry* entry, archive* to),
        (a, entry, to))
FORWARD(int, archive_read_close, (archive * a), (a))
FORWARD(int, archive_read_free, (archive * a), (a))

FORWARD(int, archive_write_disk_set_options, (archive * a, int flags), (a, flags))
FORWARD(la_ssize_t, archive_write_data_block,
        (archive * a, const void* buffer, size_t size, la_int64_t offset),
        (a, buffer, size, offset))
FORWARD(int, archive_write_finish_entry, (archive * a), (a))
FORWARD(int, archive_write_free, (archive * a), (a))

FORWARD(int, archive_errno, (archive * a), (a))
FORWARD(const char*, archive_error_string, (archive * a), (a))
FORWARD(const char*, archive_entry_hardlink, (archive_entry * entry), (entry))
FORWARD(__LA_MODE_T, archive_entry_filetype, (archive_entry * entry), (entry))
FORWARD(const char*, archive_entry_pathname, (archive_entry * entry), (entry))
FORWARD(la_int64_t, archive_entry_size, (archive_entry * entry), (entry))
FORWARD(void, archive_entry_set_pathname, (archive_entry * entry, const char* name), (entry, name))
}
