#pragma once

#include "EntryUnpacker.h"
#include "OrderedWork.h"

namespace archiver {

/// What a thread does at once: small entries, or a piece of a large one.
struct UnpackJob {
    /// Entries are unpacked by the thread, or left to the one that takes the job; what is said of a piece is
    /// its last one's.
    enum class Kind { Entries, EntriesLeft, Stored, Block, End };
    Kind kind = Kind::Entries;
    std::size_t index = 0; ///< of the entry, for a piece
    std::string before;    ///< messages that come before those of this job
    std::string messages;  ///< of the work

    /// All of their packed data is in `packed`. Those that share dictionaries are together, but for the ones
    /// that nothing can be made of.
    struct Entry {
        FileHeader header;
        std::size_t begin;
        std::size_t size;
        std::string place;
    };
    std::vector<Entry> entries;

    ByteBuffer packed; ///< of which `size` bytes are in use, and BitReader::padding more are there
    std::size_t size = 0;
    std::uint64_t cost = 0; ///< bytes of memory, about

    // A piece is finished by the thread that takes it.
    std::optional<FileHeader> begins; ///< of an entry that begins with it
    std::optional<FileHeader> ends;   ///< the last header of one that ends with it
    bool isWhole = false;             ///< that one
    bool isDamaged = false;
    BlockHeader block;
    CodeLengths lengths{};
    bool isUnpacked = false; ///< the block had nothing but literals
    ByteBuffer unpacked;
    std::size_t unpackedSize = 0;
    std::uint32_t crc = 0; ///< of what was stored or unpacked

    /// Room for so many bytes more in `packed`.
    [[nodiscard]] std::span<std::uint8_t> grow(std::size_t count);
    void clear();
};

/// Jobs on several threads, whose results come in order. The memory that they need is bounded.
class UnpackWork {
public:
    /// `finish` is called on the thread that gives the jobs, for each that is done.
    UnpackWork(const EntryReceivers &receivers, std::function<void(UnpackJob &)> finish);

    /// An empty job.
    [[nodiscard]] UnpackJob &next();
    /// Hands on the job that next() gave. It is done after those before it.
    void give();
    /// Waits for all jobs.
    void drain();

private:
    /// What a thread needs, used by one after the other.
    struct Worker {
        explicit Worker(const EntryReceivers &receivers);
        void run(UnpackJob &job);
        void unpackLiterals(UnpackJob &job);

        std::string messages;
        Diagnostics diagnostics;
        std::unique_ptr<EntryReceiver> receiver;
        EntryUnpacker unpacker;
        BlockCodes codes;
    };

    void work(UnpackJob &job);
    void finishOne();

    const EntryReceivers &m_receivers;
    std::function<void(UnpackJob &)> m_finish;
    std::uint64_t m_cost = 0; ///< of the jobs under way
    std::mutex m_mutex;
    std::vector<std::unique_ptr<Worker>> m_idle;
    base::OrderedWork<UnpackJob> m_work; ///< the last one: its threads use the others
};

} // namespace archiver
