#pragma once

// Removal of directory trees of any depth. The tree is walked by handles and not by paths: the
// kernel need not walk a path for each file, no link can lead out of the tree, and a directory
// that is moved away meanwhile is not climbed out of. At most 17 descriptors are open, fewer where
// the process has no more, and the stack does not grow with the depth.
//
// Any thread; several may remove one tree at once, and all of them succeed.

// Removes the directory `path` with all that it holds. 0, also when it cannot be opened and stays;
// -3 at the first failure, which leaves the rest.
[[nodiscard]] int remove_tree(const char* path);

// Gives their owner all rights to the directories from `path` down. Best effort: what cannot be
// changed stays as it is.
void make_tree_removable(const char* path);
