#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <cstdint>
#include <ctime>

#include "ustring/ustring.h"

// Files and directories by path. Paths are UTF-8 and handed to the system as they are.
//
// Every function returns a status; none throws on its own. Unless a function says
// otherwise, 0 is success and
//   -1    a bad argument, or the first system call failed
//   -2    a stat failed (FSStat, FSRename), a creation failed (FSMKDir), the disk is
//         full (FSCopy), or a walk failed (TraverseDir)
//   -3    a rename, copy or removal failed on the way (FSRename, FSRemove)
//   -100  a name is too long (FSRename)
// errno is left as the failing call set it. Failures that a message is given for are
// logged under "file_op_debug"; the others show in the status alone.
//
// Any thread may call; the exceptions are FSInitialize and FSMKDirP with a mode.

typedef enum _FILE_TYPE_tag {
  FT_ERR = 0,
  FT_FILE = 1,
  FT_DIR = 2,
  FT_SLINK = 3,
  FT_HLINK = 4,  // never produced: a hard link is a file
  FT_DEV = 5,
  FT_FIFO = 6,
  FT_SOCK = 7,
} FILE_TYPE;

// What GetFileInfo knows of an object. Links are described, not followed.
typedef struct _FILE_INFO_tag {
  ustring path;
  ustring name;  // the caller's; not filled by GetFileInfo
  FILE_TYPE type = FT_ERR;
  uint32_t mtime = 0;  // seconds since the epoch
  uint64_t size = 0;   // bytes
  bool isExist = false;
  uint32_t uid = 0;
  uint32_t gid = 0;
  uint32_t mode = 0;  // type and permission bits
} FILE_INFO;

// Ownership and mode take no part: two records are equal when they describe the same
// content at the same place.
bool operator==(const FILE_INFO& a, const FILE_INFO& b);
bool operator!=(const FILE_INFO& a, const FILE_INFO& b);

// An open directory; closes itself.
typedef struct _DIR_HANDLE_tag {
  ustring path;
  int flag = 0;       // bit 0: FSReadDir fills mtime and size of each entry
  DIR* dp = nullptr;  // owned; null when closed

  _DIR_HANDLE_tag() = default;
  ~_DIR_HANDLE_tag();
  _DIR_HANDLE_tag(const _DIR_HANDLE_tag&) = delete;
  _DIR_HANDLE_tag& operator=(const _DIR_HANDLE_tag&) = delete;
} DIR_HANDLE;

typedef struct _DIR_ENTRY_tag {
  ustring name;             // without the directory
  FILE_TYPE type = FT_ERR;  // FT_ERR also where the file system does not tell
  uint32_t mtime = 0;       // seconds since the epoch; 0 unless asked for
  uint64_t size = 0;        // bytes; 0 unless asked for
} DIR_ENTRY;

// Called with the path of an object and the caller's pointer; non-zero ends the walk.
typedef int (*FN_ACT_TRAVERSE_DIR)(const ustring& path, void* pPriv);

// Sets the owner and group given to new directories; -1 leaves one unset. To be called
// once, before any other thread uses this file.
void FSInitialize(uid_t u, gid_t g);

// Gives `path` to the owner and group of FSInitialize; nothing happens while both are
// unset. Failures are ignored: only root may give files away.
void FSChown(const ustring& path);

// Reserved for preparing `path`; does nothing and returns 0.
int FSInit(const ustring& path);

// Whether `path` exists, links followed; false for an empty path. `do_case_check` has
// no effect: names are compared as the file system compares them.
bool IsFileExist(const ustring& path, bool do_case_check);

// Describes `path`. A missing object is a success: isExist false, type FT_FILE, size 0,
// mtime the current time. -1 with `info` untouched on any other failure.
[[nodiscard]] int GetFileInfo(const ustring& path, FILE_INFO& info);

// GetFileInfo for callers that may hold an empty path (-1); -2 when GetFileInfo fails.
[[nodiscard]] int FSStat(const ustring& path, FILE_INFO& info, bool do_case_check);

// Copies the content of one file into `dst`, created or truncated, and has it on the
// disk before returning; neither times nor permissions follow. With `isDelOrigin`
// removes `src` once the copy is complete. -1 on failure, -2 when the disk is full; `src`
// is then in place, and `dst`, once it could be opened, as far as it was written. When both names
// lead to one file it stays as it is: a success, but -1 (EEXIST) with `isDelOrigin`, for its name
// `src` is not removed.
[[nodiscard]] int FSCopy(const ustring& src, const ustring& dst, bool isDelOrigin);

