// Floor of unpacking: counts the entries of an archive and then unpacks it. It puts the
// directory in front of each name: a launcher cannot change the working directory instead,
// which all of its threads share.
//
//   floor_extract ARCHIVE DIR
//
// Prints the time of counting, and the time of both on the last line.

#include <archive.h>
#include <archive_entry.h>

#include <string>

#include "bench/stopwatch.h"

namespace {

archive* open_archive(const char* path) {
  archive* const reader = archive_read_new();
  (void)archive_read_support_filter_all(reader);  // warns where a helper program would be used
  (void)archive_read_support_format_all(reader);
  return archive_read_open_filename(reader, path, 10240) == ARCHIVE_OK ? reader : nullptr;
}

int count(const char* path) {
  archive* const reader = open_archive(path);
  archive_entry* entry;
  int entries = 0;
  while (reader && archive_read_next_header(reader, &entry) == ARCHIVE_OK) ++entries;
  (void)archive_read_free(reader);
  return entries;
}

// Writes the reader's next entry below `folder`.
bool extract_entry(archive* reader, archive* writer, const std::string& folder) {
  archive_entry* entry;
  if (archive_read_next_header(reader, &entry) != ARCHIVE_OK) return false;
  archive_entry_set_pathname(entry, (folder + "/" + archive_entry_pathname(entry)).c_str());
  return archive_read_extract2(reader, entry, writer) == ARCHIVE_OK &&
         archive_write_finish_entry(writer) == ARCHIVE_OK;
}

int extract(const char* path, const std::string& folder) {
  archive* const reader = open_archive(path);
  archive* const writer = archive_write_disk_new();
  (void)archive_write_disk_set_options(writer,
                                       ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT);
  int entries = 0;
  while (reader && extract_entry(reader, writer, folder)) ++entries;
  (void)archive_write_free(writer);
  (void)archive_read_free(reader);
  return entries;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const bench::Stopwatch watch;
  const int entries = count(argv[1]);
  const double counted = watch.nanoseconds();
  if (entries == 0 || extract(argv[1], argv[2]) != entries) return 1;
  const double unpacked = watch.nanoseconds();
  bench::print_result(counted);
  bench::print_result(unpacked);
  return 0;
}
