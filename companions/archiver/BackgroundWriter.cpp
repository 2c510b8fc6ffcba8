#include "BackgroundWriter.h"

#include "FileDescriptor.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace archiver {

void BackgroundWriter::start()
{
    if (m_thread.joinable()) return;
    m_stop = false;
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        // No thread to be had: it goes without, too.
    }
}

void BackgroundWriter::stop()
{
    if (!m_thread.joinable()) return;
    {
        const std::lock_guard lock(m_mutex);
        m_stop = true;
    }
    m_changed.notify_all();
    m_thread.join(); // what is being written is written to its end; finish() tells how that went
}

bool BackgroundWriter::writeNow(int file, Bytes bytes)
{
    // Not often, as each time costs a walk through what is in memory; often enough that little is left at the
    // end.
    constexpr std::size_t interval = 8 << 20;
    if (!base::writeFully(file, bytes)) return false;
    m_unsynced += bytes.size();
    if (m_unsynced >= interval) {
        base::startWriteBack(file);
        m_unsynced = 0;
    }
    return true;
}

bool BackgroundWriter::write(int file, ByteBuffer &buffer, std::size_t size)
{
    if (size == 0) return true;
    if (!finish()) return false;
    if (!m_thread.joinable()) return writeNow(file, Bytes(buffer).first(size));
    {
        const std::lock_guard lock(m_mutex);
        m_buffer.resize(buffer.size());
        std::swap(m_buffer, buffer);
        m_file = file;
        m_size = size;
    }
    m_changed.notify_all();
    return true;
}

bool BackgroundWriter::finish()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_size == 0; });
    const int error = std::exchange(m_error, 0);
    if (error != 0) errno = error;
    return error == 0;
}

void BackgroundWriter::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_size > 0 || m_stop; });
        if (m_size == 0) return;
        const Bytes bytes = Bytes(m_buffer).first(m_size);
        lock.unlock();
        const int error = writeNow(m_file, bytes) ? 0 : errno;
        lock.lock();
        m_error = error;
        m_size = 0;
        m_changed.notify_all();
    }
}

} // namespace archiver
