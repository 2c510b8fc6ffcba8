#pragma once

#include "keychain/Secret.h"
#include "runs/RunRecord.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

/// One entry of the list, and the files that its backup makes, one out of the other.
struct BackupItem {
    QString source;    ///< folder or file, as the profile has it
    QString stored;    ///< the archive in clear, which exists for a while
    QString encrypted; ///< the same encrypted, which exists for a while
    QString final;     ///< the archive that stays; its volumes, where it is split, are named after it
    std::optional<quint64> bytes{}; ///< none before it was measured
};

/// All that a backup depends on, as it was when it was asked for. Nothing else is read once it runs.
struct BackupOrder {
    QString profile{};
    QString destination{};
    bool showsOtherDestination = false; ///< on the screen stands another one, of another profile
    QList<BackupItem> items{};

    QString archiver{}; ///< path of the program; empty where none is registered
    QString encoder{};
    QString archiveExtension{}; ///< with its dot; empty where the settings have none
    QString methodExtension{};
    QString method{}; ///< the settings' name of it
    QString cipher{}; ///< the encoder's command; empty where the settings have none

    bool byCertificate = false;
    QString certificate{};
    Secret password{};           ///< empty where it is by certificate
    bool awaitsKeychain = false; ///< the password is the keychain's to give
    /// What was typed the second time; none where nobody was asked to.
    std::optional<Secret> repetition{};

    bool compresses = false;     ///< before it encrypts
    QString keepDate{};          ///< the archiver's argument, or ""
    QString split{};             ///< the same
    QString volumeSize{};        ///< thousands of bytes, as it was typed; none (null) where it is not split
    bool datesEncrypted = false; ///< the encrypted file gets the date of what it holds
    bool asksBeforeReplacing = true; ///< archives that are there are a concern

    QList<LeftFile> known{}; ///< what earlier runs left in the destination
};

/// The three files of an item's backup. Extensions are put behind as they are.
[[nodiscard]] BackupItem backupItem(const QString &source, const QString &destination,
                                    const QString &baseName, const QString &archiveExtension,
                                    const QString &methodExtension);
