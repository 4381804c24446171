#pragma once

#include <string_view>

#include "ustring/ustring.h"

// Looks at a version file before the toolkit's settings reader does. That builds any object of
// the toolkit's from a value like "@Variant(...)" and aborts the process over a damaged one; it
// waits for ever on a pipe, and reads a device without end. Any thread.

// Whether the settings reader may be given the file at `path`. 0 when it may; -1 when there is
// nothing to read, the file being missing or not readable; -2 when it must not, with the reason
// for the log in `fault`: not a regular file, larger than 64 KiB, or as HoldsObject() says.
[[nodiscard]] int CheckVersionFile(const ustring& path, ustring& fault);

// Whether the settings reader would build an object from a value of the group "Version" in the
// settings file `text`, whatever quotes and escapes the value is behind. Where the reader's rules
// are finer than anybody needs, the answer is yes.
bool HoldsObject(std::string_view text);
