#include "launcher/early-sync.h"

#include <utility>

#include "lib/file-op.h"

namespace {

// Bytes from which on a file is worth sending, and the bytes that are sent at once. With less
// the calls cost more than the barrier gains; with more the disk idles.
constexpr int64_t kFileSize = 65536;
constexpr int64_t kBatchSize = 2097152;

}  // namespace

EarlySync::~EarlySync() {
  requestInterruption();
  m_batches.release();
  (void)wait();  // without a time limit there is nothing to report
  // What is left is the barrier's. Under the lock, because the thread sanitizer does not see that
  // wait() has seen the thread end.
  (void)TakePaths();
}

void EarlySync::Add(const ustring& path, int64_t size) {
  if (size < kFileSize) return;
  {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_paths.push_back(path);
  }
  m_bytes += size;
  if (m_bytes < kBatchSize) return;
  m_bytes = 0;
  if (!isRunning()) start();
  m_batches.release();
}

void EarlySync::run() {
  for (m_batches.acquire(); !isInterruptionRequested(); m_batches.acquire()) {
    for (const ustring& path : TakePaths()) FSStartSync(path);
  }
}

std::vector<ustring> EarlySync::TakePaths() {
  const std::lock_guard<std::mutex> lock(m_mutex);
  return std::exchange(m_paths, {});
}
