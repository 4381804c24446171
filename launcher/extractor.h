#pragma once

#include "ustring/ustring.h"

struct archive;

// Unpacks a package archive, in any format and compression that libarchive reads, into a
// directory and reports the progress to the dialog through Notify_Adapter. Every operation
// opens and frees its own archive handles.
//
// Worker thread. Failures are logged under "extractor_debug".
class Extractor {
 public:
  // The directory that entries are written to; made when it is missing.
  void SetTarget(const ustring& path) { target = path; }

  // The archive file.
  void SetSource(const ustring& path) { source = path; }

  // Writes every entry of the source below the target, in the order of the archive. An
  // existing file in an entry's place is unlinked and replaced; an entry whose name holds
  // ".." fails. Reports (total, done) once an entry. The last entry is taken for the
  // archive's mark of completeness: everything before it is on the disk when it is written.
  // Returns 0, or -1 for an empty source or target, an archive that holds no entry or
  // cannot be read to its end without a warning, an entry that cannot be written or is a hard
  // link to a file that is not in the target, a disk that cannot be brought up to date before
  // the last one, and where libarchive is not to be had. What was written until then stays on disk;
  // removing it is the caller's part.
  [[nodiscard]] int Extract();

  // The number of entries up to the end of the archive or the first that cannot be read;
  // -1 when the file cannot be opened, when source or target is empty, and without
  // libarchive.
  [[nodiscard]] int Count();

  // Prints the name of every entry on standard output, one a line. 0, or -1 when the file
  // cannot be opened, and without libarchive. An empty source means standard input.
  [[nodiscard]] int List();

  // Copies the data of the reader's current entry to the writer's. 0 at the end of the
  // data, -1 on failure. Both handles are borrowed.
  [[nodiscard]] int copy_data(archive* reader, archive* writer);

 private:
  int ExtractEntries(archive* reader, archive* writer, int total);

  ustring target;
  ustring source;
};