// Creates a directory, with all missing parents when asked; an existing one is a
// success. -1 when something else has the name (a link to a directory too), -2 when it
// cannot be created; parents made until then stay.
[[nodiscard]] int FSMKDir(const ustring& path, bool isCreateParent);

// Creates every missing directory along `path`. `mode` (mode_t)-1 means 0777 under the
// process umask; any other mode is applied exactly, for which the umask is cleared
// meanwhile: only one such call at a time. With `blForceCreate` whatever stands in the
// way and is no directory is removed.
// -1 on failure; errno is EEXIST when the last component exists as something else,
// ENOTDIR when an inner one does. Directories made until then stay. A non-null `endptr`
// receives the place in `path` where the walk stopped: the end of the component that
// failed, or the last character on success.
[[nodiscard]] int FSMKDirP(const ustring& path, char** endptr, bool blForceCreate, mode_t mode);

// Moves a file or a tree. Across file systems files are copied, then removed, one by
// one; a failure on the way (-3) leaves every file on one side or the other. Links,
// devices, FIFOs and sockets are not moved across file systems, and that counts as
// success; a directory that holds one stays with it (-3), and so does what both names lead to
// by way of a second mount. -2 when `from` does not exist.
[[nodiscard]] int FSRename(const ustring& from, const ustring& to, bool do_case_check);

// FSRename for what must stay in one piece: where only its files could be moved, one by one,
// nothing is moved, and that is -3.
[[nodiscard]] int FSRenameWhole(const ustring& from, const ustring& to);

// Removes a file or a whole tree, links not followed. A missing object is a success,
// and so is a directory that cannot be opened, which stays. The first failure ends the
// removal and leaves the rest. `allowundo` has no effect: nothing can be undone.
[[nodiscard]] int FSRemove(const ustring& path, bool allowundo);

// Makes the directories from `path` down readable, writable and searchable for their owner, for
// a removal that fails without. Links are not followed, other files not touched. Best effort:
// what it cannot change the removal will report. Walks the whole tree.
void FSMakeRemovable(const ustring& path);

// Has everything written to the file system of `path` until now, names included, on the
// disk when it returns 0. -1 (logged) when that cannot be said. Where the system cannot sync one
// file system, it syncs all.
[[nodiscard]] int FSSync(const ustring& path);

// Begins to write the content of the file `path` to the disk, so that the next FSSync finds
// less to do. Waits at most for the disk to take the orders, not for the writing. Guarantees
// nothing: a file that is not there any more, or cannot be read, is left to FSSync. Any thread.
void FSStartSync(const ustring& path);

// Creates an empty file of a fresh name and mode 0644 in the directory `prefix` and
// sets `path` to it; on failure `path` is untouched.
[[nodiscard]] int FSMktemp(const ustring& prefix, ustring& path);

// Calls `fn` for the directory `dir` and everything below it, directories before their
// content, in the order of the directory streams. Links are not followed. -1 when `dir`
// is no directory or `fn` is null; -2 when a directory cannot be read or `fn` returned
// non-zero, which ends the walk.
[[nodiscard]] int TraverseDir(const ustring& dir, FN_ACT_TRAVERSE_DIR fn, void* pPriv);

// Sets access and modification time, in seconds since the epoch.
[[nodiscard]] int FSUTime(const ustring& path, time_t atime, time_t mtime);

// Sets `path` to a fresh name in the directory `prefix`; creates nothing.
[[nodiscard]] int FSCreateTempPath(const ustring& prefix, ustring& path);

// Opens the directory at `path` into `dh`, which must not be open.
[[nodiscard]] int FSOpenDir(const ustring& path, int flag, DIR_HANDLE& dh);

// Reads the next entry of the open `dh`, "." and ".." included: 1 an entry, 0 the end, -1 an
// error.
[[nodiscard]] int FSReadDir(DIR_HANDLE& dh, DIR_ENTRY& entry);

// Closes `dh`; nothing happens when it is closed already.
void FSCloseDir(DIR_HANDLE& dh);

// Exact equality, no tolerance.
bool FSTimeEqual(time_t a, time_t b);

// Whether the access `flag` (R_OK, W_OK, X_OK) to `path` is refused for want of rights;
// false when it fails for any other reason.
bool isFileLocked(const ustring& path, int flag);

// Whether `path` lies on a network file system (NFS or CIFS). False on failure.
bool isMountPoint(const ustring& path);

// Whether `path` lies on a FAT file system. False on failure.
bool IsMSDOS(const ustring& path);

// Replaces `path` by its canonical absolute form, links resolved; -1 with `path`
// untouched when there is none.
[[nodiscard]] int FSGetRealPath(ustring& path);
