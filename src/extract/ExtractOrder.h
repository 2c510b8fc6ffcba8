#pragma once

#include "extract/ArchiveName.h"
#include "keychain/Secret.h"
#include "runs/RunRecord.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

struct ArchiveListing;

/// One archive, and the files that its extraction makes, one out of the other.
struct ExtractItem {
    QString archive; ///< in one piece, or the first volume of a set
    ExtractPaths paths;
    QString command;       ///< the decoder's; "smime" is certificate mode, empty: the method is unknown
    QString commandByName; ///< the one that the archive's name tells; empty: it tells none
};

/// All that an extraction depends on, as it was when it was asked for. Nothing else is read once it runs.
struct ExtractOrder {
    QString profile{};
    QString folder{}; ///< where the contents go
    QList<ExtractItem> items{};
    QStringList shown{}; ///< all archives and volumes that were named, those that are not extracted, too

    /// What of the one archive goes to its place, by paths as the archive has them, in bytes; empty: all.
    std::vector<std::string> chosen{};
    /// Takes what the one archive holds; then nothing goes to its place. None: that is not wanted.
    std::shared_ptr<ArchiveListing> listing{};
    /// Where the stages work, so that nothing comes into the extraction folder by itself; it exists for as
    /// long as they do. Empty: in the extraction folder.
    QString privateFolder{};

    QString archiver{}; ///< path of the program; empty where none is registered
    QString decoder{};
    QList<Method> methods{};
    bool choosesByName = false; ///< the method is to be told by the archive's name

    Secret password{}; ///< or, where a certificate is chosen, its path
    bool isCertificateChosen = false;
    QString key{};
    QString certificate{};

    bool asksBeforeReplacing = true; ///< a folder that is not empty is a concern
    QList<LeftFile> known{};         ///< what earlier runs left in the folder

    [[nodiscard]] bool isPart() const { return listing || !chosen.empty(); }
};
