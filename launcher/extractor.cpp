#include "launcher/extractor.h"

#include <QDir>

#include <archive.h>
#include <archive_entry.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "launcher/adapter.h"
#include "launcher/early-sync.h"
#include "launcher/texts/strtab.h"
#include "lib/file-op.h"
#include "lib/log.h"

namespace {

const ustring kComponent("extractor_debug");

constexpr size_t kBlockSize = 10240;  // bytes read from the archive file at once

// Neither owner, permissions nor times are asked for: the copy is the user's own.
constexpr int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;
static_assert(kWriteOptions == 0x2210, "the flags that packages are made for");

struct ReaderCloser {
  // What closing a reader could report, reading has reported before.
  void operator()(archive* reader) const { (void)archive_read_free(reader); }
};
using Reader = std::unique_ptr<archive, ReaderCloser>;

struct WriterCloser {
  // Every entry has been finished by then; what is left are the modes of directories that
  // were not writable, and those are no content.
  void operator()(archive* writer) const { (void)archive_write_free(writer); }
};
using Writer = std::unique_ptr<archive, WriterCloser>;

// A reader's own words for what failed.
const char* error_text(archive* reader) {
  const char* const text = archive_error_string(reader);
  return text ? text : "";
}

// What failed in writing, with the system's reason behind it where there is one: a full disk is
// not to be told from a quota otherwise. Where only the reading failed, the reader's words.
ustring write_error_text(archive* writer, archive* reader = nullptr) {
  const char* const text = archive_error_string(writer);
  if (!text) return reader ? error_text(reader) : "";
  const int code = archive_errno(writer);
  // The library's own codes are -1 and these two, which would say nothing about the system.
  const bool has_reason = code > 0 && code != EILSEQ && code != EINVAL;
  return has_reason ? ustring(text) + " (" + strerror(code) + ")" : ustring(text);
}

// A reader for every format and compression, null when there is no memory or no library.
Reader make_reader() {
  Reader reader(archive_read_new());
  if (reader) {
    // Both enable what the library was built with and have nothing to report.
    (void)archive_read_support_filter_all(reader.get());
    (void)archive_read_support_format_all(reader.get());
  }
  return reader;
}

int open_source(archive* reader, const ustring& source) {
  return archive_read_open_filename(reader, source.c_str(), kBlockSize);
}

// A reader on the first entry of `source`; null, and logged, when there is none to be had.
Reader open_for_listing(const ustring& source) {
  Reader reader = make_reader();
  if (!reader) {
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] extractor(%d): Allocate archive failed\n",
                   __LINE__);
    return nullptr;
  }
  if (open_source(reader.get(), source) != ARCHIVE_OK) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] extractor(%d): archive_read_open_filename failed: '%s'\n", __LINE__,
                   error_text(reader.get()));
    return nullptr;
  }
  return reader;
}

// Whether `entry` would put something else in the place of the target directory: its name has
// no component but "." and it is no directory.
bool takes_target(archive_entry* entry, const char* name) {
  for (const char* p = name; *p; ++p) {
    const bool dot = *p == '.' && (p == name || p[-1] == '/') && (p[1] == '/' || p[1] == '\0');
    if (*p != '/' && !dot) return false;
  }
  return archive_entry_filetype(entry) != AE_IFDIR || archive_entry_hardlink(entry);
}

// Whether the file that a hard link is made to lies in the directory `target` and is reached
// without a symbolic link, which the library would remove. The stored name counts from the
// working directory.
bool links_into(const ustring& target, const char* name) {
  const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(QString::fromUtf8(name)));
  const ustring parent = path.left(path.lastIndexOf('/')).toUtf8().constData();
  ustring resolved = parent;
  ustring inside = target;
  return FSGetRealPath(resolved) == 0 && FSGetRealPath(inside) == 0 && resolved == parent &&
         strncmp((parent + "/").c_str(), (inside + "/").c_str(), inside.length() + 1) == 0;
}

// Whether `entry` may be unpacked into `target`; logged when it may not.
bool is_welcome(archive_entry* entry, const ustring& target) {
  const char* const name = archive_entry_pathname(entry);
  if (!name || takes_target(entry, name)) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] extractor(%d): entry '%s' would replace the target\n", __LINE__,
                   name ? name : "");
    return false;
  }
  // The user's own files must neither get into the copy nor be written through it.
  const char* const link = archive_entry_hardlink(entry);
  if (link && !links_into(target, link)) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] extractor(%d): entry '%s' is a hard link to '%s', not inside '%s'\n",
                   __LINE__, name, link, target.c_str());
    return false;
  }
  return true;
}

}  // namespace

