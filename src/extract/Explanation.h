#pragma once

#include "tools/ToolRun.h"

#include <QString>
#include <optional>

/// What is known of a stage of an extraction that failed: which one, what its tool said, and what was found
/// by looking afterwards.
struct FailedStage {
    enum class Kind { Test, UnpackOuter, Decrypt, UnpackInner, Place };
    // Place: what was chosen goes to its place, without a tool.
    /// What lies at a path.
    enum class Place { Nothing, File, Link, Folder };

    Kind kind = Kind::Test;
    ToolResult tool{};
    QString archive{};
    QString folder{}; ///< of the extraction
    bool folderIsWritable = true;
    std::optional<qint64> bytesFree{}; ///< on its disk; none where unknown

    QString encrypted{}; ///< path of the encrypted file
    QString inner{};     ///< path of what it is decrypted to
    Place atEncrypted = Place::File;
    Place atInner = Place::Nothing;
    bool innerIsArchive = false; ///< it begins as archives do
    bool keepsRest = true;       ///< what could be made of its entries stays in the folder

    QString decoderCommand{};  ///< "smime" is certificate mode; empty: the method is unknown
    QString commandByName{};   ///< the one that the archive's name tells; empty: it tells none
    bool keyIsReadable = true; ///< in certificate mode
    bool certificateIsReadable = true;
};

/// One or two sentences: what happened, and what to do. Never empty.
[[nodiscard]] QString explain(const FailedStage &stage);
