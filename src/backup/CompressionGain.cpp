#include "backup/CompressionGain.h"

#include "files/FolderWalk.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <fcntl.h>
#include <random>
#include <unistd.h>
#include <zstd.h>

using namespace std::chrono_literals;

namespace {

constexpr std::size_t sampleSize = 1 << 19; // half a MiB

/// A place somewhere in the folders, and what comes after it: files that lie beside each other resemble each
/// other, and are packed together.
class Sample {
public:
    struct Piece {
        std::string path;
        off_t offset;
        std::size_t bytes;
    };

    void beginAt(const Piece &piece)
    {
        m_pieces = {piece};
        m_bytes = piece.bytes;
    }
    [[nodiscard]] bool isFull() const { return m_bytes >= sampleSize || m_pieces.size() >= mostPieces; }
    void goOn(const std::string &path, std::size_t size)
    {
        m_pieces.push_back({path, 0, std::min(size, sampleSize - m_bytes)});
        m_bytes += m_pieces.back().bytes;
    }
    [[nodiscard]] const std::vector<Piece> &pieces() const { return m_pieces; }

private:
    static constexpr std::size_t mostPieces = 256;
    std::vector<Piece> m_pieces;
    std::size_t m_bytes = 0;
};

using Samples = std::array<Sample, 16>;

class Deadline {
public:
    explicit Deadline(std::chrono::milliseconds time) : m_end(std::chrono::steady_clock::now() + time) {}
    [[nodiscard]] bool isOver() const { return std::chrono::steady_clock::now() > m_end; }

private:
    const std::chrono::steady_clock::time_point m_end;
};

/// Every byte has the same chance to be where a sample begins, however many there turn out to be.
class Choice {
public:
    explicit Choice(Samples &samples) : m_samples(samples) {}

    void add(const FolderWalk &walk)
    {
        const auto size = static_cast<std::uint64_t>(walk.attributes().st_size);
        if (!S_ISREG(walk.attributes().st_mode) || size == 0) return;
        m_total += size;
        for (Sample &sample : m_samples) {
            const std::uint64_t place = random(m_total);
            if (place < size) {
                const std::uint64_t most = size - std::min<std::uint64_t>(size, sampleSize);
                const std::uint64_t offset = std::min(place, most);
                sample.beginAt(
                    {walk.path(), static_cast<off_t>(offset), std::min(size - offset, sampleSize)});
            } else if (!sample.isFull()) {
                sample.goOn(walk.path(), size);
            }
        }
    }

private:
    std::uint64_t random(std::uint64_t below)
    {
        return std::uniform_int_distribution<std::uint64_t>(0, below - 1)(m_generator);
    }

    Samples &m_samples;
    std::uint64_t m_total = 0;
    std::mt19937_64 m_generator{1}; // the same folder says the same twice
};

/// What could be read of it.
std::vector<char> contentOf(const Sample &sample)
{
    std::vector<char> content;
    content.reserve(sampleSize);
    for (const Sample::Piece &piece : sample.pieces()) {
        // Not blocking: a pipe may have come into the file's place.
        const int file = open(piece.path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0) continue;
        const std::size_t before = content.size();
        content.resize(before + piece.bytes);
        const ssize_t count = pread(file, content.data() + before, piece.bytes, piece.offset);
        content.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        close(file);
    }
    return content;
}

/// Packed bytes for each byte; 1 where it does not shrink.
double packedShare(const std::vector<char> &content)
{
    constexpr int level = 3;
    std::vector<char> packed(ZSTD_compressBound(content.size()));
    const std::size_t bytes =
        ZSTD_compress(packed.data(), packed.size(), content.data(), content.size(), level);
    if (ZSTD_isError(bytes)) return 1;
    return std::min(1.0, static_cast<double>(bytes) / static_cast<double>(content.size()));
}

} // namespace

std::optional<double> estimateCompressedShare(const QStringList &paths, const std::function<bool()> &goesOn)
{
    constexpr int entriesBetweenLooks = 64;
    const Deadline walking(2s);
    Samples samples;
    Choice choice(samples);
    int entries = 0;
    for (const QString &path : paths)
        for (FolderWalk walk(path.toStdString()); walk.next();) {
            if (++entries % entriesBetweenLooks == 0) {
                if (!goesOn()) return std::nullopt;
                if (walking.isOver()) break;
            }
            choice.add(walk);
        }

    const Deadline reading(2s);
    double sum = 0;
    int count = 0;
    for (const Sample &sample : samples) {
        if (!goesOn()) return std::nullopt;
        if (reading.isOver()) break;
        const std::vector<char> content = contentOf(sample);
        if (content.empty()) continue;
        sum += packedShare(content);
        ++count;
    }
    return count > 0 ? std::optional(sum / count) : std::nullopt;
}