int Extractor::Extract() {
  if (source.empty() || target.empty()) {
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] extractor(%d): Invalid Argument\n",
                   __LINE__);
    return -1;
  }
  Logger::LogMsg(Logger::L_DEBUG, kComponent,
                 "[DEBUG] extractor(%d): decompress from '%s' to '%s'\n", __LINE__, source.c_str(),
                 target.c_str());
  Notify_Adapter::GetInstance().UpdateDialogText(
      StrTable::LoadStr(StrTable::desc_qlmr_env_preparing));

  const int total = Count();
  if (total < 1) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] extractor(%d): Failed to calculate total file numbers, ret: %d\n",
                   __LINE__, total);
    return -1;
  }

  const Reader reader = make_reader();
  if (!reader) {
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] extractor(%d): Allocate extractor failed\n",
                   __LINE__);
    return -1;
  }
  const Writer writer(archive_write_disk_new());
  if (!writer) {
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] extractor(%d): Allocate extractor failed\n",
                   __LINE__);
    return -1;
  }
  // Stores the flags and has nothing to report.
  (void)archive_write_disk_set_options(writer.get(), kWriteOptions);

  if (open_source(reader.get(), source) != ARCHIVE_OK) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] extractor(%d): Failed to read file '%s' ('%s')\n", __LINE__,
                   source.c_str(), error_text(reader.get()));
    return -1;
  }
  return ExtractEntries(reader.get(), writer.get(), total);
}

int Extractor::ExtractEntries(archive* reader, archive* writer, int total) {
  EarlySync early_sync;
  for (int done = 0;;) {
    archive_entry* entry = nullptr;
    const int status = archive_read_next_header(reader, &entry);
    if (status == ARCHIVE_EOF) return 0;
    if (status != ARCHIVE_OK) {
      Logger::LogMsg(Logger::L_ERR, kComponent,
                     "[ERROR] extractor(%d): archive_read_next_header failed: '%s'\n", __LINE__,
                     error_text(reader));
      return -1;
    }

    if (!is_welcome(entry, target)) return -1;
    // Without the barrier a loss of power could leave the last entry on the disk and an
    // earlier one not, and the copy would pass for complete. A package that was replaced
    // since the count may have more entries than were counted: then any may be the last.
    if (done > 0 && done + 1 >= total && FSSync(target) != 0) return -1;

    // Only the name is put below the target: a hard link's target stays as stored.
    const ustring path = target + "/" + archive_entry_pathname(entry);
    archive_entry_set_pathname(entry, path.c_str());
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
      Logger::LogMsg(Logger::L_ERR, kComponent,
                     "[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", __LINE__,
                     write_error_text(writer, reader).c_str());
      return -1;
    }
    ++done;
    Notify_Adapter::GetInstance().UpdateProgress(total, done);
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
      Logger::LogMsg(Logger::L_ERR, kComponent,
                     "[ERROR] extractor(%d): archive_write_finish_entry failed: '%s'\n", __LINE__,
                     write_error_text(writer).c_str());
      return -1;
    }
    early_sync.Add(path, archive_entry_size(entry));
  }
}

int Extractor::Count() {
  if (target.empty() || source.empty()) {
    // Meant: "argument" in lower case here and in List.
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] extractor(%d): Invalid argument\n",
                   __LINE__);
    return -1;
  }
  const Reader reader = open_for_listing(source);
  if (!reader) return -1;

  int count = 0;
  archive_entry* entry = nullptr;
  while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
    ++count;
    // Data that cannot be skipped shows in the next header.
    (void)archive_read_data_skip(reader.get());
  }
  return count;
}

int Extractor::List() {
  if (target.empty() || source.empty()) {
    // Meant: the message is no reason to stop; opening the archive decides.
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] extractor(%d): Invalid argument\n",
                   __LINE__);
  }
  const Reader reader = open_for_listing(source);
  if (!reader) return -1;

  archive_entry* entry = nullptr;
  while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
    const char* const name = archive_entry_pathname(entry);
    (void)printf("%s\n", name ? name : "");      // a listing that cannot be printed is no failure
    (void)archive_read_data_skip(reader.get());  // shows in the next header
  }
  (void)archive_read_close(reader.get());  // as ReaderCloser
  return 0;
}

int Extractor::copy_data(archive* reader, archive* writer) {
  if (!reader || !writer) {
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] extractor(%d): Invalid Argument\n",
                   __LINE__);
    return -1;
  }
  for (;;) {
    const void* buffer = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    const int status = archive_read_data_block(reader, &buffer, &size, &offset);
    if (status == ARCHIVE_EOF) return 0;
    if (status != ARCHIVE_OK) {
      Logger::LogMsg(Logger::L_ERR, kComponent,
                     "[ERROR] extractor(%d): archive_read_data_block failed: '%s'\n", __LINE__,
                     error_text(reader));
      return -1;
    }
    if (archive_write_data_block(writer, buffer, size, offset) != ARCHIVE_OK) {
      Logger::LogMsg(Logger::L_ERR, kComponent,
                     "[ERROR] extractor(%d): archive_write_data_block failed: '%s'\n", __LINE__,
                     write_error_text(writer).c_str());
      return -1;
    }
  }
}
