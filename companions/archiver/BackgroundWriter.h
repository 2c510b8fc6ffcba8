#pragma once

#include "Bytes.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace archiver {

/// Writes buffers to files, in a thread of its own on demand, one at a time, so that the next one can be
/// filled meanwhile.
class BackgroundWriter {
public:
    BackgroundWriter() = default;
    ~BackgroundWriter() { stop(); }
    BackgroundWriter(const BackgroundWriter &) = delete;
    BackgroundWriter &operator=(const BackgroundWriter &) = delete;

    /// The thread exists from start() to stop() only: as long as there is one, each of the system's calls
    /// that deals with a file costs more, which is felt with many small files. Without it write() does the
    /// work itself.
    void start();
    void stop();

    /// Takes the first `size` bytes of `buffer`, to be written where `file` stands, and gives back a buffer
    /// as long, whose content doesn't matter. False with errno set where the write before has failed.
    [[nodiscard]] bool write(int file, ByteBuffer &buffer, std::size_t size);
    /// Writes, behind all before, bytes that stay the caller's.
    [[nodiscard]] bool writeAtOnce(int file, Bytes bytes) { return finish() && writeNow(file, bytes); }
    /// Waits until all is written. False with errno set where that failed, once.
    [[nodiscard]] bool finish();

private:
    void run();
    [[nodiscard]] bool writeNow(int file, Bytes bytes);

    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    ByteBuffer m_buffer; ///< belongs to the thread as long as m_size isn't 0
    std::size_t m_size = 0;
    int m_file = -1;
    int m_error = 0;
    std::size_t m_unsynced = 0;
    bool m_stop = false;
};

} // namespace archiver
