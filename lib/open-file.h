#pragma once

// Opens `path` with the given O_* flags, but never waits for it: a FIFO, a socket, a directory or
// a block device in the place of a small file of ours is refused, a terminal does not become the
// controlling one, and no child process inherits the file. A file made by O_CREAT has mode 0666
// under the umask.
// Returns the descriptor, the caller's to close, or -1; errno tells (EINVAL for a refusal). With
// `is_device` a character device is taken, too, and told of; without, it is refused.
[[nodiscard]] int open_file(const char* path, int flags, bool* is_device = nullptr);
