#include "UnpackWork.h"

#include "LiteralBlock.h"

#include <algorithm>
#include <new>
#include <sched.h>
#include <utility>

namespace archiver {

namespace {

constexpr std::uint64_t mostMemory = 24 << 20;
constexpr unsigned mostThreads = 8;

/// None where there is but one processor: then a thread is only in the way.
unsigned threadCount()
{
    cpu_set_t usable;
    CPU_ZERO(&usable);
    if (sched_getaffinity(0, sizeof usable, &usable) != 0) return 0;
    const int count = CPU_COUNT(&usable);
    return count < 2 ? 0 : std::min(static_cast<unsigned>(count), mostThreads);
}

} // namespace

std::span<std::uint8_t> UnpackJob::grow(std::size_t count)
{
    const std::size_t needed = size + count + BitReader::padding;
    if (packed.size() < needed) packed.resize(needed);
    const std::span<std::uint8_t> room = std::span(packed).subspan(size, count);
    size += count;
    return room;
}

void UnpackJob::clear()
{
    before.clear();
    messages.clear();
    entries.clear();
    size = 0;
    cost = 0;
    begins.reset();
    ends.reset();
    isWhole = false;
    isDamaged = false;
    isUnpacked = false;
    constexpr std::size_t worthKeeping = 2 << 20;
    if (packed.size() > worthKeeping) ByteBuffer().swap(packed);
}

UnpackWork::UnpackWork(const EntryReceivers &receivers, std::function<void(UnpackJob &)> finish)
    : m_receivers(receivers)
    , m_finish(std::move(finish))
    , m_work(threadCount(), std::size_t{2} * threadCount() + 1, [this](UnpackJob &job) { work(job); })
{
}

UnpackJob &UnpackWork::next()
{
    while (!m_work.free())
        finishOne();
    return *m_work.free();
}

void UnpackWork::give()
{
    const std::uint64_t cost = m_work.free()->cost;
    while (m_cost > 0 && m_cost + cost > mostMemory)
        finishOne();
    m_cost += cost;
    m_work.give();
}

void UnpackWork::drain()
{
    while (m_work.take())
        finishOne();
}

void UnpackWork::finishOne()
{
    UnpackJob &job = *m_work.take();
    m_finish(job);
    m_cost -= job.cost;
    job.clear();
    m_work.release();
}

void UnpackWork::work(UnpackJob &job)
{
    if (interrupted()) return;
    std::unique_ptr<Worker> worker;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_idle.empty()) {
            worker = std::move(m_idle.back());
            m_idle.pop_back();
        }
    }
    try {
        if (!worker) worker = std::make_unique<Worker>(m_receivers);
        worker->run(job);
    } catch (const std::bad_alloc &) {
        job.messages += "\nOut of memory\n";
        return;
    }
    const std::lock_guard lock(m_mutex);
    m_idle.push_back(std::move(worker));
}

UnpackWork::Worker::Worker(const EntryReceivers &receivers)
    : diagnostics(messages), receiver(receivers.make(diagnostics)), unpacker(*receiver, diagnostics)
{
}

void UnpackWork::Worker::run(UnpackJob &job)
{
    switch (job.kind) {
    case UnpackJob::Kind::Entries:
        for (const UnpackJob::Entry &entry : job.entries)
            if (!interrupted())
                unpacker.unpack(entry.header, Bytes(job.packed).subspan(entry.begin, entry.size));
        job.messages = std::exchange(messages, {});
        return;
    case UnpackJob::Kind::Stored:
        job.crc = crc32(Bytes(job.packed).first(job.size));
        return;
    case UnpackJob::Kind::Block:
        return unpackLiterals(job);
    case UnpackJob::Kind::EntriesLeft:
    case UnpackJob::Kind::End:
        return;
    }
}

/// A block that needs none of those before it. Any other, and what is damaged, is left as it is.
void UnpackWork::Worker::unpackLiterals(UnpackJob &job)
{
    constexpr std::size_t most = 4 << 20;
    BitReader bits(Bytes(job.packed).first(job.size), job.block);
    if (!job.block.hasTables || !readCodeLengths(bits, job.lengths) || !areLiteralsOnly(job.lengths)) return;
    const std::size_t size = roomForLiterals(bits, job.lengths);
    if (size > most || !codes.build(job.lengths, job.size)) return;
    if (job.unpacked.size() < size) job.unpacked.resize(size);
    const std::optional<std::size_t> count = unpackLiteralBlock(bits, job.lengths, codes, job.unpacked);
    if (!count) return;
    job.isUnpacked = true;
    job.unpackedSize = *count;
    job.crc = crc32(Bytes(job.unpacked).first(*count));
}

} // namespace archiver
