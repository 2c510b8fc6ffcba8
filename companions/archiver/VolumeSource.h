#pragma once

#include "ByteSource.h"

#include <string>
#include <vector>

namespace archiver {

/// The files that an archive consists of.
class VolumeSource {
public:
    virtual ~VolumeSource() = default;
    /// The volume of that index, 0 being the first; null with errno set. Indices are asked for in order.
    virtual std::unique_ptr<ByteSource> open(std::size_t index) = 0;
    /// Its name for messages.
    [[nodiscard]] virtual std::string name(std::size_t index) const = 0;
};

/// An archive on disk, given by its first volume; the names of the others follow from that one's.
class VolumeFiles final : public VolumeSource {
public:
    explicit VolumeFiles(std::string firstPath) : m_paths{std::move(firstPath)} {}
    std::unique_ptr<ByteSource> open(std::size_t index) override;
    [[nodiscard]] std::string name(std::size_t index) const override;

private:
    mutable std::vector<std::string> m_paths;
};

} // namespace archiver
